#include "GuiValues.h"

#include <QBuffer>
#include <QColor>
#include <QCursor>
#include <QFont>
#include <QGuiApplication>
#include <QPixmap>

#include <algorithm>

namespace {

using orv::GuiValues;

QVariant makeFont(const GuiValues::Font &parts)
{
    QFont font;
    if (parts.isInPixels)
        font.setPixelSize(std::max(1, int(parts.size)));
    else
        font.setPointSizeF(parts.size);
    font.setFamily(parts.family);
    font.setBold(parts.isBold);
    font.setItalic(parts.isItalic);
    font.setStrikeOut(parts.isStrikeOut);
    font.setUnderline(parts.isUnderline);
    return font;
}

GuiValues::Font fontOf(const QVariant &value)
{
    const auto font = value.value<QFont>();
    const bool isInPixels = font.pixelSize() > 0;
    return {font.family(),   isInPixels ? font.pixelSize() : font.pointSizeF(),
            isInPixels,      font.bold(),
            font.italic(),   font.strikeOut(),
            font.underline()};
}

QVariant makeColor(const QString &name)
{
    const QColor color(name);
    return color.isValid() ? QVariant(color) : QVariant();
}

bool hasScreen()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

QVariant makePixmap(const QByteArray &bytes)
{
    QPixmap pixmap;
    return hasScreen() && pixmap.loadFromData(bytes) ? QVariant(pixmap) : QVariant();
}

QVariant makeCursor(int shape)
{
    return hasScreen() ? QVariant(QCursor(Qt::CursorShape(shape))) : QVariant();
}

QByteArray pngOf(const QVariant &pixmap)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !pixmap.value<QPixmap>().save(&buffer, "PNG"))
        return {};
    return bytes;
}

} // namespace

extern "C" Q_DECL_EXPORT const GuiValues *orvGuiValues()
{
    static constexpr GuiValues values{makeFont, fontOf, makeColor, makePixmap, makeCursor, pngOf};
    return &values;
}
