#include "TableChecks.h"

#include <QCoreApplication>

#include <algorithm>

namespace orv {

namespace {

struct TableChecksTr
{
    Q_DECLARE_TR_FUNCTIONS(TableChecks)
};

} // namespace

TableChecks::TableChecks(const QList<TableColumn> &columns, const TableStore &store, const TableOrder &order)
    : m_columns(columns)
    , m_store(store)
    , m_order(order)
{}

void TableChecks::setRules(QList<TableRowRule> rules)
{
    m_rules = std::move(rules);
    forgetCounts();
}

void TableChecks::forgetCounts()
{
    m_counts.forgetAll(m_order.size());
}

QList<QStringView> TableChecks::texts(quint32 row) const
{
    QList<QStringView> texts;
    texts.reserve(m_columns.size());
    for (int column = 0; column < m_columns.size(); ++column)
        texts.append(m_store.text(row, column));
    return texts;
}

std::vector<TableUnique> &TableChecks::uniques() const
{
    if (m_hasUniques)
        return m_uniques;
    m_hasUniques = true;
    for (int column = 0; column < m_columns.size(); ++column) {
        if (!m_columns[column].isUnique)
            continue;
        TableUnique &unique = m_uniques.emplace_back(m_store, column, m_columns[column].isNumeric());
        for (const quint32 row : m_order.ids())
            unique.enter(row);
    }
    return m_uniques;
}

QString TableChecks::ruleProblem(const QList<QStringView> &texts, int column) const
{
    for (const TableRowRule &rule : m_rules) {
        for (const TableRowProblem &problem : rule(texts)) {
            if (problem.column == column && !problem.reason.isEmpty())
                return problem.reason;
        }
    }
    return {};
}

QString TableChecks::uniqueProblem(quint32 row, int column, QStringView text) const
{
    if (!m_columns[column].isUnique)
        return {};
    const std::vector<TableUnique> &all = uniques();
    const auto unique = std::find_if(all.cbegin(), all.cend(),
                                     [column](const TableUnique &u) { return u.column() == column; });
    const quint32 other = unique->otherRow(row, text);
    return other == TableUnique::kNone
               ? QString()
               : TableChecksTr::tr("Must not repeat; row %1 holds the same.").arg(m_order.placeOf(other) + 1);
}

QString TableChecks::problem(quint32 row, int column, QStringView text) const
{
    QString ofColumn = m_columns[column].problem(text);
    if (!ofColumn.isEmpty())
        return ofColumn;
    if (!m_rules.isEmpty()) {
        QList<QStringView> all = texts(row);
        all[column] = text;
        if (QString ofRow = ruleProblem(all, column); !ofRow.isEmpty())
            return ofRow;
    }
    return uniqueProblem(row, column, text);
}

/// Which cells of a row have a problem, each rule asked once.
std::vector<bool> TableChecks::marks(quint32 row) const
{
    const QList<QStringView> all = texts(row);
    std::vector<bool> marks(size_t(m_columns.size()));
    for (int column = 0; column < m_columns.size(); ++column) {
        marks[size_t(column)] = !m_columns[column].problem(all[column]).isEmpty() ||
                                !uniqueProblem(row, column, all[column]).isEmpty();
    }
    for (const TableRowRule &rule : m_rules) {
        for (const TableRowProblem &problem : rule(all)) {
            if (problem.column >= 0 && problem.column < m_columns.size() && !problem.reason.isEmpty())
                marks[size_t(problem.column)] = true;
        }
    }
    return marks;
}

bool TableChecks::hasProblem(quint32 row, const QList<int> &columns) const
{
    const std::vector<bool> marked = marks(row);
    return std::any_of(columns.cbegin(), columns.cend(), [&](int column) { return marked[size_t(column)]; });
}

void TableChecks::count(quint32 row)
{
    const std::vector<bool> marked = marks(row);
    m_counts.setCount(row, int(std::count(marked.cbegin(), marked.cend(), true)));
}

void TableChecks::clearUniques()
{
    m_uniques.clear();
    m_hasUniques = false;
}

void TableChecks::clear()
{
    m_counts = {};
    clearUniques();
    m_touched.clear();
}

void TableChecks::addedToStore()
{
    m_counts.setRowCount(m_store.rowCount());
}

void TableChecks::touch(quint32 row)
{
    if (row == TableUnique::kNone)
        return;
    m_counts.forget(row);
    m_touched.append(row);
}

void TableChecks::enter(quint32 row)
{
    m_counts.enter(row);
    for (TableUnique &unique : m_uniques)
        touch(unique.enter(row));
}

void TableChecks::leave(quint32 row)
{
    // Rows that hold the same may come and go until it is back.
    if (!m_uniques.empty())
        m_counts.forget(row);
    m_counts.leave(row);
    for (TableUnique &unique : m_uniques)
        touch(unique.leave(row));
}

void TableChecks::beforeChange(quint32 row, int column)
{
    for (TableUnique &unique : m_uniques) {
        if (unique.column() == column)
            touch(unique.leave(row));
    }
}

void TableChecks::afterChange(quint32 row, int column)
{
    m_counts.forget(row);
    for (TableUnique &unique : m_uniques) {
        if (unique.column() == column)
            touch(unique.enter(row));
    }
    if (!m_rules.isEmpty())
        m_touched.append(row);
}

QList<quint32> TableChecks::takeTouched()
{
    return std::exchange(m_touched, {});
}

} // namespace orv
