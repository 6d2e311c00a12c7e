#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

namespace orv {

class GridItemEdits;
class IGridItem;
class PropertyEditorWindow;
class TableHistory;

/// A table that went through steps of its own. They count from the first one that it ever had, whether or not
/// that was forgotten.
struct TableMove
{
    QPointer<TableHistory> history;
    int before = 0;
    int after = 0;
};

/// How many of the steps are done, counted in that way.
[[nodiscard]] int stepsDone(const TableHistory &history);

/// What a column shows, as it stands in a state.
[[nodiscard]] StateCell cellOf(const IGridItem &item);

/// Reads what a window shows. Of columns that nobody has edited since it knows the cell already.
class ShownState : public QObject
{
    Q_OBJECT

public:
    explicit ShownState(PropertyEditorWindow *window);

    [[nodiscard]] DocumentState read();
    /// Of all tables that were read anew since the last call.
    [[nodiscard]] QList<TableMove> takeMoves();
    /// What the steps of all tables hold.
    [[nodiscard]] qsizetype heldByTables() const;
    /// Lets tables forget their steps before the one that \a firstWanted gives, all that are done for none.
    void
    forgetStepsOfTables(const std::function<std::optional<int>(const TableHistory *, int done)> &firstWanted);
    /// The next call of read() reads everything.
    void forget();
    /// The same for the columns that \a change, which led to \a shown, is about: what a program does isn't
    /// told.
    void forget(const StateChange &change, const DocumentState &shown);

Q_SIGNALS:
    /// Somebody edits a setting; an editor in its row may be open.
    void settingEdited();

private:
    struct Column
    {
        StateCell cell;
        QString name;
        bool isRead = false;
        QList<std::pair<QPointer<TableHistory>, int>> histories; ///< and how many of their steps were done
    };

    [[nodiscard]] DocumentState::Tab readTab(int index);
    [[nodiscard]] StateCell readColumn(IGridItem &item);
    /// A column that is this cell stays known.
    void forgetUnless(int tab, int column, const StateCell *cell);
    Column &known(IGridItem &item);
    void follow(IGridItem &item, Column *column);
    void noteMoves(Column *column);

    PropertyEditorWindow *m_window;
    QHash<const GridItemEdits *, Column> m_columns;
    QList<TableMove> m_moves;
};

} // namespace orv
