#pragma once

#include "FindFixture.h"
#include "WidgetTest.h"
#include "editors/LeavingWays.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>

#include <QClipboard>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStatusBar>

/// Columns of settings, and people who copy and paste in them.
namespace ClipboardFixture {

using namespace orv;
using namespace FindFixture;
using namespace Qt::StringLiterals;

inline constexpr auto kPeaks = "KarvonCentroidTopk";
inline constexpr auto kLetters = "KarvonDigestLetters";
inline constexpr auto kPrecursor = "KarvonPrecursorMassError";
inline constexpr auto kJsonType = "application/x-orv-settings+json";

inline QJsonObject massOf(double value, const char *unit = "ppm")
{
    return {{u"unit"_s, QString::fromUtf8(unit)}, {u"value"_s, value}};
}

inline QJsonObject fullCell(const char *letters = "RK")
{
    return karvonCell({setting(kPeaks, 500), setting(kLetters, text(letters), "Digestion"),
                       setting(kPrecursor, massOf(10.123456789), "Masses")});
}

inline QJsonObject twoColumns()
{
    return Documents::document(
        {Documents::tab(u"First"_s, {u"One"_s, u"Two"_s},
                        {fullCell(), karvonCell({setting(kPeaks, 1000), setting(kPrecursor, massOf(20))})})},
        metadata());
}

/// A window in one of whose columns somebody stands.
struct Desk : Bench
{
    explicit Desk(const QJsonObject &document = twoColumns())
    {
        if (!open(document))
            qFatal("The test's document can't be opened");
        for (int column = 0; column < window->grid(0)->items().size(); ++column) {
            if (view(0, column))
                tree(column).expandAll();
        }
        QGuiApplication::clipboard()->clear();
        standAt(0, kPeaks);
    }

    [[nodiscard]] KPropertyCustomEditorView &tree(int column) const { return *view(0, column)->editorView(); }
    [[nodiscard]] KProperty &property(int column, const char *name) const
    {
        return view(0, column)->propertySet()->property(name);
    }
    void standAt(int column, const char *name) const
    {
        tree(column).setFocus();
        tree(column).setCurrentIndex(LeavingWays::rowOf(tree(column), name));
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), code, modifiers);
    }
    [[nodiscard]] QString copied() const
    {
        key(Qt::Key_C);
        return QGuiApplication::clipboard()->text();
    }
    [[nodiscard]] QString copiedBy(const char *command) const
    {
        child<QAction>(command)->trigger();
        return QGuiApplication::clipboard()->text();
    }
    void paste(const QString &pasted) const
    {
        QGuiApplication::clipboard()->setText(pasted);
        key(Qt::Key_V);
    }
    [[nodiscard]] QString message() const { return window->statusBar()->currentMessage(); }
    [[nodiscard]] QString refused() const
    {
        return child<QPlainTextEdit>("settingsNotPastedList")->toPlainText();
    }
    [[nodiscard]] QJsonObject stored(int column) const
    {
        return PropertyEditorJsonUtils::withoutStamps(window->content().document())
            .value(u"tabs"_s)
            .toArray()
            .at(0)
            .toObject()
            .value(u"cells"_s)
            .toArray()
            .at(column)
            .toObject();
    }
};

inline QJsonValue storedValue(const QJsonObject &cell, const char *name)
{
    for (const auto entry : cell.value(u"properties"_s).toArray()) {
        if (entry.toObject().value(u"name"_s) == text(name))
            return entry.toObject().value(u"value"_s);
    }
    return QJsonValue::Undefined;
}

} // namespace ClipboardFixture
