#pragma once

#include <QList>
#include <QStringView>

namespace orv {

class TableSheet;

namespace TableSort {

/// Whether \a left stands before \a right where numbers in texts count as numbers and case doesn't: below,
/// equal or above zero.
[[nodiscard]] int compareNaturally(QStringView left, QStringView right);

/// The rows of the sheet in the order of a column. Rows that are equal keep their order; empty cells stand
/// last either way.
[[nodiscard]] QList<quint32> sortedIds(const TableSheet &sheet, int column, Qt::SortOrder order);

} // namespace TableSort

} // namespace orv
