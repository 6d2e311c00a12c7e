#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

namespace orv::PropertyEditor {

class Content;

/// Whether the fields that people and the server add to samples have names of their own. Called by
/// applications before they create projects; no validator.
class ORV_WORKFLOW_EXPORT SamplesCustomColumnsVerifier
{
public:
    /// MalformedStructure when a name stands twice among those of the mapped metadata and the columns of
    /// tables of samples and proteins, with the names; InvalidContent for null. On the content's thread.
    static Error verifyCustomColumns(Content *content);
};

} // namespace orv::PropertyEditor
