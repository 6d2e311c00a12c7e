#include "RowNumbers.h"

#include <orv/table_model/TableModel.h>
#include <orv/widgets/Icons.h>

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QStyle>

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
    const bool hasRemarks = !table->rowRemarks().isEmpty();
    if (m_digits != all.size() || m_hasRemarks != hasRemarks) {
        const QString own = table->headerData(section, Qt::Vertical, Qt::DisplayRole).toString();
        QFont bold = font();
        bold.setBold(true); // as that of the current row
        const QFontMetrics metrics(bold);
        m_digits = all.size();
        m_hasRemarks = hasRemarks;
        m_size = QHeaderView::sectionSizeFromContents(section);
        m_size.rwidth() +=
            metrics.horizontalAdvance(QString(m_digits, u'0')) - metrics.horizontalAdvance(own);
        if (m_hasRemarks)
            m_size.rwidth() += metrics.height() + signMargin();
    }
    return m_size;
}

int RowNumbers::signMargin() const
{
    return style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
}

void RowNumbers::paintSection(QPainter *painter, const QRect &section, int logicalIndex) const
{
    painter->save();
    QHeaderView::paintSection(painter, section, logicalIndex);
    painter->restore(); // it leaves a clip behind
    if (!model() || model()->headerData(logicalIndex, Qt::Vertical, TableModel::RemarkRole).isNull())
        return;
    const int size = fontMetrics().height();
    const QRect sign(section.left() + signMargin(), section.center().y() - size / 2, size, size);
    const bool isError = model()->headerData(logicalIndex, Qt::Vertical, TableModel::IsErrorRole).toBool();
    Icons::icon(isError ? IconName::Error : IconName::Warning)
        .paint(painter, QStyle::visualRect(layoutDirection(), section, sign));
}

void RowNumbers::changeEvent(QEvent *event)
{
    m_digits = 0;
    QHeaderView::changeEvent(event);
}

} // namespace orv
