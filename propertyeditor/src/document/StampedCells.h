#pragma once

#include <orv/table/VariantItems.h>

#include <QJsonArray>
#include <QString>

namespace orv {

/// The cells as objects, with \a stamp as the "metadata" of each.
QJsonArray stampedCells(const VariantItems &cells, const QString &stamp);

} // namespace orv
