#include "CellPayloads.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>

#include <algorithm>
#include <cmath>

namespace orv::Internal::Payloads {

namespace {

constexpr QLatin1String kNan("nan");
constexpr QLatin1String kInfinity("inf");
constexpr QLatin1String kMinusInfinity("-inf");
constexpr QLatin1String kMinusZero("-0");

constexpr QLatin1String kUtc("utc");
constexpr QLatin1String kLocal("local");
constexpr QLatin1String kTimeFormat("HH:mm:ss.zzz");
constexpr qint64 kSecondsPerDay = 86400;

bool isText(const QVariant &payload)
{
    return payload.typeId() == QMetaType::QString;
}

bool isText(const QVariant &payload, QLatin1String text)
{
    return isText(payload) && payload.toString() == text;
}

bool isList(const QVariant &payload)
{
    return payload.typeId() == QMetaType::QVariantList;
}

QVariant payloadOf(double number)
{
    if (std::isnan(number))
        return kNan;
    if (std::isinf(number))
        return number > 0 ? kInfinity : kMinusInfinity;
    if (number == 0 && std::signbit(number))
        return kMinusZero;
    return numberCell(number);
}

std::optional<double> doubleOf(const QVariant &payload)
{
    if (payload.typeId() == QMetaType::Double)
        return payload.toDouble();
    if (const std::optional<qint64> integer = integerOf(payload))
        return double(*integer);
    if (isText(payload, kNan))
        return std::numeric_limits<double>::quiet_NaN();
    if (isText(payload, kInfinity))
        return std::numeric_limits<double>::infinity();
    if (isText(payload, kMinusInfinity))
        return -std::numeric_limits<double>::infinity();
    if (isText(payload, kMinusZero))
        return -0.0;
    return {};
}

template<typename Container>
QVariantList pairsOf(const Container &container, const QStringList &sortedKeys)
{
    QVariantList pairs;
    for (const QString &key : sortedKeys)
        pairs.append(QVariant(QVariantList{key, container.value(key)}));
    return pairs;
}

template<typename Container>
bool containerOf(const QVariant &payload, QVariant *value)
{
    if (!isList(payload))
        return false;
    Container container;
    for (const QVariant &pair : payload.toList()) {
        const QVariantList keyAndValue = isList(pair) ? pair.toList() : QVariantList();
        if (keyAndValue.size() != 2 || !isText(keyAndValue[0]) ||
            container.contains(keyAndValue[0].toString()))
            return false;
        container.insert(keyAndValue[0].toString(), keyAndValue[1]);
    }
    *value = container;
    return true;
}

QVariant zonePayload(const QDateTime &time)
{
    switch (time.timeSpec()) {
    case Qt::UTC:
        return kUtc;
    case Qt::OffsetFromUTC:
        return time.offsetFromUtc();
    case Qt::TimeZone:
        return QString::fromLatin1(time.timeZone().id());
    default:
        return kLocal;
    }
}

bool setZone(const QVariant &payload, QDateTime *time)
{
    if (const std::optional<qint64> offset = integerOf(payload)) {
        const bool inRange = std::abs(*offset) < kSecondsPerDay;
        *time = inRange ? time->toOffsetFromUtc(int(*offset)) : QDateTime();
    } else if (isText(payload, kLocal)) {
        *time = time->toLocalTime();
    } else if (isText(payload) && !isText(payload, kUtc)) {
        const QTimeZone zone(payload.toString().toLatin1());
        *time = zone.isValid() ? time->toTimeZone(zone) : QDateTime();
    } else if (!isText(payload)) {
        return false;
    }
    return time->isValid();
}

std::optional<QJsonDocument> documentOf(const QVariant &payload)
{
    const QJsonDocument document =
        QJsonDocument::fromJson(isText(payload) ? payload.toString().toUtf8() : QByteArray());
    return document.isNull() ? std::nullopt : std::optional(document);
}

} // namespace

std::optional<qint64> integerOf(const QVariant &payload)
{
    if (payload.typeId() != QMetaType::Int && payload.typeId() != QMetaType::LongLong)
        return {};
    return payload.toLongLong();
}

std::optional<quint64> unsignedOf(const QVariant &payload)
{
    bool ok = false;
    const quint64 number = isText(payload) ? payload.toString().toULongLong(&ok) : 0;
    return ok && QString::number(number) == payload.toString() ? std::optional(number) : std::nullopt;
}

QVariant fromDouble(const QVariant &value)
{
    return payloadOf(value.toDouble());
}

bool toDouble(const QVariant &payload, QVariant *value)
{
    const std::optional<double> number = doubleOf(payload);
    if (number)
        *value = *number;
    return number.has_value();
}

QVariant fromFloat(const QVariant &value)
{
    return payloadOf(double(value.toFloat()));
}

bool toFloat(const QVariant &payload, QVariant *value)
{
    const std::optional<double> number = doubleOf(payload);
    if (!number || (std::isfinite(*number) && std::abs(*number) > double(std::numeric_limits<float>::max())))
        return false;
    *value = float(*number);
    return true;
}

QVariant fromNullptr(const QVariant & /*value*/)
{
    return {};
}

bool toNullptr(const QVariant &payload, QVariant *value)
{
    *value = QVariant::fromValue(nullptr);
    return !payload.isValid();
}

QVariant fromText(const QVariant &value)
{
    QVariantList units;
    for (const QChar unit : value.toString())
        units.append(int(unit.unicode()));
    return units;
}

bool toText(const QVariant &payload, QVariant *value)
{
    if (!isList(payload))
        return false;
    QString text;
    for (const QVariant &entry : payload.toList()) {
        QVariant unit;
        if (!toInteger<ushort>(entry, &unit))
            return false;
        text.append(QChar(unit.value<ushort>()));
    }
    *value = text;
    return true;
}

QVariant fromQChar(const QVariant &value)
{
    return int(value.toChar().unicode());
}

bool toQChar(const QVariant &payload, QVariant *value)
{
    QVariant unit;
    if (!toInteger<ushort>(payload, &unit))
        return false;
    *value = QChar(unit.value<ushort>());
    return true;
}

QVariant fromStrings(const QVariant &value)
{
    const QStringList texts = value.toStringList();
    return QVariantList(texts.begin(), texts.end());
}

bool toStrings(const QVariant &payload, QVariant *value)
{
    const QVariantList texts = payload.toList();
    if (!isList(payload) ||
        !std::all_of(texts.begin(), texts.end(), [](const QVariant &text) { return isText(text); }))
        return false;
    *value = payload.toStringList();
    return true;
}

QVariant fromBytes(const QVariant &value)
{
    return QString::fromLatin1(value.toByteArray().toBase64());
}

bool toBytes(const QVariant &payload, QVariant *value)
{
    if (!isText(payload))
        return false;
    const auto bytes =
        QByteArray::fromBase64Encoding(payload.toString().toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    *value = *bytes;
    return bool(bytes);
}

QVariant fromMap(const QVariant &value)
{
    const QVariantMap map = value.toMap();
    return pairsOf(map, map.keys());
}

bool toMap(const QVariant &payload, QVariant *value)
{
    return containerOf<QVariantMap>(payload, value);
}

QVariant fromHash(const QVariant &value)
{
    const QVariantHash hash = value.toHash();
    QStringList keys = hash.keys();
    keys.sort();
    return pairsOf(hash, keys);
}

bool toHash(const QVariant &payload, QVariant *value)
{
    return containerOf<QVariantHash>(payload, value);
}

QVariant fromDate(const QVariant &value)
{
    const QDate date = value.toDate();
    if (!date.isValid())
        return {};
    // No text for years before 1 and after 9999.
    const QString text = date.toString(Qt::ISODate);
    return QDate::fromString(text, Qt::ISODate) == date ? QVariant(text) : integerCell(date.toJulianDay());
}

bool toDate(const QVariant &payload, QVariant *value)
{
    QDate date;
    if (isText(payload))
        date = QDate::fromString(payload.toString(), Qt::ISODate);
    else if (const std::optional<qint64> day = integerOf(payload))
        date = QDate::fromJulianDay(*day);
    *value = date;
    return date.isValid() || !payload.isValid();
}

QVariant fromTime(const QVariant &value)
{
    const QTime time = value.toTime();
    return time.isValid() ? QVariant(time.toString(kTimeFormat)) : QVariant();
}

bool toTime(const QVariant &payload, QVariant *value)
{
    const QTime time = isText(payload) ? QTime::fromString(payload.toString(), kTimeFormat) : QTime();
    *value = time;
    return time.isValid() || !payload.isValid();
}

QVariant fromDateTime(const QVariant &value)
{
    const QDateTime time = value.toDateTime();
    if (!time.isValid())
        return {};
    const QString text = time.toUTC().toString(Qt::ISODateWithMs);
    const bool readsBack = QDateTime::fromString(text, Qt::ISODateWithMs) == time;
    return QVariantList{readsBack ? QVariant(text) : integerCell(time.toMSecsSinceEpoch()),
                        zonePayload(time)};
}

bool toDateTime(const QVariant &payload, QVariant *value)
{
    *value = QDateTime();
    if (!payload.isValid())
        return true;
    const QVariantList parts = isList(payload) ? payload.toList() : QVariantList();
    if (parts.size() != 2)
        return false;
    QDateTime time;
    if (isText(parts[0]))
        time = QDateTime::fromString(parts[0].toString(), Qt::ISODateWithMs).toUTC();
    else if (const std::optional<qint64> milliseconds = integerOf(parts[0]))
        time = QDateTime::fromMSecsSinceEpoch(*milliseconds, Qt::UTC);
    if (!time.isValid() || !setZone(parts[1], &time))
        return false;
    *value = time;
    return true;
}

QVariant fromUrl(const QVariant &value)
{
    return QString::fromLatin1(value.toUrl().toEncoded());
}

bool toUrl(const QVariant &payload, QVariant *value)
{
    const QUrl url =
        isText(payload) ? QUrl::fromEncoded(payload.toString().toUtf8(), QUrl::StrictMode) : QUrl();
    *value = url;
    return url.isValid() || isText(payload, QLatin1String(""));
}

QVariant fromUuid(const QVariant &value)
{
    return value.toUuid().toString();
}

bool toUuid(const QVariant &payload, QVariant *value)
{
    const QUuid uuid = isText(payload) ? QUuid::fromString(payload.toString()) : QUuid();
    *value = uuid;
    return isText(payload) && uuid.toString() == payload.toString();
}

QVariant fromJsonObject(const QVariant &value)
{
    return QString::fromUtf8(QJsonDocument(value.toJsonObject()).toJson(QJsonDocument::Compact));
}

bool toJsonObject(const QVariant &payload, QVariant *value)
{
    const std::optional<QJsonDocument> document = documentOf(payload);
    *value = document ? document->object() : QJsonObject();
    return document && document->isObject();
}

QVariant fromJsonArray(const QVariant &value)
{
    return QString::fromUtf8(QJsonDocument(value.toJsonArray()).toJson(QJsonDocument::Compact));
}

bool toJsonArray(const QVariant &payload, QVariant *value)
{
    const std::optional<QJsonDocument> document = documentOf(payload);
    *value = document ? document->array() : QJsonArray();
    return document && document->isArray();
}

} // namespace orv::Internal::Payloads
