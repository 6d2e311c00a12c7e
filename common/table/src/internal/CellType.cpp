#include "CellType.h"

#include "CellPayloads.h"

#include <orv/table/rn.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace orv::Internal {

namespace {

using namespace Payloads;

// The frequent ones first: they are searched in this order.
constexpr std::array kCellTypes = {
    CellType{QLatin1String("$double"), QMetaType::Double, fromDouble, toDouble},
    CellType{QLatin1String("$int64"), QMetaType::LongLong, fromInteger<qlonglong>, toInteger<qlonglong>},
    CellType{QLatin1String("$strings"), QMetaType::QStringList, fromStrings, toStrings},
    CellType{QLatin1String("$bytes"), QMetaType::QByteArray, fromBytes, toBytes},
    CellType{QLatin1String("$map"), QMetaType::QVariantMap, fromMap, toMap},
    CellType{QLatin1String("$hash"), QMetaType::QVariantHash, fromHash, toHash},
    CellType{QLatin1String("$text"), QMetaType::QString, fromText, toText},
    CellType{QLatin1String("$date"), QMetaType::QDate, fromDate, toDate},
    CellType{QLatin1String("$time"), QMetaType::QTime, fromTime, toTime},
    CellType{QLatin1String("$datetime"), QMetaType::QDateTime, fromDateTime, toDateTime},
    CellType{QLatin1String("$url"), QMetaType::QUrl, fromUrl, toUrl},
    CellType{QLatin1String("$uuid"), QMetaType::QUuid, fromUuid, toUuid},
    CellType{QLatin1String("$jsonObject"), QMetaType::QJsonObject, fromJsonObject, toJsonObject},
    CellType{QLatin1String("$jsonArray"), QMetaType::QJsonArray, fromJsonArray, toJsonArray},
    CellType{QLatin1String("$nullptr"), QMetaType::Nullptr, fromNullptr, toNullptr},
    CellType{QLatin1String("$float"), QMetaType::Float, fromFloat, toFloat},
    CellType{QLatin1String("$uint"), QMetaType::UInt, fromInteger<uint>, toInteger<uint>},
    CellType{QLatin1String("$uint64"), QMetaType::ULongLong, fromUnsigned<qulonglong>,
             toUnsigned<qulonglong>},
    CellType{QLatin1String("$long"), QMetaType::Long, fromInteger<long>, toInteger<long>},
    CellType{QLatin1String("$ulong"), QMetaType::ULong, fromUnsigned<ulong>, toUnsigned<ulong>},
    CellType{QLatin1String("$short"), QMetaType::Short, fromInteger<short>, toInteger<short>},
    CellType{QLatin1String("$ushort"), QMetaType::UShort, fromInteger<ushort>, toInteger<ushort>},
    CellType{QLatin1String("$char"), QMetaType::Char, fromInteger<char>, toInteger<char>},
    CellType{QLatin1String("$schar"), QMetaType::SChar, fromInteger<signed char>, toInteger<signed char>},
    CellType{QLatin1String("$uchar"), QMetaType::UChar, fromInteger<uchar>, toInteger<uchar>},
    CellType{QLatin1String("$qchar"), QMetaType::QChar, fromQChar, toQChar},
};

/// The bounds of qint64 as doubles; the upper one is the first that doesn't fit.
constexpr double kLowestInteger = -0x1p63;
constexpr double kBeyondIntegers = 0x1p63;

bool fitsInteger(double number)
{
    return number >= kLowestInteger && number < kBeyondIntegers && number == std::trunc(number);
}

/// A text that every JSON writer and parser keeps as it is. QJsonDocument drops a byte order mark at the
/// beginning, and half a surrogate pair has no UTF-8.
bool isPlainText(const QString &text)
{
    return !text.startsWith(QChar::ByteOrderMark) && text.isValidUtf16();
}

bool isPlainMap(const QVariantMap &map)
{
    if (map.size() == 1 && isTypeName(map.firstKey()))
        return false;
    return std::all_of(map.keyBegin(), map.keyEnd(), isPlainText);
}

} // namespace

CellForm cellFormOf(const QVariant &value)
{
    const void *const data = value.constData();
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return CellForm::Null;
    case QMetaType::Bool:
        return CellForm::Bool;
    case QMetaType::Int:
        return CellForm::Integer;
    case QMetaType::LongLong: {
        const qlonglong number = *static_cast<const qlonglong *>(data);
        const bool readsAsInt = number == qlonglong(int(number));
        return readsAsInt ? CellForm::Typed : CellForm::Integer;
    }
    case QMetaType::Double: {
        const double number = *static_cast<const double *>(data);
        return std::isfinite(number) && !fitsInteger(number) ? CellForm::Double : CellForm::Typed;
    }
    case QMetaType::QString:
        return isPlainText(*static_cast<const QString *>(data)) ? CellForm::Text : CellForm::Typed;
    case QMetaType::QVariantList:
        return CellForm::List;
    case QMetaType::QVariantMap:
        return isPlainMap(*static_cast<const QVariantMap *>(data)) ? CellForm::Map : CellForm::Typed;
    default:
        return value.metaType() == QMetaType::fromType<rn::UnreadCell>() ? CellForm::Unread : CellForm::Typed;
    }
}

const CellType *cellTypeOf(const QVariant &value)
{
    const auto *const it = std::find_if(kCellTypes.begin(), kCellTypes.end(), [&value](const CellType &type) {
        return type.metaType == value.typeId();
    });
    return it == kCellTypes.end() ? nullptr : it;
}

const CellType *cellTypeNamed(QStringView name)
{
    const auto *const it = std::find_if(kCellTypes.begin(), kCellTypes.end(),
                                        [name](const CellType &type) { return type.name == name; });
    return it == kCellTypes.end() ? nullptr : it;
}

QVariant unreadCell(const QString &name, const QJsonValue &payload)
{
    static const bool converterRegistered =
        QMetaType::registerConverter<rn::UnreadCell, QString>([](const rn::UnreadCell &cell) {
            return QString::fromUtf8(
                QJsonDocument(QJsonObject{{cell.type, cell.payload}}).toJson(QJsonDocument::Compact));
        });
    Q_UNUSED(converterRegistered)
    return QVariant::fromValue(rn::UnreadCell{name, payload});
}

QVariant integerCell(qint64 number)
{
    if (number == qint64(int(number)))
        return int(number);
    return qlonglong(number);
}

QVariant numberCell(double number)
{
    return fitsInteger(number) ? integerCell(qint64(number)) : QVariant(number);
}

} // namespace orv::Internal
