#pragma once

#include "PropertyRows.h"

#include <QJsonObject>
#include <QVariant>

#include <functional>

namespace orv {

/// The function of that reader for the property \a id. It neither throws nor logs: what isn't there or has
/// another type gives the reader's empty result.
[[nodiscard]] std::function<QVariant(const QJsonObject &)> propertyReader(PropertyReader reader,
                                                                          PropertyId id);

} // namespace orv
