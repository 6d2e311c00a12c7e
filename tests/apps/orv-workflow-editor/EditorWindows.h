#pragma once

#include "EditorWindow.h"
#include "TestData.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

/// What tests of the application's windows ask of them.
namespace EditorWindows {

inline constexpr auto kOpened = orv::PropertyEditorWindow::OpenStatus::Opened;

inline QString intactExample()
{
    return TestData::examplePath(QStringLiteral("workflows/intact_mass_check.wflw"));
}

inline QAction *command(const QWidget &window, const QString &text)
{
    for (QAction *action : window.findChildren<QAction *>()) {
        if (action->text() == text)
            return action;
    }
    qFatal("There is no command \"%s\"", qPrintable(text));
}

inline QList<orv::EditorWindow *> openWindows()
{
    QList<orv::EditorWindow *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<orv::EditorWindow *>(widget); window && window->isVisible())
            windows.append(window);
    }
    return windows;
}

inline void undoByKey(orv::EditorWindow &window)
{
    // Progress that was shown on a slow machine gives the window back with the next events.
    (void)QTest::qWaitForWindowActive(&window);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
}

/// Gives the first tab a name as a person does, by a double click, and doesn't leave the field.
inline QLineEdit *typeNameOfFirstTab(orv::EditorWindow &window, const QString &name)
{
    window.workflowTabs()->setEditorMode(orv::GridPropertyEditorView::EditorMode::Designer);
    orv::EditableTabBar *bar = window.workflowTabs()->widget()->editableTabBar();
    const QPoint place = bar->tabRect(0).center();
    QTest::mouseClick(bar, Qt::LeftButton, {}, place);
    QTest::mouseDClick(bar, Qt::LeftButton, {}, place);
    auto *editor = bar->findChild<QLineEdit *>();
    if (!editor)
        qFatal("The tab can't be renamed");
    editor->selectAll();
    QTest::keyClicks(editor, name);
    return editor;
}

} // namespace EditorWindows
