#include "PropertyEditorWindowForm.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace orv {

void PropertyEditorWindowForm::setupUi(QMainWindow *window)
{
    window->setObjectName(QStringLiteral("PropertyEditorWindow"));
    window->resize(1100, 700);
    window->setWindowTitle(PropertyEditorWindow::tr("Project Creation"));

    centralWidget = new QWidget(window);
    centralWidget->setObjectName(QStringLiteral("centralWidget"));
    verticalLayout = new QVBoxLayout(centralWidget);
    verticalLayout->setObjectName(QStringLiteral("verticalLayout"));

    tabWidget = new EditableTabWidget(centralWidget);
    tabWidget->setObjectName(QStringLiteral("tabWidget"));
    tabWidget->setCurrentIndex(-1);
    verticalLayout->addWidget(tabWidget);

    horizontalLayout = new QHBoxLayout;
    horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    horizontalLayout->addItem(new QSpacerItem(0, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    pushCreateProject = new QPushButton(PropertyEditorWindow::tr("Create Project..."), centralWidget);
    pushCreateProject->setObjectName(QStringLiteral("pushCreateProject"));
    horizontalLayout->addWidget(pushCreateProject);
    pushButton_process = new QPushButton(PropertyEditorWindow::tr("Process workflow..."), centralWidget);
    pushButton_process->setObjectName(QStringLiteral("pushButton_process"));
    horizontalLayout->addWidget(pushButton_process);
    verticalLayout->addLayout(horizontalLayout);
    window->setCentralWidget(centralWidget);

    toolBar = new QToolBar(window);
    toolBar->setObjectName(QStringLiteral("toolBar"));
    toolBar->setWindowTitle(PropertyEditorWindow::tr("Workflow"));
    window->addToolBar(Qt::TopToolBarArea, toolBar);
}

} // namespace orv
