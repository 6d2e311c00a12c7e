#include "orv/samples/TraceImportAndProcessingOptions.h"

#include "internal/MemberReader.h"

#include <QCoreApplication>
#include <QSet>

namespace orv {

namespace {

constexpr QLatin1String kTraces("TracesImportList");
constexpr QLatin1String kPeaksPresets("ElutionPeaksOptions");

struct TraceImportAndProcessingOptionsTr
{
    Q_DECLARE_TR_FUNCTIONS(TraceImportAndProcessingOptions)
};

/// The names of all presets; what is wrong with them goes to \a errors.
QSet<QString> validPresetNames(const QList<ElutionPeaksOptions> &presets, QStringList *errors)
{
    QSet<QString> names;
    QSet<QString> repeated;
    for (const ElutionPeaksOptions &preset : presets) {
        *errors += preset.faults();
        if (names.contains(preset.name()) && !repeated.contains(preset.name())) {
            errors->append(TraceImportAndProcessingOptionsTr::tr(
                               "There are several peak options presets with the name \"%1\".")
                               .arg(preset.name()));
            repeated.insert(preset.name());
        }
        names.insert(preset.name());
    }
    return names;
}

void insertUnlessAbsent(QJsonObject *json, QLatin1String key, const QJsonArray &array)
{
    const QJsonValue before = json->value(key);
    if (!array.isEmpty() || before.isArray())
        json->insert(key, array);
}

} // namespace

Result<TraceImportAndProcessingOptions> TraceImportAndProcessingOptions::fromJson(const QJsonObject &json)
{
    TraceImportAndProcessingOptions options;
    MemberReader reader(json);
    if (reader.has(kTraces)) {
        Result<QJsonArray> array = JsonUtils::arrayValue(json, kTraces);
        if (array.hasError())
            return array.ecatch();
        Result<TracesImportList> traces = TracesImportList::fromJson(*array);
        if (traces.hasError())
            return traces.ecatch();
        options.traces = *traces;
    }
    reader.forEachObject(kPeaksPresets, [&options](const QJsonObject &element) -> Error {
        Result<ElutionPeaksOptions> preset = ElutionPeaksOptions::fromJson(element);
        if (preset.hasError())
            return preset.ecatch();
        options.peaksOptions.append(*preset);
        return Error::NoError;
    });
    ORV_RETURN_IF_ERROR(reader.error());
    options.m_unknownMembers = json;
    // Empty arrays remember that the member was there.
    for (QLatin1String key : {kTraces, kPeaksPresets}) {
        if (reader.has(key))
            options.m_unknownMembers.insert(key, QJsonArray());
    }
    return options;
}

QJsonObject TraceImportAndProcessingOptions::toJson() const
{
    QJsonObject json = m_unknownMembers;
    QJsonArray presets;
    for (const ElutionPeaksOptions &preset : peaksOptions)
        presets.append(preset.toJson());
    insertUnlessAbsent(&json, kTraces, traces.toJson());
    insertUnlessAbsent(&json, kPeaksPresets, presets);
    return json;
}

bool TraceImportAndProcessingOptions::validate(QStringList *warnings, QStringList *errors) const
{
    const qsizetype errorsBefore = errors->size();
    const QSet<QString> presets = validPresetNames(peaksOptions, errors);
    QSet<TraceItem> seen;
    for (const TracesImportList::Entry &entry : traces.list()) {
        const QString name = entry.traceItem().channelName();
        if (seen.contains(entry.traceItem()))
            warnings->append(
                TraceImportAndProcessingOptionsTr::tr("The trace \"%1\" is listed more than once.")
                    .arg(name));
        seen.insert(entry.traceItem());
        if (!entry.isImported())
            continue;
        if (!entry.peaksOptionsName().isEmpty() && !presets.contains(entry.peaksOptionsName())) {
            errors->append(TraceImportAndProcessingOptionsTr::tr(
                               "The trace \"%1\" uses the peak options preset \"%2\", which does not exist.")
                               .arg(name, entry.peaksOptionsName()));
        }
        if (!entry.samplesIds().isAll() && entry.samplesIds().ids().isEmpty())
            warnings->append(
                TraceImportAndProcessingOptionsTr::tr("The trace \"%1\" is imported for no sample.")
                    .arg(name));
    }
    return errors->size() == errorsBefore;
}

} // namespace orv
