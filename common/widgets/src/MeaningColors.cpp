#include "orv/widgets/MeaningColors.h"

#include <QPainter>
#include <QPalette>
#include <QPolygonF>

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
    // As the icon of errors: a square without its corners, and a cross in it.
    const QRectF edge = square.adjusted(size / 8, size / 8, -size / 8, -size / 8);
    const qreal corner = edge.width() * 0.3;
    QPolygonF sign;
    sign << QPointF(edge.left() + corner, edge.top()) << QPointF(edge.right() - corner, edge.top())
         << QPointF(edge.right(), edge.top() + corner) << QPointF(edge.right(), edge.bottom() - corner)
         << QPointF(edge.right() - corner, edge.bottom()) << QPointF(edge.left() + corner, edge.bottom())
         << QPointF(edge.left(), edge.bottom() - corner) << QPointF(edge.left(), edge.top() + corner);
    const QRectF cross = square.adjusted(size * 3 / 8, size * 3 / 8, -size * 3 / 8, -size * 3 / 8);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, size * 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(sign);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
    painter.restore();
}

} // namespace orv::MeaningColors
