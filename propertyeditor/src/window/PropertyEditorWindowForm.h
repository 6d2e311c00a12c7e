#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QHBoxLayout)
QT_FORWARD_DECLARE_CLASS(QMainWindow)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QToolBar)
QT_FORWARD_DECLARE_CLASS(QVBoxLayout)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

class EditableTabWidget;

/// The widgets of the document window, which owns them. Their object names are known to automation.
class PropertyEditorWindowForm
{
public:
    void setupUi(QMainWindow *window);

    QWidget *centralWidget = nullptr;
    QVBoxLayout *verticalLayout = nullptr;
    EditableTabWidget *tabWidget = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    QPushButton *pushCreateProject = nullptr;
    QPushButton *pushButton_process = nullptr;
    QToolBar *toolBar = nullptr;
};

} // namespace orv
