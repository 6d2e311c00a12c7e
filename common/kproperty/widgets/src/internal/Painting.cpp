#include "Painting.h"

#include "KProperty.h"

#include <QIcon>
#include <QModelIndex>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace Internal::Painting {

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        constexpr double kLinearUpTo = 0.04045;
        return part <= kLinearUpTo ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(color.redF())) + 0.7152 * linear(double(color.greenF())) +
           0.0722 * linear(double(color.blueF()));
}

/// As WCAG defines it, from 1 to 21.
double contrast(const QColor &first, const QColor &second)
{
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

/// That of selections, unless that can't be told from headings or rows, as in the dark.
QColor focusColor(const QPalette &palette)
{
    constexpr double kVisible = 3.0;
    const QColor color = palette.color(QPalette::Highlight);
    const bool isVisible = contrast(color, palette.color(QPalette::Button)) >= kVisible &&
                           contrast(color, palette.color(QPalette::Base)) >= kVisible;
    return isVisible ? color : palette.color(QPalette::ButtonText);
}

} // namespace

namespace {

/// What summaries of objects need: four lines, and one that counts the others.
constexpr int kMaxLinesOfRow = 5;

/// More than the widest screen shows; measuring millions of letters would stop the window.
constexpr int kMostLetters = 4000;

/// The colour of links, where that can be told from the background: dark palettes often keep the blue of
/// light ones.
QColor signColor(const QPalette &palette)
{
    constexpr int kLeastDifference = 80;
    const QColor link = palette.color(QPalette::Link);
    const int difference = qGray(link.rgb()) - qGray(palette.color(QPalette::Base).rgb());
    return std::abs(difference) < kLeastDifference ? palette.color(QPalette::Text) : link;
}

/// \a percent of the first colour, the rest of the second.
QColor mixed(const QColor &first, const QColor &second, int percent)
{
    const auto mix = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
    return QColor(mix(first.red(), second.red()), mix(first.green(), second.green()),
                  mix(first.blue(), second.blue()));
}

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
    return std::clamp(lines, minimum, std::max(minimum, kMaxLinesOfRow));
}

int editorHeight(const QStyleOptionViewItem &option, const KProperty &property)
{
    const int least = std::max(1, property.option("minHeight", 1).toInt());
    const QVariant most = property.option("maxHeight");
    return most.isValid()
               ? std::max(least, most.toInt()) * option.fontMetrics.lineSpacing() + 2 * verticalPadding()
               : option.rect.height();
}

QRect besideRevertButton(const QStyleOptionViewItem &option, const KProperty &property)
{
    const int button = property.isModified() ? revertButtonWidth(option) : 0;
    return QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(0, 0, -button, 0));
}

void placeInFront(QRect *sign, QStyleOptionViewItem *option)
{
    const QRect text = option->rect.adjusted(sign->right() + textMargin() - option->rect.left(), 0, 0, 0);
    *sign = QStyle::visualRect(option->direction, option->rect, *sign);
    option->rect = QStyle::visualRect(option->direction, option->rect, text);
}

void drawSign(QPainter *painter, const QRect &sign, const QStyleOptionViewItem &option, const QIcon &icon)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    icon.paint(painter, sign, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
}

void drawFocus(QPainter *painter, const QRect &rect, const QPalette &palette)
{
    painter->save();
    painter->setPen(QPen(focusColor(palette), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(1, 1, -1, -1));
    painter->restore();
}

void drawBoxFrame(QPainter *painter, const QRect &box, const QPalette &palette)
{
    constexpr int kTextInPercent = 60;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    // A box that can't be ticked is greyed, not hidden.
    painter->setOpacity(1.0);
    painter->setPen(mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), kTextInPercent));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box.adjusted(0, 0, -1, -1));
    painter->restore();
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
    QStringList lines = text.split(QLatin1Char('\n'));
    const int room =
        std::max(1, (rect.height() + option.fontMetrics.leading()) / option.fontMetrics.lineSpacing());
    if (lines.size() > room) {
        lines = lines.first(room);
        lines.last() += QChar(0x2026);
    }
    int top = rect.top();
    if (lines.size() == 1) {
        top += (rect.height() - option.fontMetrics.height()) / 2;
    }
    for (const QString &line : std::as_const(lines)) {
        const QString shown = option.fontMetrics.elidedText(line, option.textElideMode, rect.width());
        painter->drawText(QRect(rect.left(), top, rect.width(), option.fontMetrics.height()),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        top += option.fontMetrics.lineSpacing();
    }
    painter->restore();
}

void makeSelectionLegible(QPalette *palette)
{
    constexpr double kLegible = 4.5;
    const QColor background = palette->color(QPalette::Inactive, QPalette::Highlight);
    if (contrast(palette->color(QPalette::Inactive, QPalette::HighlightedText), background) >= kLegible) {
        return;
    }
    const QColor best =
        contrast(Qt::black, background) > contrast(Qt::white, background) ? Qt::black : Qt::white;
    palette->setColor(QPalette::Inactive, QPalette::HighlightedText, best);
}

QPalette ofSelection(QPalette palette)
{
    palette.setColor(QPalette::Base, palette.color(QPalette::Highlight));
    palette.setColor(QPalette::Text, palette.color(QPalette::HighlightedText));
    palette.setColor(QPalette::Link, palette.color(QPalette::HighlightedText));
    return palette;
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
    const QColor color = signColor(palette);
    painter->setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter->drawPath(arc);
    const QPointF tip = QPainterPath(arc).pointAtPercent(0);
    const qreal head = size * 0.42;
    QPainterPath arrow(tip + QPointF(-head * 0.5, -head * 0.2));
    arrow.lineTo(tip + QPointF(head * 0.2, head * 0.75));
    arrow.lineTo(tip + QPointF(head * 0.85, -head * 0.35));
    arrow.closeSubpath();
    painter->fillPath(arrow, color);
    painter->restore();
}

void drawExpander(QPainter *painter, const QRect &rect, const QPalette &palette, bool expanded)
{
    const qreal size = 4.0;
    const qreal onward = painter->layoutDirection() == Qt::RightToLeft ? -size / 2 : size / 2;
    const QPointF center = QRectF(rect).center();
    QPainterPath path;
    if (expanded) {
        path.moveTo(center + QPointF(-size, -size / 2));
        path.lineTo(center + QPointF(0, size / 2));
        path.lineTo(center + QPointF(size, -size / 2));
    } else {
        path.moveTo(center + QPointF(-onward, -size));
        path.lineTo(center + QPointF(onward, 0));
        path.lineTo(center + QPointF(-onward, size));
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
    QStyleOptionViewItem text(option);
    text.rect = row.adjusted(textMargin(), 0, -textMargin(), 0);
    QRect expander(text.rect.left(), row.top(), 16 - textMargin(), row.height());
    placeInFront(&expander, &text);
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (!icon.isNull()) {
        const int size = option.fontMetrics.height();
        QRect place(text.rect.left(), text.rect.center().y() - size / 2, size, size);
        placeInFront(&place, &text);
        icon.paint(painter, place);
    }
    const QString caption = QFontMetrics(font).elidedText(index.data(Qt::DisplayRole).toString(),
                                                          Qt::ElideRight, text.rect.width());
    painter->drawText(text.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, caption);
    painter->restore();
}

} // namespace Internal::Painting
