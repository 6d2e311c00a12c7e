#pragma once

#include <orv/widgets/Export.h>

#include <QColor>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QPalette)
QT_FORWARD_DECLARE_CLASS(QRect)

/// The colours that mean something. All others are the palette's. A colour never stands alone: a sign or a
/// word goes with it. GUI thread.
namespace orv::MeaningColors {

/// Of text and signs on the palette's base, with a contrast of at least 4.5 to it.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QColor error(const QPalette &palette);

/// The same of what may be wrong, and of what differs from its default or from the file.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QColor warning(const QPalette &palette);
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QColor changed(const QPalette &palette);

/// Behind text of something wrong; text of the palette keeps its contrast on it.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QColor errorBackground(const QPalette &palette);

/// Of text on the palette's base that may be overlooked, with a contrast of at least 4.5 to it.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QColor quiet(const QPalette &palette);

/// The sign of something wrong, as high as \a room.
ORV_PROPERTY_EDITOR_EXPORT void paintErrorSign(QPainter &painter, const QRect &room, const QColor &color);

} // namespace orv::MeaningColors
