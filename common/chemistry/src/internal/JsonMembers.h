#pragma once

#include <orv/core/Error.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1String>
#include <QString>

#include <initializer_list>

/// Members of objects that may be absent but not wrong. All readers leave the target alone where the member
/// is absent; errors are InvalidContent and name the key.
namespace orv::Internal {

[[nodiscard]] Error readBool(const QJsonObject &object, QLatin1String key, bool *target);
/// A whole number from \a minimum to \a maximum.
[[nodiscard]] Error readInt(const QJsonObject &object, QLatin1String key, int minimum, int maximum,
                            int *target);
/// A number that is not negative.
[[nodiscard]] Error readNonNegative(const QJsonObject &object, QLatin1String key, double *target);
[[nodiscard]] Error readString(const QJsonObject &object, QLatin1String key, QString *target);
[[nodiscard]] Error readObject(const QJsonObject &object, QLatin1String key, QJsonObject *target);

/// What is left of \a object without the members \a keys.
[[nodiscard]] QJsonObject without(QJsonObject object, std::initializer_list<QLatin1String> keys);

/// A number that stands in a table's cell or a file, as people read it.
[[nodiscard]] QString shortNumber(double number);

} // namespace orv::Internal
