#pragma once

#include <QByteArray>
#include <QColor>
#include <QIconEngine>

QT_FORWARD_DECLARE_CLASS(QPalette)

namespace orv {

/// Paints a drawing in the colours that the palette has when it is painted.
class PaletteIconEngine : public QIconEngine
{
public:
    using Color = QColor (*)(const QPalette &palette);

    /// A null \a color is that of the text.
    PaletteIconEngine(QByteArray drawing, Color color);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override;

private:
    [[nodiscard]] QColor colorOf(QIcon::Mode mode) const;

    QByteArray m_drawing;
    Color m_color;
};

} // namespace orv
