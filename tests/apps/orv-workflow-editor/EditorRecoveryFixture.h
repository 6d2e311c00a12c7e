#pragma once

#include "EditorWindows.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/workbench/RecoveryPanel.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QLabel>
#include <QPushButton>
#include <QTreeView>

/// Windows with unsaved workflows, as a person sees them.
namespace EditorRecoveryFixture {

using namespace orv;
using namespace Qt::StringLiterals;

inline void renameFirstTab(EditorWindow &window, const QString &name)
{
    QTest::keyClick(EditorWindows::typeNameOfFirstTab(window, name), Qt::Key_Return);
}

inline QString firstTab(const EditorWindow &window)
{
    return window.content().tabsAndContent().value(0).first;
}

inline QTreeView *list(const EditorWindow &window, const QString &name)
{
    for (QTreeView *view : window.findChildren<QTreeView *>()) {
        if (view->accessibleName() == name)
            return view;
    }
    qFatal("There is no list \"%s\"", qPrintable(name));
}

/// What the panel says beside its lists.
inline QString panelText(const EditorWindow &window)
{
    QString text;
    for (const QLabel *label : window.findChild<RecoveryPanel *>()->findChildren<QLabel *>())
        text += label->text() + u'\n';
    return text;
}

inline QPushButton *panelButton(const EditorWindow &window, const QString &text)
{
    for (QPushButton *button : window.findChild<RecoveryPanel *>()->findChildren<QPushButton *>()) {
        if (button->text() == text)
            return button;
    }
    qFatal("There is no button \"%s\"", qPrintable(text));
}

inline void closeUnsaved(EditorWindow *window)
{
    ScriptedAnswerer answers;
    answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    window->close();
    QVERIFY(answers.isDone());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Once the panel knows what became of the file.
inline void recover(EditorWindow *window)
{
    QTRY_VERIFY(!panelText(*window).contains(u"Looking whether"_s));
    QTest::mouseClick(panelButton(*window, u"&Recover"_s), Qt::LeftButton);
}

} // namespace EditorRecoveryFixture
