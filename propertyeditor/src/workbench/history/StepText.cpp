#include "StepText.h"

#include "panels/ShortText.h"
#include "state/CellEntries.h"
#include "state/EntryTexts.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

constexpr qsizetype kLongestValue = 40;

/// Gives the texts a context of their own.
struct StepTextTr
{
    Q_DECLARE_TR_FUNCTIONS(StepText)
};

QString settingText(const QJsonObject &cellBefore, const QJsonObject &before, const QJsonObject &cell,
                    const QJsonObject &after)
{
    QString caption = EntryTexts::caption(cell, after);
    const QString was = ShortText::line(EntryTexts::value(cellBefore, before), kLongestValue);
    const QString is = ShortText::line(EntryTexts::value(cell, after), kLongestValue);
    if (was == is)
        return caption;
    const QString none = StepTextTr::tr("(empty)");
    return StepTextTr::tr("%1 %2 to %3").arg(caption, was.isEmpty() ? none : was, is.isEmpty() ? none : is);
}

QString settingsText(const QJsonObject &before, const QJsonObject &after, const QString &column)
{
    const QList<ChangedEntry> changed = changedEntries(before, after);
    if (changed.size() != 1)
        return StepTextTr::tr("Settings of \"%1\"").arg(column);
    const ChangedEntry &entry = changed.constFirst();
    if (entry.before.isEmpty())
        return StepTextTr::tr("%1 added").arg(EntryTexts::caption(after, entry.after));
    if (entry.after.isEmpty())
        return StepTextTr::tr("%1 removed").arg(EntryTexts::caption(before, entry.before));
    return settingText(before, entry.before, after, entry.after);
}

QString addedOrRemoved(const QStringList &before, const QStringList &after, const char *added,
                       const char *removed)
{
    if (after.size() == before.size())
        return {};
    const QStringList &more = after.size() > before.size() ? after : before;
    const QStringList &less = after.size() > before.size() ? before : after;
    qsizetype i = 0;
    while (i < less.size() && more.at(i) == less.at(i))
        ++i;
    return StepTextTr::tr(after.size() > before.size() ? added : removed).arg(more.at(i));
}

QString renamedOrMoved(const QStringList &before, const QStringList &after, const char *renamed,
                       const char *moved)
{
    QStringList old = before;
    QStringList now = after;
    old.sort();
    now.sort();
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (before.at(i) != after.at(i)) {
            return old == now ? StepTextTr::tr(moved).arg(after.at(i))
                              : StepTextTr::tr(renamed).arg(before.at(i), after.at(i));
        }
    }
    return {};
}

QString columnsText(const DocumentState::Tab &before, const DocumentState::Tab &after)
{
    const QString text =
        addedOrRemoved(before.columns, after.columns, QT_TRANSLATE_NOOP("StepText", "Column \"%1\" added"),
                       QT_TRANSLATE_NOOP("StepText", "Column \"%1\" removed"));
    return !text.isEmpty() ? text
                           : renamedOrMoved(before.columns, after.columns,
                                            QT_TRANSLATE_NOOP("StepText", "Column \"%1\" renamed to \"%2\""),
                                            QT_TRANSLATE_NOOP("StepText", "Column \"%1\" moved"));
}

QString tabsText(const StateChange &change)
{
    const auto titles = [](const QList<DocumentState::Tab> &tabs) {
        QStringList list;
        for (const DocumentState::Tab &tab : tabs)
            list.append(tab.title);
        return list;
    };
    const QStringList before = titles(change.tabsBefore());
    const QStringList after = titles(change.tabsAfter());
    QString text = addedOrRemoved(before, after, QT_TRANSLATE_NOOP("StepText", "Tab \"%1\" added"),
                                  QT_TRANSLATE_NOOP("StepText", "Tab \"%1\" removed"));
    if (!text.isEmpty())
        return text;
    if (before.size() == 1 && before == after)
        return columnsText(change.tabsBefore().constFirst(), change.tabsAfter().constFirst());
    return renamedOrMoved(before, after, QT_TRANSLATE_NOOP("StepText", "Tab \"%1\" renamed to \"%2\""),
                          QT_TRANSLATE_NOOP("StepText", "Tab \"%1\" moved"));
}

bool isTable(const QJsonObject &cell)
{
    const QString type = cell.value(TYPE_KEY).toString();
    const auto *row = PropertyEditor::CellTypes::find(PropertyEditor::BaseItem::typeFromString(type));
    return row && !row->holdsSettings;
}

} // namespace

QString StepText::of(const DocumentState &before, const StateChange &change, const DocumentState &after,
                     const QString &inTable)
{
    if (change.hasOtherTabs()) {
        const QString text = tabsText(change);
        return text.isEmpty() ? StepTextTr::tr("Tabs and columns") : text;
    }
    if (change.cells().isEmpty())
        return StepTextTr::tr("Workflow properties");
    // Who follows an edit stands behind the one who made it, where that is a table.
    if (!inTable.isEmpty())
        return inTable;
    if (change.cells().size() > 1)
        return StepTextTr::tr("%1 columns edited").arg(change.cells().size());
    const StateChange::CellChange &cell = change.cells().constFirst();
    const DocumentState::Tab &tab = after.tabs.at(cell.tab);
    const QString column = tab.columns.value(cell.column);
    const QJsonObject now = tab.cells.at(cell.column).object();
    if (isTable(now))
        return StepTextTr::tr("\"%1\" edited").arg(column);
    return settingsText(before.tabs.at(cell.tab).cells.at(cell.column).object(), now, column);
}

} // namespace orv
