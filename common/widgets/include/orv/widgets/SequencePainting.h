#pragma once

#include <orv/widgets/Export.h>

#include <QStringView>

QT_FORWARD_DECLARE_CLASS(QColor)
QT_FORWARD_DECLARE_CLASS(QFont)
QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QRect)

/// Sequences in one line of a cell: blocks of ten in a fixed-width font, behind each the position of its last
/// residue in small digits. GUI thread.
namespace orv::SequencePainting {

/// The fixed-width font in which sequences stand beside text in \a like.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QFont fontLike(const QFont &like);

/// How much room the beginning of a sequence takes, up to some 40 blocks.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT int width(QStringView sequence, const QFont &font);

/// What doesn't fit into \a place ends with an ellipsis.
ORV_PROPERTY_EDITOR_EXPORT void paint(QPainter &painter, const QRect &place, QStringView sequence,
                                      const QFont &font, const QColor &color);

} // namespace orv::SequencePainting
