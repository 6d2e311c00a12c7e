#pragma once

#include <orv/core/Export.h>

#include <QLoggingCategory>

namespace orv {

/// Lines of the workflow library: category "orv.property_editor". Both categories are quiet below warning
/// until the host's filter rules ask for more ("orv.*=true").
ORV_WORKFLOW_EXPORT const QLoggingCategory &propertyEditorLog();

/// Lines of the shared utilities below it: category "orv.generic".
ORV_WORKFLOW_EXPORT const QLoggingCategory &genericLog();

} // namespace orv
