#include "VariantUtils.h"

#include <QDateTime>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

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

bool equalDecimals(double first, double second, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::trunc(first * scale) == std::trunc(second * scale);
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

bool equalVariants(const QVariant &stored, const QVariant &value, int decimals)
{
    if (decimals >= 0 && stored.typeId() == QMetaType::Double && value.typeId() == QMetaType::Double) {
        return equalDecimals(stored.toDouble(), value.toDouble(), decimals);
    }
    if (stored.metaType() == value.metaType() || (isNumber(stored) && isNumber(value))) {
        return stored == value;
    }
    if (!stored.isValid() || !value.isValid() || !value.canConvert(stored.metaType())) {
        return false;
    }
    QVariant converted = value;
    return converted.convert(stored.metaType()) && stored == converted;
}

} // namespace Internal
