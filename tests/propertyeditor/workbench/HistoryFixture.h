#pragma once

#include "WidgetTest.h"
#include "WindowFixture.h"
#include "grid/GridFixture.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/Workbench.h>

#include <QMenu>

/// Windows with a history, and people who edit in them.
namespace HistoryFixture {

using namespace Qt::StringLiterals;
using WindowFixture::Window;

inline QJsonObject searchCell()
{
    using WindowFixture::setting;
    return WindowFixture::karvonCell(
        {setting("KarvonDigestLetters", u"RK"_s, "Digestion"), setting("KarvonCentroidTopk", 1000),
         setting("KarvonFragmentMassError", QJsonObject{{u"value"_s, 10.1234}, {u"unit"_s, u"ppm"_s}})});
}

/// A window with a workbench that shows a document.
struct Edited
{
    explicit Edited(const QJsonObject &document = WindowFixture::documentOf({searchCell()}))
        : workbench(new orv::Workbench(&window))
        , history(workbench->history())
    {
        if (window.openWorkflow(document) != WindowFixture::kOpened)
            qFatal("The fixture doesn't load");
        window.resize(1000, 700);
        window.show();
    }

    KPropertyEditorView &tree(int tab = 0, int column = 0)
    {
        return *static_cast<orv::GridPropertyEditorView *>(window.grid(tab)->items().at(column)->widget())
                    ->editorView();
    }
    /// Without the stamps of a save.
    QByteArray shown()
    {
        return QJsonDocument(orv::PropertyEditorJsonUtils::withoutStamps(window.content().document()))
            .toJson();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        // Progress that was shown on a slow machine gives the window back with the next events.
        (void)QTest::qWaitForWindowActive(&window);
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, code, modifiers);
    }
    QString value(const char *name) { return tree().propertySet()->property(name).value().toString(); }
    /// As a person does it, and the events behind it.
    void type(const char *setting, const char *value)
    {
        tree().expandAll();
        if (!LeavingWays::open(tree(), setting))
            qFatal("There is no editor for %s", setting);
        LeavingWays::type(QString::fromUtf8(value));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        tree().setFocus();
        history->takeIn();
    }

    Window window;
    orv::Workbench *workbench;
    orv::DocumentHistory *history;
    orv::ScriptedAnswerer answers;
};

inline QStringList namesOf(const Edited &edited)
{
    QStringList names;
    while (edited.history->canUndo()) {
        names.prepend(edited.history->undoText());
        edited.history->undo();
    }
    return names;
}

} // namespace HistoryFixture
