#include "orv/widgets/SelectionLook.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStyleOptionViewItem>

#include <algorithm>
#include <cmath>

namespace orv::SelectionLook {

namespace {

double luminanceOf(const QColor &color)
{
    const auto linear = [](double part) {
        constexpr double kLinearUpTo = 0.04045;
        return part <= kLinearUpTo ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(color.redF())) + 0.7152 * linear(double(color.greenF())) +
           0.0722 * linear(double(color.blueF()));
}

/// As WCAG defines it, from 1 to 21.
double contrastOf(const QColor &first, const QColor &second)
{
    const auto [dark, light] = std::minmax({luminanceOf(first), luminanceOf(second)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

void apply(const QAbstractItemView &view, QStyleOptionViewItem *option)
{
    const QWidget *const focus = QApplication::focusWidget();
    if (focus != &view && !view.isAncestorOf(focus))
        option->state &= ~QStyle::State_Active;
    constexpr double kLegible = 4.5;
    const QColor background = option->palette.color(QPalette::Inactive, QPalette::Highlight);
    const QColor text = option->palette.color(QPalette::Inactive, QPalette::HighlightedText);
    if (contrastOf(text, background) >= kLegible)
        return;
    const bool isBlackBetter = contrastOf(Qt::black, background) > contrastOf(Qt::white, background);
    option->palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                             isBlackBetter ? Qt::black : Qt::white);
}

} // namespace orv::SelectionLook
