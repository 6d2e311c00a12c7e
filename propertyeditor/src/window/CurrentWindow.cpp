#include "CurrentWindow.h"

#include <orv/propertyeditor/PropertiesNames.h>

#include <atomic>

namespace orv::CurrentWindow {

namespace {

struct CurrentWindowState
{
    PropertyEditorWindow *s_instance = nullptr;
    std::atomic<WorkflowType> workflowType = WorkflowType::Unknown;
};

CurrentWindowState &state()
{
    static CurrentWindowState current;
    return current;
}

WorkflowType workflowTypeOfWindow()
{
    return state().workflowType;
}

} // namespace

void enter(PropertyEditorWindow *window)
{
    state().s_instance = window;
    state().workflowType = WorkflowType::Unknown;
    PropertiesNames::setWorkflowTypeProvider(&workflowTypeOfWindow);
}

void leave(PropertyEditorWindow *window)
{
    if (state().s_instance != window)
        return;
    state().s_instance = nullptr;
    state().workflowType = WorkflowType::Unknown;
}

PropertyEditorWindow *instance()
{
    return state().s_instance;
}

void setWorkflowType(PropertyEditorWindow *window, WorkflowType type)
{
    if (state().s_instance == window)
        state().workflowType = type;
}

} // namespace orv::CurrentWindow
