#include "SampleMembers.h"

#include "EntryMembers.h"
#include "MemberReader.h"

#include <algorithm>
#include <array>
#include <optional>

namespace orv {

namespace {

// Named each time: joined sources have names of their own like these.
namespace Members = SamplesInput::Members;

/// The member that holds the sample's path: the present one, or an old one that is there.
QLatin1String pathKeyOf(const MemberReader &reader)
{
    for (QLatin1String old : Members::kOldPaths) {
        if (!reader.has(Members::kPath) && reader.has(old))
            return old;
    }
    return Members::kPath;
}

/// The texts of \a key, or where that is absent those of the old members, which hold one each.
template<typename OldKeys>
QStringList textsOf(MemberReader *reader, QLatin1String key, const OldKeys &oldKeys)
{
    if (reader->has(key))
        return reader->texts(key);
    QStringList texts;
    for (QLatin1String old : oldKeys)
        texts.append(reader->text(old));
    texts.removeAll(QString());
    return texts;
}

Result<SampleMembers> readEach(const QJsonObject &json)
{
    MemberReader reader(json);
    SampleMembers members;
    members.id = reader.integer(Members::kId, 0);
    members.name = reader.text(Members::kName);
    members.pathKey = pathKeyOf(reader);
    members.path = reader.text(members.pathKey);
    members.traces = textsOf(&reader, Members::kTraces, Members::kOldTraces);
    members.extraReferences = textsOf(&reader, Members::kExtraReferences, Members::kOldExtraReferences);
    members.isReference = reader.flag(Members::kReference, false);
    members.timeUnit = reader.text(Members::kTimeUnit);
    members.digestion = reader.text(Members::kDigestion);
    members.sampleType = reader.text(Members::kSampleType);
    // Trees of rows have a text here, which says nothing that is asked of it.
    members.metadata = json.value(Members::kMetadata).toObject();
    members.fileMetadata = reader.object(Members::kFileMetadata);
    ORV_RETURN_IF_ERROR(reader.error());
    return members;
}

/// What a pass over the members finds.
struct Found
{
    SampleMembers members;
    std::optional<QString> path;
    std::array<std::optional<QString>, Members::kOldPaths.size()> oldPaths;
    std::optional<QStringList> traces;
    std::array<QString, Members::kOldTraces.size()> oldTraces;
    std::optional<QStringList> extraReferences;
    std::array<QString, Members::kOldExtraReferences.size()> oldExtraReferences;
};

bool takeId(Found *found, const QJsonValue &value)
{
    found->members.id = value.toInt();
    return value.isDouble() && double(value.toInt()) == value.toDouble();
}

template<QString SampleMembers::*member>
bool takeText(Found *found, const QJsonValue &value)
{
    found->members.*member = value.toString();
    return value.isString();
}

bool takePath(Found *found, const QJsonValue &value)
{
    found->path = value.toString();
    return value.isString();
}

template<auto member, size_t index>
bool takeOld(Found *found, const QJsonValue &value)
{
    (found->*member)[index] = value.toString();
    return value.isString();
}

template<std::optional<QStringList> Found::*member>
bool takeTexts(Found *found, const QJsonValue &value)
{
    QStringList &texts = (found->*member).emplace();
    const QJsonArray array = value.toArray();
    for (const auto element : array) {
        if (!element.isString())
            return false;
        texts.append(element.toString());
    }
    return value.isArray();
}

bool takeFlag(Found *found, const QJsonValue &value)
{
    found->members.isReference = value.toBool();
    return value.isBool();
}

bool takeMetadata(Found *found, const QJsonValue &value)
{
    found->members.metadata = value.toObject();
    return true;
}

bool takeFileMetadata(Found *found, const QJsonValue &value)
{
    found->members.fileMetadata = value.toObject();
    return value.isObject();
}

struct MemberRow
{
    QLatin1String key;
    bool (*take)(Found *found, const QJsonValue &value); ///< false for one of the wrong type
};

// clang-format off
constexpr std::array kMemberRows = {
    MemberRow{Members::kId, takeId},
    MemberRow{Members::kName, takeText<&SampleMembers::name>},
    MemberRow{Members::kPath, takePath},
    MemberRow{Members::kOldPaths[0], takeOld<&Found::oldPaths, 0>},
    MemberRow{Members::kOldPaths[1], takeOld<&Found::oldPaths, 1>},
    MemberRow{Members::kTraces, takeTexts<&Found::traces>},
    MemberRow{Members::kOldTraces[0], takeOld<&Found::oldTraces, 0>},
    MemberRow{Members::kOldTraces[1], takeOld<&Found::oldTraces, 1>},
    MemberRow{Members::kExtraReferences, takeTexts<&Found::extraReferences>},
    MemberRow{Members::kOldExtraReferences[0], takeOld<&Found::oldExtraReferences, 0>},
    MemberRow{Members::kReference, takeFlag},
    MemberRow{Members::kTimeUnit, takeText<&SampleMembers::timeUnit>},
    MemberRow{Members::kDigestion, takeText<&SampleMembers::digestion>},
    MemberRow{Members::kSampleType, takeText<&SampleMembers::sampleType>},
    MemberRow{Members::kMetadata, takeMetadata},
    MemberRow{Members::kFileMetadata, takeFileMetadata},
};
// clang-format on
static_assert(kMemberRows.size() == Members::kReserved.size());

template<typename Texts>
QStringList chosen(const std::optional<QStringList> &present, const Texts &old)
{
    if (present)
        return *present;
    QStringList texts(old.begin(), old.end());
    texts.removeAll(QString());
    return texts;
}

/// Nothing where a member is of the wrong type, be it one that isn't asked for.
std::optional<SampleMembers> readInOnePass(const QJsonObject &json)
{
    Found found;
    for (auto it = json.begin(); it != json.end(); ++it) {
        const QString key = it.key();
        const auto *const row = std::ranges::find(kMemberRows, key, &MemberRow::key);
        if (row == kMemberRows.end())
            continue;
        const QJsonValue value = it.value();
        if (!value.isNull() && !row->take(&found, value))
            return std::nullopt;
    }
    SampleMembers &members = found.members;
    members.pathKey = Members::kPath;
    members.path = found.path.value_or(QString());
    const auto *const old = std::ranges::find_if(found.oldPaths, &std::optional<QString>::has_value);
    if (!found.path && old != found.oldPaths.end()) {
        members.pathKey = Members::kOldPaths[size_t(old - found.oldPaths.begin())];
        members.path = **old;
    }
    members.traces = chosen(found.traces, found.oldTraces);
    members.extraReferences = chosen(found.extraReferences, found.oldExtraReferences);
    return members;
}

} // namespace

Result<SampleMembers> SampleMembers::read(const QJsonObject &json)
{
    // Most samples have few of the members, so that asking for each of them takes longer.
    if (std::optional<SampleMembers> members = readInOnePass(json))
        return *std::move(members);
    return readEach(json);
}

SampleMembers SampleMembers::readOrNone(const QJsonObject &json)
{
    if (Result<SampleMembers> members = read(json); !members.hasError())
        return std::move(members).value();
    SampleMembers none;
    none.pathKey = pathKeyOf(MemberReader(json));
    return none;
}

QList<ResourceReferenceSPtr> SampleMembers::referencesOf(const QStringList &texts, QStringList *unreadable)
{
    QList<ResourceReferenceSPtr> references;
    references.reserve(texts.size());
    for (const QString &text : texts) {
        const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
        if (reference.hasError())
            unreadable->append(text);
        else if (!(*reference)->isEmpty())
            references.append(*reference);
    }
    return references;
}

} // namespace orv
