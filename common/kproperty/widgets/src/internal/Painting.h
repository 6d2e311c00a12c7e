#pragma once

#include <QString>
#include <QStyleOptionViewItem>

class KProperty;
class QIcon;
class QPainter;

namespace Internal::Painting {

[[nodiscard]] int verticalPadding();
[[nodiscard]] int textMargin();
/// Width of the square at the end of a cell that takes a value back.
[[nodiscard]] int revertButtonWidth(const QStyleOptionViewItem &option);
/// The part of a value's cell that is left beside the button for going back, if that is shown.
[[nodiscard]] QRect besideRevertButton(const QStyleOptionViewItem &option, const KProperty &property);
/// How many lines a row has for a text: as many as the text, at least "minHeight" for its editor, at most
/// five.
[[nodiscard]] int linesForText(const KProperty &property, const QString &text);
/// The height up to which an editor of several lines may grow: that of "maxHeight" lines.
[[nodiscard]] int editorHeight(const QStyleOptionViewItem &option, const KProperty &property);
/// Puts a sign in front of a text, on the side where one begins to read: \a sign, given as if that were the
/// left, and the room in \a option that is left for the text.
void placeInFront(QRect *sign, QStyleOptionViewItem *option);

void drawSign(QPainter *painter, const QRect &sign, const QStyleOptionViewItem &option, const QIcon &icon);
void drawFocus(QPainter *painter, const QRect &rect, const QPalette &palette);
/// The frame of a check box, which styles draw too faint to be seen in dark colours.
void drawBoxFrame(QPainter *painter, const QRect &box, const QPalette &palette);
/// Text of one or several lines. What has no room, in a line where the option says or below, is an ellipsis.
void drawText(QPainter *painter, const QStyleOptionViewItem &option, const QString &text);
/// Palettes of desktops have texts on inactive selections that can't be read.
void makeSelectionLegible(QPalette *palette);
/// With the colours that texts and links have on selected rows.
[[nodiscard]] QPalette ofSelection(QPalette palette);
void drawRevertButton(QPainter *painter, const QRect &rect, const QPalette &palette);
void drawGroupRow(QPainter *painter, const QStyleOptionViewItem &option, const QRect &row,
                  const QModelIndex &index);
void drawExpander(QPainter *painter, const QRect &rect, const QPalette &palette, bool expanded);

} // namespace Internal::Painting
