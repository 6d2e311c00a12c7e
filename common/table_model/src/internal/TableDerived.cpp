#include "TableDerived.h"

namespace orv {

TableDerived::TableDerived(const QList<TableColumn> &columns)
{
    for (int column = 0; column < columns.size(); ++column) {
        if (!columns[column].derive)
            continue;
        m_columns.append(column);
        m_functions.append(columns[column].derive);
    }
}

QString TableDerived::derive(int column, const QStringList &texts) const
{
    return m_functions[m_columns.indexOf(column)](texts);
}

const QString *TableDerived::find(quint32 row, int column) const
{
    const auto texts = m_texts.constFind(row);
    if (texts == m_texts.cend())
        return nullptr;
    const QString &text = (*texts)[m_columns.indexOf(column)];
    return text.isNull() ? nullptr : &text;
}

QStringView TableDerived::keep(quint32 row, int column, QString text)
{
    QStringList &texts = m_texts[row];
    if (texts.isEmpty())
        texts.resize(m_columns.size());
    QString &kept = texts[m_columns.indexOf(column)];
    // Null says that nobody has asked.
    kept = text.isNull() ? QStringLiteral("") : std::move(text);
    return kept;
}

} // namespace orv
