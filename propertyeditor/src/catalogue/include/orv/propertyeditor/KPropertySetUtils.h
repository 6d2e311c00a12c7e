#pragma once

#include <orv/core/Export.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

class KProperty;
class KPropertySet;

/// Places within the groups of a property set. A set belongs to the thread that uses it.
namespace orv::KPropertySetUtils {

/// The name under which a set knows the group that users see as \a group: that text in lower case, and
/// "common" for an empty one.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray groupName(const QString &group);

/// What users see as the groups of \a set, in their order.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList groupCaptions(const KPropertySet &set);

/// The position of the property \a key among those of \a group, or -1 if it isn't there.
[[nodiscard]] ORV_WORKFLOW_EXPORT int propertyIndex(const QString &key, const QString &group,
                                                    const KPropertySet &set);

/// Adds \a property, which \a set owns from here, to \a group at \a position among its properties, and right
/// there in the order of the set; -1 and positions behind the last mean the end. A group that comes to be has
/// \a group as its caption. No other property is touched.
ORV_WORKFLOW_EXPORT void insertInKPropertySet(const QString &group, KProperty *property, KPropertySet *set,
                                              int position);

/// The same, right behind the property \a key of \a group, or at the front of \a group if it has none of that
/// name; in time that doesn't grow with the set where it has.
ORV_WORKFLOW_EXPORT void insertBehind(const QString &key, const QString &group, KProperty *property,
                                      KPropertySet *set);

} // namespace orv::KPropertySetUtils
