#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QMetaType>
#include <QVariant>

namespace orv {

class GridCommunicative;

/// What one column tells the others: the new state of the setting or table that the kind names. A plain
/// value.
struct GridMessage
{
    /// Doesn't hear its own message. May have gone when a message is kept.
    GridCommunicative *sender = nullptr;
    PropertyId type = PropertyId::NoProperty;
    QVariant value = {};
    QVariant previousValue = {}; ///< the state before, where the kind has one
};

} // namespace orv

Q_DECLARE_METATYPE(orv::GridMessage)
