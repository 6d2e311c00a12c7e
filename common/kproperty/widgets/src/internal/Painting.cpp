#include "Painting.h"

#include "KProperty.h"

#include <QIcon>
#include <QModelIndex>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Internal::Painting {

namespace {

/// Without maxHeight a long text takes at most so many lines of the tree.
constexpr int kDefaultMaxLines = 6;

} // namespace

int verticalPadding()
{
    return 4;
}

int textMargin()
{
    return 4;
}

int revertButtonWidth(const QStyleOptionViewItem &option)
{
    return option.fontMetrics.height() + 2 * verticalPadding();
}

int linesForText(const KProperty &property, const QString &text)
{
    const int lines = 1 + static_cast<int>(text.count(QLatin1Char('\n')));
    const int minimum = std::max(1, property.option("minHeight", 1).toInt());
    const int maximum = std::max(minimum, property.option("maxHeight", kDefaultMaxLines).toInt());
    return std::clamp(lines, minimum, maximum);
}

void drawText(QPainter *painter, const QStyleOptionViewItem &option, const QString &text)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool active = option.state.testFlag(QStyle::State_Active);
    const QPalette::ColorGroup group = !option.state.testFlag(QStyle::State_Enabled) ? QPalette::Disabled
                                       : active                                      ? QPalette::Active
                                                                                     : QPalette::Inactive;
    const QRect rect =
        option.rect.adjusted(textMargin(), verticalPadding(), -textMargin(), -verticalPadding());
    painter->save();
    painter->setFont(option.font);
    painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QStringList lines = text.split(QLatin1Char('\n'));
    int top = rect.top();
    if (lines.size() == 1) {
        top += (rect.height() - option.fontMetrics.height()) / 2;
    }
    for (const QString &line : lines) {
        if (top > rect.bottom()) {
            break;
        }
        const QString shown = option.fontMetrics.elidedText(line, Qt::ElideRight, rect.width());
        painter->drawText(QRect(rect.left(), top, rect.width(), option.fontMetrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        top += option.fontMetrics.lineSpacing();
    }
    painter->restore();
}

void drawRevertButton(QPainter *painter, const QRect &rect, const QPalette &palette)
{
    // An arrow that turns back, drawn so that it exists in every icon theme and size.
    const qreal size = std::min(rect.width(), rect.height()) * 0.44;
    const QPointF center = QRectF(rect).center();
    const QRectF circle(center.x() - size / 2, center.y() - size / 2, size, size);
    QPainterPath arc;
    arc.arcMoveTo(circle, 150);
    arc.arcTo(circle, 150, -270);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(palette.color(QPalette::Link), 1.6, Qt::SolidLine, Qt::RoundCap));
    painter->drawPath(arc);
    const QPointF tip = QPainterPath(arc).pointAtPercent(0);
    const qreal head = size * 0.42;
    QPainterPath arrow(tip + QPointF(-head * 0.5, -head * 0.2));
    arrow.lineTo(tip + QPointF(head * 0.2, head * 0.75));
    arrow.lineTo(tip + QPointF(head * 0.85, -head * 0.35));
    arrow.closeSubpath();
    painter->fillPath(arrow, palette.color(QPalette::Link));
    painter->restore();
}

void drawExpander(QPainter *painter, const QRect &rect, const QPalette &palette, bool expanded)
{
    const qreal size = 4.0;
    const QPointF center = QRectF(rect).center();
    QPainterPath path;
    if (expanded) {
        path.moveTo(center + QPointF(-size, -size / 2));
        path.lineTo(center + QPointF(0, size / 2));
        path.lineTo(center + QPointF(size, -size / 2));
    } else {
        path.moveTo(center + QPointF(-size / 2, -size));
        path.lineTo(center + QPointF(size / 2, 0));
        path.lineTo(center + QPointF(-size / 2, size));
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(palette.color(QPalette::Text), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(path);
    painter->restore();
}

void drawGroupRow(QPainter *painter, const QStyleOptionViewItem &option, const QRect &row,
                  const QModelIndex &index)
{
    painter->save();
    painter->fillRect(row, option.palette.color(QPalette::Button));
    QFont font = option.font;
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(option.palette.color(QPalette::ButtonText));
    QRect text = row.adjusted(textMargin() + 16, 0, -textMargin(), 0);
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (!icon.isNull()) {
        const int size = option.fontMetrics.height();
        icon.paint(painter, QRect(text.left(), text.center().y() - size / 2, size, size));
        text.setLeft(text.left() + size + textMargin());
    }
    const QString caption =
        QFontMetrics(font).elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight, text.width());
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, caption);
    painter->restore();
}

} // namespace Internal::Painting
