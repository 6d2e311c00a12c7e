#pragma once

#include <orv/propertyeditor/validators/FindingsValidator.h>

namespace orv::PropertyEditor {

class SamplesTableItem;

/// Whether what the tables of samples point at can be used: names, MS files, traces, companions, and the
/// documents of a report over several. On a disk many files are looked at at a time.
class ORV_WORKFLOW_EXPORT FilesValidator : public FindingsValidator
{
public:
    /// With \a checkResourceReferences the references among the settings are looked up too.
    explicit FilesValidator(bool checkResourceReferences = false);

    void check(CheckRun &run) const override;

private:
    bool m_checkResourceReferences;
};

} // namespace orv::PropertyEditor
