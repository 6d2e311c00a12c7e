#pragma once

#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QRect)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

class TableView;

/// What a person is told and shown who has added samples.
namespace AddedSamples {

/// Names the first ones, as a line has no room for thousands.
[[nodiscard]] QString wordsOnLeftOut(const QStringList &paths);

/// How many of the given samples are new.
[[nodiscard]] QString wordsOnAdded(int added, qsizetype given);

/// Selects new rows of the sheet; where they aren't shown one below the other only the first. Leaves a person
/// alone who types in a cell.
void showRows(TableView &view, int firstSheetRow, int count);

/// Brings a part of a widget into what the areas around it show.
void showInAreas(const QWidget &part, const QRect &rect);

} // namespace AddedSamples

} // namespace orv
