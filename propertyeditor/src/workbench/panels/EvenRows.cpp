#include "EvenRows.h"

#include <QAbstractItemView>
#include <QStyle>

#include <algorithm>

namespace orv {

EvenRows::EvenRows(QAbstractItemView *view)
    : QStyledItemDelegate(view)
{
    view->setItemDelegate(this);
}

QSize EvenRows::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QStyle *style = option.widget->style();
    const int sign = std::max(option.decorationSize.height(),
                              style->pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameVMargin, &option, option.widget);
    const int height = std::max(option.fontMetrics.height(), sign) + 2 * margin;
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, height});
}

} // namespace orv
