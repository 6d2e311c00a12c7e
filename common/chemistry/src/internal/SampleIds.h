#pragma once

#include <QList>
#include <QSet>
#include <QString>

namespace orv::Internal {

/// Those of \a ids that aren't known, in their order.
[[nodiscard]] QList<int> idsOutside(const QList<int> &ids, const QSet<int> &known);

/// "1, 2, 3".
[[nodiscard]] QString joinedNumbers(const QList<int> &numbers);

} // namespace orv::Internal
