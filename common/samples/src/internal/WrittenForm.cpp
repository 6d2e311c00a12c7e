#include "WrittenForm.h"

#include "EntryMembers.h"

#include <orv/resources/ResourceReference.h>
#include <orv/samples/CustomColumns.h>
#include <orv/samples/TraceImportAndProcessingOptions.h>

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace orv::WrittenForm {

namespace {

namespace Members = SamplesInput::Members;

bool isAbsent(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull();
}

bool isWholeNumber(const QJsonValue &value)
{
    return value.isDouble() && double(value.toInt()) == value.toDouble();
}

bool isReferenceText(const QJsonValue &value)
{
    return value.isString() && ResourceReference::isReference(value.toString());
}

bool holdsReferences(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    return value.isArray() && std::all_of(array.begin(), array.end(),
                                          [](const auto element) { return isReferenceText(element); });
}

bool isFlag(const QJsonValue &value)
{
    return value.isBool();
}

bool isText(const QJsonValue &value)
{
    return value.isString();
}

bool isObject(const QJsonValue &value)
{
    return value.isObject();
}

using Check = bool (*)(const QJsonValue &value);

struct CheckedMember
{
    QLatin1String key;
    Check fits;
    bool isRequired = false; ///< written even where it was left out
};

// clang-format off
constexpr std::array kMembers = {
    CheckedMember{Members::kId, isWholeNumber, true},
    CheckedMember{Members::kName, isText, true},
    CheckedMember{Members::kPath, isReferenceText},
    CheckedMember{Members::kOldPaths[0], isReferenceText},
    CheckedMember{Members::kOldPaths[1], isReferenceText},
    CheckedMember{Members::kTraces, holdsReferences},
    CheckedMember{Members::kOldTraces[0], isReferenceText},
    CheckedMember{Members::kOldTraces[1], isReferenceText},
    CheckedMember{Members::kExtraReferences, holdsReferences},
    CheckedMember{Members::kOldExtraReferences[0], isReferenceText},
    CheckedMember{Members::kReference, isFlag},
    CheckedMember{Members::kTimeUnit, isText},
    CheckedMember{Members::kDigestion, isText},
    CheckedMember{Members::kSampleType, isText},
    CheckedMember{Members::kFileMetadata, isObject},
};
// clang-format on

constexpr auto kRequiredMembers = std::ranges::count(kMembers, true, &CheckedMember::isRequired);

/// Most samples have few of the members above, so that asking for each of them would take longer.
bool isSample(const QJsonValue &value)
{
    const QJsonObject sample = value.toObject();
    std::ptrdiff_t required = 0;
    for (auto it = sample.begin(); it != sample.end(); ++it) {
        const QString key = it.key();
        const auto *const member = std::ranges::find(kMembers, key, &CheckedMember::key);
        if (member == kMembers.end())
            continue;
        const QJsonValue found = it.value();
        if (!member->fits(found) && (member->isRequired || !isAbsent(found)))
            return false;
        required += member->isRequired ? 1 : 0;
    }
    return required == kRequiredMembers;
}

bool areColumns(const QJsonValue &value)
{
    if (isAbsent(value))
        return true;
    const QJsonArray array = value.toArray();
    const auto columns = SamplesInput::CustomColumns::fromJson(array);
    return value.isArray() && !columns.hasError() && columns->toJson() == array;
}

bool areOptions(const QJsonValue &value)
{
    if (isAbsent(value))
        return true;
    const QJsonObject object = value.toObject();
    const auto options = TraceImportAndProcessingOptions::fromJson(object);
    return value.isObject() && !options.hasError() && options->toJson() == object;
}

} // namespace

bool isSamplesTable(const QJsonObject &json)
{
    const QJsonValue samples = json.value(QLatin1String("Samples"));
    const QJsonArray array = samples.toArray();
    return samples.isArray() && areColumns(json.value(QLatin1String("CustomColumns"))) &&
           areOptions(json.value(QLatin1String("TraceImportAndProcessingOptions"))) &&
           std::all_of(array.begin(), array.end(), [](const auto sample) { return isSample(sample); });
}

} // namespace orv::WrittenForm
