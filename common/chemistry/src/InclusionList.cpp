#include "orv/chemistry/InclusionList.h"

#include "internal/JsonMembers.h"

#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/table/CsvReader.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QJsonArray>
#include <QRegularExpression>

#include <cmath>

namespace orv::InclusionList {

namespace {

constexpr QLatin1String kListKey("inclusion");
constexpr QLatin1String kMzKey("mz");
constexpr QLatin1String kChargeKey("charge");
constexpr QLatin1String kStartKey("start");
constexpr QLatin1String kEndKey("end");
constexpr QLatin1String kNameKey("name");
constexpr QLatin1String kTextKey("text");
constexpr int kHighestCharge = 1000;
constexpr QChar kComma = QLatin1Char(',');

/// Fields of a line, in their order.
enum Field
{
    MzField,
    ChargeField,
    StartField,
    EndField,
    NameField,
    FieldCount
};

struct InclusionListTr
{
    Q_DECLARE_TR_FUNCTIONS(InclusionList)
};

Error malformed(const QString &reason)
{
    return Error(ErrorCode::InvalidContent, InclusionListTr::tr("The inclusion list can't be read."))
        .addDetail(reason);
}

/// What holds of every item, wherever it comes from.
Error check(const InclusionItem &item)
{
    if (!(item.mz > 0.0) || !std::isfinite(item.mz))
        return malformed(InclusionListTr::tr("The m/z must be a number above 0."));
    if (std::abs(item.charge) > kHighestCharge)
        return malformed(InclusionListTr::tr("The charge %1 is too high.").arg(item.charge));
    const double start = item.startMinutes.value_or(0.0);
    if (!(start >= 0.0) || !(item.endMinutes.value_or(start) >= start))
        return malformed(InclusionListTr::tr("The retention times are negative or out of order."));
    return Error::NoError;
}

Error readTime(const QJsonObject &object, QLatin1String key, std::optional<double> *minutes)
{
    double number = 0.0;
    ORV_RETURN_IF_ERROR(Internal::readNonNegative(object, key, &number));
    if (object.contains(key))
        *minutes = number;
    return Error::NoError;
}

Result<InclusionItem> itemFromObject(const QJsonObject &object)
{
    InclusionItem item;
    ORV_RETURN_IF_ERROR(Internal::readNonNegative(object, kMzKey, &item.mz));
    ORV_RETURN_IF_ERROR(Internal::readInt(object, kChargeKey, -kHighestCharge, kHighestCharge, &item.charge));
    ORV_RETURN_IF_ERROR(readTime(object, kStartKey, &item.startMinutes));
    ORV_RETURN_IF_ERROR(readTime(object, kEndKey, &item.endMinutes));
    ORV_RETURN_IF_ERROR(Internal::readString(object, kNameKey, &item.name));
    item.unknownMembers = Internal::without(object, {kMzKey, kChargeKey, kStartKey, kEndKey, kNameKey});
    ORV_RETURN_IF_ERROR(check(item));
    return item;
}

/// Members that say nothing aren't written.
QJsonObject objectFromItem(const InclusionItem &item)
{
    QJsonObject object = item.unknownMembers;
    object.insert(kMzKey, item.mz);
    if (item.charge != 0)
        object.insert(kChargeKey, item.charge);
    if (item.startMinutes)
        object.insert(kStartKey, *item.startMinutes);
    if (item.endMinutes)
        object.insert(kEndKey, *item.endMinutes);
    if (!item.name.isEmpty())
        object.insert(kNameKey, item.name);
    return object;
}

QString timeText(std::optional<double> minutes)
{
    return minutes ? Internal::shortNumber(*minutes) : QString();
}

QString lineFromItem(const InclusionItem &item)
{
    QString name = item.name;
    name.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    if (name.contains(kComma) || name.contains(QLatin1Char('"')) || name != name.trimmed())
        name = QLatin1Char('"') + name.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
    QStringList fields{Internal::shortNumber(item.mz), item.charge ? QString::number(item.charge) : QString(),
                       timeText(item.startMinutes), timeText(item.endMinutes), name};
    while (fields.constLast().isEmpty())
        fields.removeLast();
    return fields.join(kComma);
}

Error parseTime(const QString &text, std::optional<double> *minutes)
{
    if (text.isEmpty())
        return Error::NoError;
    bool ok = false;
    *minutes = text.toDouble(&ok);
    return ok ? Error() : malformed(InclusionListTr::tr("\"%1\" is no time.").arg(text));
}

Result<InclusionItem> itemFromFields(QStringList fields)
{
    if (fields.size() > FieldCount)
        return malformed(
            InclusionListTr::tr("There are more than %1 fields.").arg(static_cast<int>(FieldCount)));
    fields.resize(FieldCount);
    InclusionItem item;
    bool mzOk = false;
    bool chargeOk = true;
    item.mz = fields.at(MzField).trimmed().toDouble(&mzOk);
    const QString charge = fields.at(ChargeField).trimmed();
    item.charge = charge.isEmpty() ? 0 : charge.toInt(&chargeOk);
    if (!mzOk || !chargeOk)
        return malformed(InclusionListTr::tr("The m/z or the charge is no number."));
    ORV_RETURN_IF_ERROR(parseTime(fields.at(StartField).trimmed(), &item.startMinutes));
    ORV_RETURN_IF_ERROR(parseTime(fields.at(EndField).trimmed(), &item.endMinutes));
    item.name = fields.at(NameField);
    ORV_RETURN_IF_ERROR(check(item));
    return item;
}

Result<InclusionItem> itemFromLine(const QString &line)
{
    // Few lines need the whole parser, and lists are long.
    if (!line.contains(QLatin1Char('"')))
        return itemFromFields(line.split(kComma));
    QBuffer device;
    device.setData(line.toUtf8());
    device.open(QIODevice::ReadOnly);
    Result<std::optional<CsvRow>> row = CsvReader(&device).next();
    if (row.hasError())
        return row.ecatch();
    return itemFromFields(row->has_value() ? (*row)->fields : QStringList());
}

} // namespace

QString toString(const QJsonObject &object)
{
    if (object.value(kListKey).isString())
        return object.value(kListKey).toString();
    QStringList lines;
    const QJsonArray list = object.value(kListKey).toArray();
    for (const auto element : list) {
        const QJsonObject member = element.toObject();
        if (member.contains(kTextKey) && !member.contains(kMzKey)) {
            lines.append(member.value(kTextKey).toString());
            continue;
        }
        const Result<InclusionItem> item = itemFromObject(member);
        if (item.hasError())
            qCWarning(genericLog()) << "Inclusion list: an element is passed over:" << item.error().details();
        else
            lines.append(lineFromItem(*item));
    }
    return lines.join(QLatin1Char('\n'));
}

QJsonObject toJson(const QString &text)
{
    QJsonArray list;
    static const QRegularExpression lineEnd(QStringLiteral("[\\r\\n]+"));
    const QStringList lines = text.split(lineEnd, Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const Result<InclusionItem> item = itemFromLine(line);
        list.append(item.hasError() ? QJsonObject{{kTextKey, line}} : objectFromItem(*item));
    }
    return list.isEmpty() ? QJsonObject() : QJsonObject{{kListKey, list}};
}

QJsonObject toJson(const QList<InclusionItem> &items)
{
    QJsonArray list;
    for (const InclusionItem &item : items)
        list.append(objectFromItem(item));
    return list.isEmpty() ? QJsonObject() : QJsonObject{{kListKey, list}};
}

Result<QList<InclusionItem>> toVector(const QJsonObject &object)
{
    if (!object.contains(kListKey))
        return QList<InclusionItem>();
    if (object.value(kListKey).isString())
        return toVector(toJson(object.value(kListKey).toString()));
    Result<QJsonArray> list = JsonUtils::arrayValue(object, kListKey);
    if (list.hasError())
        return list.ecatch();
    if (list->size() > kMaximumItems)
        return malformed(
            InclusionListTr::tr("It has %1 entries; %2 are allowed.").arg(list->size()).arg(kMaximumItems));
    QList<InclusionItem> items;
    items.reserve(list->size());
    for (const auto element : std::as_const(*list)) {
        Result<InclusionItem> item = itemFromObject(element.toObject());
        if (item.hasError()) {
            const QString text = element.toObject().value(kTextKey).toString();
            item.ecatch().addDetail(
                InclusionListTr::tr("It is entry %1 of the inclusion list.").arg(items.size() + 1));
            return text.isEmpty()
                       ? item.error()
                       : Error(item.error()).addDetail(InclusionListTr::tr("It reads \"%1\".").arg(text));
        }
        items.append(std::move(item).value());
    }
    return items;
}

} // namespace orv::InclusionList
