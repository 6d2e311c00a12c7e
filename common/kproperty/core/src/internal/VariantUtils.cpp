#include "VariantUtils.h"

#include <QDateTime>
#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTimeZone>

#include <algorithm>
#include <cmath>

namespace Internal {

namespace {

template<typename T>
bool isNullValue(const QVariant &value)
{
    return value.value<T>().isNull();
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

/// A value that is no number is itself, and -0 is written otherwise than 0.
bool sameReal(double first, double second)
{
    if (std::isnan(first) || std::isnan(second)) {
        return std::isnan(first) && std::isnan(second);
    }
    return first == second && std::signbit(first) == std::signbit(second);
}

// Qt's own operators allow for errors of rounding in these.

bool sameGeometry(const QPointF &first, const QPointF &second)
{
    return sameReal(first.x(), second.x()) && sameReal(first.y(), second.y());
}

bool sameGeometry(const QSizeF &first, const QSizeF &second)
{
    return sameReal(first.width(), second.width()) && sameReal(first.height(), second.height());
}

bool sameGeometry(const QRectF &first, const QRectF &second)
{
    return sameGeometry(first.topLeft(), second.topLeft()) && sameGeometry(first.size(), second.size());
}

bool sameGeometry(const QLineF &first, const QLineF &second)
{
    return sameGeometry(first.p1(), second.p1()) && sameGeometry(first.p2(), second.p2());
}

template<typename T>
bool sameGeometry(const QVariant &first, const QVariant &second)
{
    return sameGeometry(first.value<T>(), second.value<T>());
}

/// One moment may be told in two time zones.
bool sameTime(const QDateTime &first, const QDateTime &second)
{
    return first == second && first.timeSpec() == second.timeSpec() &&
           first.offsetFromUtc() == second.offsetFromUtc() &&
           (first.timeSpec() != Qt::TimeZone || first.timeZone() == second.timeZone());
}

bool sameList(const QVariantList &first, const QVariantList &second)
{
    return std::equal(first.cbegin(), first.cend(), second.cbegin(), second.cend(), identicalVariants);
}

bool sameMap(const QVariantMap &first, const QVariantMap &second)
{
    return first.keys() == second.keys() && sameList(first.values(), second.values());
}

bool sameHash(const QVariantHash &first, const QVariantHash &second)
{
    return first.size() == second.size() &&
           std::all_of(first.keyBegin(), first.keyEnd(), [&first, &second](const QString &key) {
               const auto other = second.constFind(key);
               return other != second.cend() && identicalVariants(first.value(key), *other);
           });
}

} // namespace

bool isNullVariant(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return true;
    case QMetaType::QString:
        return isNullValue<QString>(value);
    case QMetaType::QByteArray:
        return isNullValue<QByteArray>(value);
    case QMetaType::QDate:
        return isNullValue<QDate>(value);
    case QMetaType::QTime:
        return isNullValue<QTime>(value);
    case QMetaType::QDateTime:
        return isNullValue<QDateTime>(value);
    case QMetaType::QPoint:
        return isNullValue<QPoint>(value);
    case QMetaType::QPointF:
        return isNullValue<QPointF>(value);
    case QMetaType::QSize:
        return isNullValue<QSize>(value);
    case QMetaType::QSizeF:
        return isNullValue<QSizeF>(value);
    case QMetaType::QRect:
        return isNullValue<QRect>(value);
    case QMetaType::QRectF:
        return isNullValue<QRectF>(value);
    default:
        return value.isNull();
    }
}

bool equalVariants(const QVariant &stored, const QVariant &value)
{
    if (stored.metaType() == value.metaType() || (isNumber(stored) && isNumber(value))) {
        return stored == value;
    }
    if (!stored.isValid() || !value.isValid() || !value.canConvert(stored.metaType())) {
        return false;
    }
    QVariant converted = value;
    return converted.convert(stored.metaType()) && stored == converted;
}

bool identicalVariants(const QVariant &first, const QVariant &second)
{
    if (first.metaType() != second.metaType() || first.isNull() != second.isNull()) {
        return false;
    }
    switch (first.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return sameReal(first.toDouble(), second.toDouble());
    case QMetaType::QPointF:
        return sameGeometry<QPointF>(first, second);
    case QMetaType::QSizeF:
        return sameGeometry<QSizeF>(first, second);
    case QMetaType::QRectF:
        return sameGeometry<QRectF>(first, second);
    case QMetaType::QLineF:
        return sameGeometry<QLineF>(first, second);
    case QMetaType::QDateTime:
        return sameTime(first.toDateTime(), second.toDateTime());
    case QMetaType::QVariantList:
        return sameList(first.toList(), second.toList());
    case QMetaType::QVariantMap:
        return sameMap(first.toMap(), second.toMap());
    case QMetaType::QVariantHash:
        return sameHash(first.toHash(), second.toHash());
    default:
        return first == second;
    }
}

} // namespace Internal
