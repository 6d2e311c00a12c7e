#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>

namespace orv {

/// The file format as a JSON Schema (2020-12), with which text editors check and complete documents.
namespace WorkflowSchema {

/// Made from the catalogue: the properties that each type of cell may hold, under their current and former
/// names, with caption, meaning, default, list and range. It takes what a load takes without loss, and is
/// open to members that the format doesn't name. What text can't say, such as rules that read files, is left
/// to the validators. Safe on any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject make();

} // namespace WorkflowSchema

} // namespace orv
