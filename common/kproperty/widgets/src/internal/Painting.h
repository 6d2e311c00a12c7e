#pragma once

#include <QString>
#include <QStyleOptionViewItem>

class KProperty;
class QPainter;

namespace Internal::Painting {

[[nodiscard]] int verticalPadding();
[[nodiscard]] int textMargin();
/// Width of the square at the end of a cell that takes a value back.
[[nodiscard]] int revertButtonWidth(const QStyleOptionViewItem &option);
/// How many lines a cell shows for a text, within the options "minHeight" and "maxHeight".
[[nodiscard]] int linesForText(const KProperty &property, const QString &text);

/// Text of one or several lines, cut at the right with an ellipsis.
void drawText(QPainter *painter, const QStyleOptionViewItem &option, const QString &text);
void drawRevertButton(QPainter *painter, const QRect &rect, const QPalette &palette);
void drawGroupRow(QPainter *painter, const QStyleOptionViewItem &option, const QRect &row,
                  const QModelIndex &index);
void drawExpander(QPainter *painter, const QRect &rect, const QPalette &palette, bool expanded);

} // namespace Internal::Painting
