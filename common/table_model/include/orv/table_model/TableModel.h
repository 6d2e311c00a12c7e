#pragma once

#include <orv/core/Export.h>
#include <orv/table_model/TableFilter.h>
#include <orv/table_model/TableSheet.h>

#include <QAbstractTableModel>
#include <QHash>
#include <QLocale>

#include <functional>
#include <memory>

namespace orv {

/// What somebody remarks on a row.
struct TableRowRemark
{
    QString text;
    bool isError = true; ///< else a warning

    bool operator==(const TableRowRemark &other) const = default;
};

/// What a view sees of a TableSheet: its rows in an order of their own and through a filter, its texts as
/// people of a locale read them. Sorting and filtering change nothing in the sheet. A row that was edited or
/// added stays where it is until somebody sorts or filters again: nothing jumps while people type.
class ORV_WORKFLOW_EXPORT TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role
    {
        ProblemRole = Qt::UserRole, ///< why the cell isn't allowed, or an empty text
        KindRole,                   ///< int(TableColumnKind)
        KeptRole,                   ///< the text as the sheet keeps it
        NoteRole,                   ///< what is known of the cell beyond its text, in a few words
        RemarkRole,                 ///< of vertical headers: what somebody remarks on the row
        IsErrorRole,                ///< of vertical headers: whether the remark tells an error
    };

    /// Where \a sheet goes before the model, an empty one with its columns takes its place.
    explicit TableModel(TableSheet *sheet, QObject *parent = nullptr);
    ~TableModel() override;

    [[nodiscard]] TableSheet *sheet() const;

    [[nodiscard]] QLocale locale() const;
    void setLocale(const QLocale &locale);
    [[nodiscard]] NumberText::DecimalSign decimalSign() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Takes a text as people type it.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// By the numbers of a numeric column, else by text with the numbers in it ("S2" before "S10"); what is
    /// empty stands last. The order of the sheet for a \a column of -1.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    [[nodiscard]] int sortColumn() const;

    /// Puts the rows of the sheet into the order of the sorted column, in one step of its history.
    void keepOrder();

    /// The nearest cell with a problem behind \a from (before it for a \a step of -1), and from the other end
    /// on; an invalid index for none. \a columns in the order in which they are shown.
    [[nodiscard]] QModelIndex nextProblem(const QModelIndex &from, const QList<int> &columns, int step) const;

    [[nodiscard]] TableFilter filter() const;
    void setFilter(const TableFilter &filter);
    /// The filter looks into all columns but these.
    void setHiddenColumns(const QList<int> &columns);

    /// What is known of a cell beyond its text, such as the format of a file, shown quietly beside it; an
    /// empty text for nothing. Asked for what is seen, so it must be quick; after a change of what is known
    /// somebody calls tellNotesChanged().
    using Notes = std::function<QString(quint32 rowId, int column)>;
    void setNotes(Notes notes);
    void tellNotesChanged();

    /// Sentences at rows, by the number that stays with a row, for a sign beside it; all before are taken
    /// away.
    void setRowRemarks(const QHash<quint32, TableRowRemark> &remarks);
    [[nodiscard]] const QHash<quint32, TableRowRemark> &rowRemarks() const;
    /// Of the remarks those on rows that the table has: a row that was removed may come back with its own.
    [[nodiscard]] int remarkedRowCount() const;

    /// Whether each row stands where it stands in the sheet, so that it can be moved.
    [[nodiscard]] bool isInSheetOrder() const;

    [[nodiscard]] int sheetRow(int row) const;
    /// -1 for a row that isn't shown.
    [[nodiscard]] int rowOfSheetRow(int sheetRow) const;
    [[nodiscard]] quint32 rowId(int row) const;
    /// -1 for a row that isn't shown.
    [[nodiscard]] int rowOfId(quint32 id) const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
