#pragma once

#include "CellType.h"

#include <limits>
#include <optional>

/// The payloads of the types of cells, one pair of functions for each: fromX makes the payload of a value,
/// toX the value of a payload, or answers false.
namespace orv::Internal::Payloads {

/// The integral number that a payload is.
[[nodiscard]] std::optional<qint64> integerOf(const QVariant &payload);

template<typename T>
QVariant fromInteger(const QVariant &value)
{
    return integerCell(qint64(value.value<T>()));
}

template<typename T>
bool toInteger(const QVariant &payload, QVariant *value)
{
    const std::optional<qint64> number = integerOf(payload);
    if (!number || *number < qint64(std::numeric_limits<T>::min()) ||
        *number > qint64(std::numeric_limits<T>::max()))
        return false;
    *value = QVariant::fromValue(T(*number));
    return true;
}

/// Texts: JSON parsers read numbers beyond qint64 as doubles.
[[nodiscard]] std::optional<quint64> unsignedOf(const QVariant &payload);

template<typename T>
QVariant fromUnsigned(const QVariant &value)
{
    return QString::number(value.value<T>());
}

template<typename T>
bool toUnsigned(const QVariant &payload, QVariant *value)
{
    const std::optional<quint64> number = unsignedOf(payload);
    if (!number || *number > std::numeric_limits<T>::max())
        return false;
    *value = QVariant::fromValue(T(*number));
    return true;
}

QVariant fromDouble(const QVariant &value);
bool toDouble(const QVariant &payload, QVariant *value);
QVariant fromFloat(const QVariant &value);
bool toFloat(const QVariant &payload, QVariant *value);
QVariant fromNullptr(const QVariant &value);
bool toNullptr(const QVariant &payload, QVariant *value);
QVariant fromText(const QVariant &value);
bool toText(const QVariant &payload, QVariant *value);
QVariant fromQChar(const QVariant &value);
bool toQChar(const QVariant &payload, QVariant *value);
QVariant fromStrings(const QVariant &value);
bool toStrings(const QVariant &payload, QVariant *value);
QVariant fromBytes(const QVariant &value);
bool toBytes(const QVariant &payload, QVariant *value);
QVariant fromMap(const QVariant &value);
bool toMap(const QVariant &payload, QVariant *value);
QVariant fromHash(const QVariant &value);
bool toHash(const QVariant &payload, QVariant *value);
QVariant fromDate(const QVariant &value);
bool toDate(const QVariant &payload, QVariant *value);
QVariant fromTime(const QVariant &value);
bool toTime(const QVariant &payload, QVariant *value);
QVariant fromDateTime(const QVariant &value);
bool toDateTime(const QVariant &payload, QVariant *value);
QVariant fromUrl(const QVariant &value);
bool toUrl(const QVariant &payload, QVariant *value);
QVariant fromUuid(const QVariant &value);
bool toUuid(const QVariant &payload, QVariant *value);
QVariant fromJsonObject(const QVariant &value);
bool toJsonObject(const QVariant &payload, QVariant *value);
QVariant fromJsonArray(const QVariant &value);
bool toJsonArray(const QVariant &payload, QVariant *value);

} // namespace orv::Internal::Payloads
