#include "orv/chemistry/ProteinAnnotationEntry.h"

#include "internal/JsonMembers.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>

#include <limits>

namespace orv {

namespace {

constexpr QLatin1String kProteinKey("protein");
constexpr QLatin1String kNameKey("name");
constexpr QLatin1String kBeginKey("begin");
constexpr QLatin1String kEndKey("end");
constexpr QLatin1String kColourKey("colour");

struct ProteinAnnotationEntryTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinAnnotationEntry)
};

} // namespace

Result<ProteinAnnotationEntry> ProteinAnnotationEntry::fromJson(const QJsonObject &object)
{
    constexpr int kNoLimit = std::numeric_limits<int>::max();
    ProteinAnnotationEntry entry;
    ORV_RETURN_IF_ERROR(Internal::readString(object, kProteinKey, &entry.protein));
    ORV_RETURN_IF_ERROR(Internal::readString(object, kNameKey, &entry.name));
    ORV_RETURN_IF_ERROR(Internal::readInt(object, kBeginKey, 1, kNoLimit, &entry.begin));
    entry.end = entry.begin;
    ORV_RETURN_IF_ERROR(Internal::readInt(object, kEndKey, entry.begin, kNoLimit, &entry.end));
    ORV_RETURN_IF_ERROR(Internal::readString(object, kColourKey, &entry.colour));
    entry.unknownMembers = Internal::without(object, {kProteinKey, kNameKey, kBeginKey, kEndKey, kColourKey});
    return entry;
}

QJsonObject ProteinAnnotationEntry::toJson() const
{
    QJsonObject object = unknownMembers;
    object.insert(kProteinKey, protein);
    object.insert(kNameKey, name);
    object.insert(kBeginKey, begin);
    object.insert(kEndKey, end);
    object.insert(kColourKey, colour);
    return object;
}

Result<QList<ProteinAnnotationEntry>> ProteinAnnotationEntry::listFromJson(const QJsonArray &array)
{
    QList<ProteinAnnotationEntry> entries;
    entries.reserve(array.size());
    for (const auto element : array) {
        Result<ProteinAnnotationEntry> entry =
            element.isObject()
                ? fromJson(element.toObject())
                : Result<ProteinAnnotationEntry>(
                      Error(ErrorCode::InvalidContent,
                            ProteinAnnotationEntryTr::tr("A protein annotation must be an object."))
                          .addDetail(ProteinAnnotationEntryTr::tr("There is %1.")
                                         .arg(JsonUtils::typeDescription(element.type()))));
        if (entry.hasError())
            return entry.ecatch().addDetail(
                ProteinAnnotationEntryTr::tr("It is the protein annotation %1.").arg(entries.size()));
        entries.append(std::move(entry).value());
    }
    return entries;
}

QJsonArray ProteinAnnotationEntry::listToJson(const QList<ProteinAnnotationEntry> &entries)
{
    QJsonArray array;
    for (const ProteinAnnotationEntry &entry : entries)
        array.append(entry.toJson());
    return array;
}

} // namespace orv
