#pragma once

namespace orv {

/// For what the widgets of a workflow are asked whether they hold something valid.
enum class WidgetValidationType : int
{
    ProjectCreation = 0,
    SaveWorkflow = 1,
    SubmitJob = 2,
};

} // namespace orv
