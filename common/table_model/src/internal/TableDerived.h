#pragma once

#include <orv/table_model/TableColumn.h>

#include <QHash>
#include <QList>
#include <QStringList>
#include <QStringView>

#include <functional>

namespace orv {

/// The texts of cells that follow from the others of their row, made when somebody first asks. Valid until
/// the row is forgotten.
class TableDerived
{
public:
    explicit TableDerived(const QList<TableColumn> &columns);

    [[nodiscard]] bool isEmpty() const { return m_columns.isEmpty(); }
    [[nodiscard]] bool has(int column) const { return !m_columns.isEmpty() && m_columns.contains(column); }
    [[nodiscard]] QString derive(int column, const QStringList &texts) const;

    /// Null where nobody has asked yet.
    [[nodiscard]] const QString *find(quint32 row, int column) const;
    QStringView keep(quint32 row, int column, QString text);

    void forget(quint32 row)
    {
        if (!m_texts.isEmpty())
            m_texts.remove(row);
    }
    void forgetAll() { m_texts.clear(); }

private:
    QList<int> m_columns;
    QList<std::function<QString(const QStringList &texts)>> m_functions;
    /// A hash moves the texts, but not what they point to.
    QHash<quint32, QStringList> m_texts;
};

} // namespace orv
