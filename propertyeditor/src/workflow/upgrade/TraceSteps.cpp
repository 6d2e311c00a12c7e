#include "StepHelpers.h"

#include <orv/core/Logging.h>
#include <orv/core_ms/ElutionPeaksBackwardsCompatibility.h>
#include <orv/core_ms/MsUtils.h>
#include <orv/core_ms/SimpleFilesInfoManager.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <QHash>
#include <QSet>

#include <algorithm>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

using ListedTrace = TracesImportList::Entry;
using SamplesInput::SampleWithCustomColumns;

constexpr auto kRebuiltFormat = msreader::VendorDataFormat::Thermo;

QList<ResourceReferenceSPtr> msFilesOf(const SamplesAndTracesContent &samples)
{
    QList<ResourceReferenceSPtr> files;
    for (const ResourceReferenceSPtr &reference : samples.references()) {
        if (ResourceTypeChecker::isMSFileType(reference))
            files.append(reference);
    }
    return files;
}

/// Lets the samples refer to their MS files where these are, and collects them.
class FileCheck
{
public:
    FileCheck(const SamplesAndTracesContent &samples, const QUrl &baseUrl)
        : m_baseUrl(baseUrl)
        , m_msFiles(msFilesOf(samples))
        , m_manager(m_msFiles, baseUrl)
        , m_known(m_msFiles.begin(), m_msFiles.end())
    {}

    Error correct(SamplesAndTracesContent *content)
    {
        for (SampleWithCustomColumns &sample : content->samples.samples) {
            ORV_RETURN_IF_ERROR(correct(&sample.msFile, &sample));
            for (ResourceReferenceSPtr &file : sample.traces)
                ORV_RETURN_IF_ERROR(correct(&file, &sample));
            for (ResourceReferenceSPtr &file : sample.extraReferences)
                ORV_RETURN_IF_ERROR(correct(&file, &sample));
        }
        return Error::NoError;
    }

    /// Where they lie.
    [[nodiscard]] const QList<ResourceReferenceSPtr> &files() const { return m_corrected; }

private:
    /// The items of old documents can be asked for only when a later step has given them their identifiers.
    static bool lacksIdentifier(const ResourceReference &reference)
    {
        return reference.isScheme(ResourceReference::Scheme::UNIFI) && reference.parts().id.isEmpty();
    }

    Error correct(ResourceReferenceSPtr *file, SampleWithCustomColumns *sample)
    {
        if (!*file || !m_known.contains(*file) || lacksIdentifier(**file))
            return Error::NoError;
        Result<ResourceReferenceSPtr> corrected = m_manager.validateAndCorrectFileReference(*file);
        if (corrected.hasError()) {
            const Error cause = corrected.ecatch();
            return failure(QObject::tr("Upgrade not possible. An error occured while trying to access the "
                                       "file: %1.")
                               .arg(ResourceReferenceUtils::withoutCredentials((*file)->text())),
                           (cause.errorMessages() + cause.details()).join(QLatin1Char(' ')));
        }
        sample->moveFileMetadata((*file)->text(), (*corrected)->text());
        *file = *corrected;
        m_corrected.append(ResourceReferenceUtils::resolved(*corrected, m_baseUrl));
        return Error::NoError;
    }

    QUrl m_baseUrl;
    QList<ResourceReferenceSPtr> m_msFiles;
    SimpleFilesInfoManager m_manager;
    QSet<ResourceReferenceKey> m_known;
    QList<ResourceReferenceSPtr> m_corrected;
};

Error updateAfterReaderChange(SamplesAndTracesContent *samples, const QUrl &baseUrl)
{
    FileCheck check(*samples, baseUrl);
    ORV_RETURN_IF_ERROR(check.correct(samples));
    TraceImportAndProcessingOptions options = samples->options;
    ORV_RETURN_IF_ERROR(
        ElutionPeaksBackwardsCompatibility::updateTracesAfterMsReaderApiChanged(check.files(), &options));
    samples->options = options;
    return Error::NoError;
}

bool hasOldName(const ListedTrace &entry)
{
    return entry.traceItem().type() == TraceType::Other &&
           entry.traceItem().channelName().startsWith(msreader::CHROMATOGRAM_NAME_OTHER_PREFIX);
}

/// What the files of the format whose traces are rebuilt have beside ion counts.
struct Chromatograms
{
    QList<TraceItem> items;
    bool hasOthers = false; ///< files that may have given an old name as well

    [[nodiscard]] bool replaceOldNames() const { return !items.isEmpty() && !hasOthers; }
};

Error addChromatograms(const MsUtils::AccessorForMsFile &file, Chromatograms *found)
{
    if (file.accessor->vendorFormat() != kRebuiltFormat) {
        found->hasOthers = true;
        return file.error && file.accessor->isFormatRead() ? file.error : Error();
    }
    if (file.error) {
        if (file.accessor->isFormatRead())
            return file.error;
        qCWarning(propertyEditorLog).noquote() << "The names of the traces of" << file.accessor->path()
                                               << "stay as they were:" << file.error.errorMessage();
        found->hasOthers = true;
        return Error::NoError;
    }
    auto infos = file.accessor->chromatogramInfoList(msreader::ChromatogramFilters::nonMs);
    if (infos.hasError())
        return infos.ecatch();
    for (const msreader::ChromatogramInfo &info : std::as_const(*infos))
        found->items.append({MsUtils::traceTypeFromChromatogramType(info.type), {info.name, info.id}});
    return Error::NoError;
}

Result<Chromatograms> chromatogramsOf(const QList<ResourceReferenceSPtr> &files)
{
    Chromatograms found;
    for (const ResourceReferenceSPtr &reference : files) {
        // What was fetched lives as long as its handler.
        Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(reference);
        if (!handler)
            return handler.ecatch();
        Result<QString> path = (*handler)->grab();
        if (!path)
            return path.ecatch();
        for (const MsUtils::AccessorForMsFile &file : MsUtils::accessorsForMsFiles({*path}))
            ORV_RETURN_IF_ERROR(addChromatograms(file, &found));
    }
    return found;
}

/// An entry of a trace that the list lacks under its name. It is used as those with old names were, one of
/// which it was.
ListedTrace newEntry(const TraceItem &item, const QList<ListedTrace> &oldNames)
{
    ListedTrace entry(item);
    entry.setImported(std::ranges::any_of(oldNames, &ListedTrace::isImported));
    entry.setPeaksOptionsName(oldNames.constFirst().peaksOptionsName());
    return entry;
}

QList<ListedTrace> rebuilt(const QList<ListedTrace> &list, const Chromatograms &found)
{
    QList<ListedTrace> entries;
    QList<ListedTrace> oldNames;
    QHash<QString, qsizetype> places;
    for (const ListedTrace &entry : list) {
        if (hasOldName(entry))
            oldNames.append(entry);
        if (hasOldName(entry) && found.replaceOldNames())
            continue;
        if (!places.contains(entry.traceItem().channelName()))
            places.insert(entry.traceItem().channelName(), entries.size());
        entries.append(entry);
    }
    for (const TraceItem &item : found.items) {
        const auto place = places.constFind(item.channelName());
        if (place != places.constEnd()) {
            entries[*place].setTraceItem(item);
            continue;
        }
        places.insert(item.channelName(), entries.size());
        entries.append(newEntry(item, oldNames));
    }
    TracesImportList::sortTracesByGroup(&entries);
    return entries;
}

Error rebuildOldNames(SamplesAndTracesContent *samples, const QUrl &baseUrl)
{
    FileCheck check(*samples, baseUrl);
    ORV_RETURN_IF_ERROR(check.correct(samples));
    Result<Chromatograms> found = chromatogramsOf(check.files());
    if (!found)
        return found.ecatch();
    samples->options.traces.setList(rebuilt(samples->options.traces.list(), *found));
    return Error::NoError;
}

} // namespace

// Readers call traces by other names than they did.
Error WflwUpgradeHelper::upgradeV_5_10_1(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (!working->samplesTable())
        return noSamples();
    SamplesAndTracesContent samples = working->samplesAndTraces();
    ORV_RETURN_IF_ERROR(updateAfterReaderChange(&samples, baseUrl()));
    working->setSamplesAndTraces(samples);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

// Chromatograms of devices have the names that their files give them.
Error WflwUpgradeHelper::upgradeV_5_39_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (!working->samplesTable())
        return noSamples();
    SamplesAndTracesContent samples = working->samplesAndTraces();
    const bool applies =
        !samples.samples.samples.isEmpty() && std::ranges::any_of(samples.options.traces.list(), hasOldName);
    if (!applies)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(rebuildOldNames(&samples, baseUrl()));
    working->setSamplesAndTraces(samples);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

} // namespace orv
