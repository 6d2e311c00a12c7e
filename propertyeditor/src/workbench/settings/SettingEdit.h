#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include <optional>

class KProperty;
class KPropertySet;

namespace orv {

/// Gives settings values as an edit does that a person makes: whoever follows the property hears of it, and
/// may delete anything.
namespace SettingEdit {

enum class Outcome
{
    Changed,
    HadIt,   ///< the value is the present one
    Refused, ///< see refusal(), else the value doesn't fit
};

/// Why the setting \a name of \a set can't be edited; empty if it can.
[[nodiscard]] QString refusal(const KPropertySet *set, const QByteArray &name);

/// The value that a property \a name of \a set has once it holds \a stored, which is as files have it;
/// invalid if it doesn't fit.
[[nodiscard]] std::optional<QVariant> valueOf(const KPropertySet &set, const QByteArray &name,
                                              const QJsonValue &stored);

/// \a value is as property sets hold it. With the one that it had before it was modified, the property isn't
/// modified any more, which a property never says by itself. False for the value that it has.
bool give(KProperty *property, const QVariant &value);

/// Whether setValue() gives the setting another value.
[[nodiscard]] bool changes(const KPropertySet *set, const QByteArray &name, const QVariant &value);

/// \a value is as property sets hold it.
Outcome setValue(KPropertySet *set, const QByteArray &name, const QVariant &value);
Outcome setStored(KPropertySet *set, const QByteArray &name, const QJsonValue &stored);

} // namespace SettingEdit

} // namespace orv
