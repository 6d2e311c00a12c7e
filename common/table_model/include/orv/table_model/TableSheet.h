#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table_model/TableColumn.h>
#include <orv/table_model/TableHistory.h>
#include <orv/table_model/TableRowRule.h>

#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace orv {

/// A text for a cell. The place may lie behind the last row: the rows up to it are added.
struct TableCellText
{
    int row = 0;
    int column = 0;
    QStringView text; ///< in the kept form; need not outlive the call that takes it
};

/// The rows of a table that people edit, with its history. Cells hold texts in the form that
/// TableColumn::kept() makes; a text that isn't allowed may stand in a cell, which then has a problem. Every
/// function that edits is one step of the history, and none where nothing changes. GUI thread.
class ORV_WORKFLOW_EXPORT TableSheet : public QObject
{
    Q_OBJECT

public:
    explicit TableSheet(QList<TableColumn> columns, QObject *parent = nullptr);
    ~TableSheet() override;

    [[nodiscard]] const QList<TableColumn> &columns() const;
    [[nodiscard]] int columnCount() const;
    /// -1 for a name that no column has.
    [[nodiscard]] int columnOf(const QString &name) const;

    /// Rules across the cells of a row; none at first.
    [[nodiscard]] const QList<TableRowRule> &rowRules() const;
    void setRowRules(QList<TableRowRule> rules);
    /// What the rules look at beside the table has changed: everything is checked anew.
    void checkAnew();

    [[nodiscard]] int rowCount() const;
    /// Valid until the next edit.
    [[nodiscard]] QStringView text(int row, int column) const;
    [[nodiscard]] QStringList texts(int row) const;
    [[nodiscard]] QList<QStringList> allTexts() const;
    /// Why the text of a cell may not stand there, or an empty text: by the rules of its column, of its row,
    /// or because another row holds the same.
    [[nodiscard]] QString problem(int row, int column) const;
    [[nodiscard]] QString problemOf(quint32 id, int column) const;
    /// What it would be if the cell held \a kept.
    [[nodiscard]] QString problemOf(quint32 id, int column, QStringView kept) const;
    [[nodiscard]] bool hasProblem(quint32 id, const QList<int> &columns) const;

    /// A number that stays with a row for the life of the sheet, wherever it is moved; also readable while
    /// the row is removed.
    [[nodiscard]] quint32 rowId(int row) const;
    [[nodiscard]] const QList<quint32> &rowIds() const;
    /// -1 for a row that isn't in the table.
    [[nodiscard]] int rowOf(quint32 id) const;
    [[nodiscard]] QStringView textOf(quint32 id, int column) const;

    /// Undo and redo. Its steps name what was done.
    [[nodiscard]] TableHistory *history() const;

    /// Replaces everything, and forgets the history. Rows may be ragged: what they lack is empty, and what
    /// they have too much is left out. InvalidContent for more text than a table holds; the old rows stay.
    [[nodiscard]] Error load(const QList<QStringList> &rows);
    /// Gives the texts of a row; \a texts has an empty one for each column.
    using RowSource = std::function<void(int row, QStringList *texts)>;
    /// The same for so many rows, none of which is held twice meanwhile.
    [[nodiscard]] Error load(int rowCount, const RowSource &source);

    /// InvalidContent where so many UTF-16 units more can't be held: for texts that aren't made then.
    [[nodiscard]] Error checkRoom(qsizetype units) const;

    /// InvalidContent for more text than a table holds; nothing changes then.
    [[nodiscard]] Error setCells(const QList<TableCellText> &cells, const QString &step);
    [[nodiscard]] Error setText(int row, int column, QStringView kept);
    /// Rows with the columns' default texts before the row \a at.
    void insertRows(int at, int count);
    /// Rows that may be ragged, as load() takes them, before the row \a at.
    [[nodiscard]] Error insertRows(int at, const QList<QStringList> &rows, const QString &step);
    /// Each copy stands below the last of \a rows.
    void duplicateRows(const QList<int> &rows);
    void removeRows(const QList<int> &rows);
    /// \a rows, in the order that they have, come to stand before the row \a before, which counts in the
    /// table as it is.
    void moveRows(const QList<int> &rows, int before);
    /// \a ids are those of all rows.
    void setOrder(const QList<quint32> &ids);

    /// What texts, rows and history hold, in bytes; neither room to spare nor what is derived counts.
    [[nodiscard]] qsizetype heldBytes() const;

    /// How many cells have a problem among the rows that were looked at, and whether all were. Edits change
    /// the number at once or leave rows to be looked at.
    [[nodiscard]] int problemCount() const;
    [[nodiscard]] bool areProblemsCounted() const;
    /// What derived texts and rules of columns go by, beside their row, has changed.
    void deriveAnew();
    /// Looks at so many rows at most, so that a window stays alive; emits problemsCounted() at the last one.
    void countProblems(int rows);

Q_SIGNALS:
    void cellsChanged(const QList<quint32> &ids, int firstColumn, int lastColumn);
    /// \a places are ascending and count with these rows in the table.
    void rowsInserted(const QList<int> &places);
    void rowsRemoved(const QList<quint32> &ids);
    void rowsReordered();
    /// Cells in these rows may have other problems than before, though they hold the same. Behind the signal
    /// of the edit; rows that aren't in the table any more may be among them.
    void problemsChanged(const QList<quint32> &ids);
    void loaded();
    void derivedAnew();
    void problemsCounted();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
