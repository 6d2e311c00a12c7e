#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QStringList>

/// What a person who mistyped a name may have meant. Thread safe.
namespace orv::NearestNames {

/// Up to three of the \a known names that differ from \a name by few letters (inserted, left out, replaced or
/// swapped with their neighbour; one in three at most, case doesn't count), the nearest first and in the
/// order of \a known where they are equally near.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList find(const QString &name, const QStringList &known);

/// A sentence for the end of a message, with a blank in front: ' Did you mean "info" or "prv"?'. Empty where
/// no known name is near.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString question(const QString &name, const QStringList &known);

} // namespace orv::NearestNames
