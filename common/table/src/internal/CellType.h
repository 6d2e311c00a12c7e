#pragma once

#include <QJsonValue>
#include <QLatin1String>
#include <QVariant>

namespace orv::Internal {

/// What a value is to the writers.
enum class CellForm
{
    Null,
    Bool,
    Integer, ///< an int, or a 64-bit integer beyond the range of int
    Double,  ///< neither integral nor infinite
    Text,
    List,
    Map,
    Unread, ///< rn::UnreadCell
    Typed,  ///< as payload of the type that cellTypeOf tells
};

/// A type whose values plain JSON can't tell from others: {"NAME": PAYLOAD}, where the payload is a value of
/// other forms that tells all of it.
struct CellType
{
    QLatin1String name; ///< stored in files, never change
    int metaType;
    QVariant (*toPayload)(const QVariant &value);
    /// False when no value has that payload.
    bool (*fromPayload)(const QVariant &payload, QVariant *value);
};

[[nodiscard]] CellForm cellFormOf(const QVariant &value);

/// Null when values of this type can't be written, or no type has that name.
[[nodiscard]] const CellType *cellTypeOf(const QVariant &value);
[[nodiscard]] const CellType *cellTypeNamed(QStringView name);

[[nodiscard]] QVariant unreadCell(const QString &name, const QJsonValue &payload);

/// The value of {"NAME": PAYLOAD}; an rn::UnreadCell where the type isn't known or has no such payload. \a
/// json gives the payload as it stands.
template<typename Json>
[[nodiscard]] QVariant cellOfType(const QString &name, const QVariant &payload, Json json)
{
    QVariant value;
    const CellType *type = cellTypeNamed(name);
    return type && type->fromPayload(payload, &value) ? value : unreadCell(name, json());
}

/// Whether an object's first key may be that of a type.
[[nodiscard]] inline bool isTypeName(QStringView key)
{
    return key.startsWith(QLatin1Char('$'));
}

/// How plain numbers read, from text and from parsed documents alike. Those can't tell 5.0 from 5.
[[nodiscard]] QVariant integerCell(qint64 number);
[[nodiscard]] QVariant numberCell(double number);

} // namespace orv::Internal
