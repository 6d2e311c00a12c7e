#include "PaletteIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace orv {

PaletteIconEngine::PaletteIconEngine(QByteArray drawing, Color color)
    : m_drawing(std::move(drawing))
    , m_color(color)
{}

QColor PaletteIconEngine::colorOf(QIcon::Mode mode) const
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    if (mode == QIcon::Selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    return m_color ? m_color(palette) : palette.color(QPalette::Active, QPalette::WindowText);
}

void PaletteIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatio() : 1;
    QPixmap picture = pixmap(rect.size() * ratio, mode, state);
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, picture);
}

QPixmap PaletteIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/)
{
    const QByteArray color = colorOf(mode).name().toLatin1();
    const QString key = QStringLiteral("orv-icon %1 %2x%3 %4")
                            .arg(qHash(m_drawing))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(QLatin1String(color));
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer renderer(QByteArray(m_drawing).replace("#000000", color));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter);
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

QIconEngine *PaletteIconEngine::clone() const
{
    return new PaletteIconEngine(m_drawing, m_color);
}

} // namespace orv
