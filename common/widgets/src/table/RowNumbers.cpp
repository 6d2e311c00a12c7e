#include "RowNumbers.h"

#include <orv/table_model/TableModel.h>

#include <QEvent>

namespace orv {

RowNumbers::RowNumbers(QWidget *parent)
    : QHeaderView(Qt::Vertical, parent)
{
    setSectionsClickable(true);
    setHighlightSections(true);
}

QSize RowNumbers::sectionSizeFromContents(int section) const
{
    const auto *const table = qobject_cast<const TableModel *>(model());
    if (!table)
        return QHeaderView::sectionSizeFromContents(section);
    const QString all = QString::number(table->sheet()->rowCount());
    if (m_digits != all.size()) {
        const QString own = table->headerData(section, Qt::Vertical, Qt::DisplayRole).toString();
        QFont bold = font();
        bold.setBold(true); // as that of the current row
        const QFontMetrics metrics(bold);
        m_digits = all.size();
        m_size = QHeaderView::sectionSizeFromContents(section);
        m_size.rwidth() +=
            metrics.horizontalAdvance(QString(m_digits, u'0')) - metrics.horizontalAdvance(own);
    }
    return m_size;
}

void RowNumbers::changeEvent(QEvent *event)
{
    m_digits = 0;
    QHeaderView::changeEvent(event);
}

} // namespace orv
