#include "orv/widgets/MeaningColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace orv::MeaningColors {

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightnessF() < 0.5F;
}

} // namespace

QColor error(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xFF, 0x9A, 0x90) : QColor(0xB0, 0x1E, 0x1A);
}

QColor warning(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xFF, 0xC8, 0x70) : QColor(0x85, 0x53, 0x00);
}

QColor changed(const QPalette &palette)
{
    return isDark(palette) ? QColor(0x8F, 0xBE, 0xFF) : QColor(0x1D, 0x5B, 0xB8);
}

QColor errorBackground(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor sign = error(palette);
    const auto mixed = [](int of, int with) { return (of * 7 + with) / 8; };
    return {mixed(base.red(), sign.red()), mixed(base.green(), sign.green()),
            mixed(base.blue(), sign.blue())};
}

QColor quiet(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mixed = [](int of, int with) { return (of + with * 2) / 3; };
    return {mixed(base.red(), text.red()), mixed(base.green(), text.green()),
            mixed(base.blue(), text.blue())};
}

void paintErrorSign(QPainter &painter, const QRect &room, const QColor &color)
{
    const qreal size = std::min(room.width(), room.height());
    const QRectF square(room.center().x() - size / 2 + 0.5, room.center().y() - size / 2 + 0.5, size, size);
    QPainterPath sign;
    sign.moveTo(square.center().x(), square.top() + size * 0.06);
    sign.lineTo(square.right() - size * 0.02, square.bottom() - size * 0.08);
    sign.lineTo(square.left() + size * 0.02, square.bottom() - size * 0.08);
    sign.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, size * 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(sign);
    painter.setPen(QPen(color, size * 0.12, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(square.center().x(), square.top() + size * 0.38),
                     QPointF(square.center().x(), square.top() + size * 0.6));
    painter.drawPoint(QPointF(square.center().x(), square.top() + size * 0.77));
    painter.restore();
}

} // namespace orv::MeaningColors
