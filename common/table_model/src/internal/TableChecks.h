#pragma once

#include "TableOrder.h"
#include "TableProblems.h"
#include "TableStore.h"
#include "TableUnique.h"

#include <orv/table_model/TableColumn.h>
#include <orv/table_model/TableRowRule.h>

#include <vector>

namespace orv {

/// What is wrong with the cells of a sheet: by the rules of their columns, by rules across their row, and
/// because a value stands there twice. Hears of every row that comes, goes or changes.
class TableChecks
{
public:
    /// All three outlive this.
    TableChecks(const QList<TableColumn> &columns, const TableStore &store, const TableOrder &order);

    void setRules(QList<TableRowRule> rules);
    [[nodiscard]] const QList<TableRowRule> &rules() const { return m_rules; }

    /// Why \a text may not stand in this cell of a row, or an empty text.
    [[nodiscard]] QString problem(quint32 row, int column, QStringView text) const;
    [[nodiscard]] bool hasProblem(quint32 row, const QList<int> &columns) const;

    [[nodiscard]] const TableProblems &counts() const { return m_counts; }
    /// Looks at one row anew.
    void count(quint32 row);
    /// All rows are to be looked at anew.
    void forgetCounts();

    /// Texts have changed that nobody edited.
    void clearUniques();
    /// The store was emptied; its rows come anew.
    void clear();
    /// The store has new rows, which aren't in the table yet.
    void addedToStore();
    void enter(quint32 row);
    void leave(quint32 row);
    void beforeChange(quint32 row, int column);
    void afterChange(quint32 row, int column);

    /// The rows whose problems may have changed since the last call, other than in cells that changed.
    [[nodiscard]] QList<quint32> takeTouched();

private:
    [[nodiscard]] QList<QStringView> texts(quint32 row) const;
    [[nodiscard]] std::vector<bool> marks(quint32 row) const;
    [[nodiscard]] QString ruleProblem(const QList<QStringView> &texts, int column) const;
    [[nodiscard]] QString uniqueProblem(quint32 row, int column, QStringView text) const;
    [[nodiscard]] std::vector<TableUnique> &uniques() const;
    void touch(quint32 row);

    const QList<TableColumn> &m_columns;
    const TableStore &m_store;
    const TableOrder &m_order;
    QList<TableRowRule> m_rules;
    TableProblems m_counts;
    mutable std::vector<TableUnique> m_uniques; ///< made when a problem is asked for
    mutable bool m_hasUniques = false;
    QList<quint32> m_touched;
};

} // namespace orv
