#include "RememberedAnswer.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/workflow/MirelElutionPeaksBackwardsCompatibility.h>
#include <orv/samples/SampleUtils.h>

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>

#include <algorithm>
#include <array>

namespace orv {

namespace {

using Compatibility = ElutionPeaksBackwardsCompatibility;
using TraceEntry = TracesImportList::Entry;
using SamplesInput::CustomColumn;
using SamplesInput::CustomColumns;
using SamplesInput::SampleWithCustomColumns;

// Columns of old documents, never rename.
constexpr QLatin1String kName("SampleName");
constexpr QLatin1String kPath("SamplePath");
constexpr QLatin1String kTimeUnit("SampleTimeUnit");
constexpr QLatin1String kDigestion("Digestion");
constexpr QLatin1String kTracesCsv("TracesCsv");
constexpr QLatin1String kTracesMs("TracesMs");
constexpr QLatin1String kMs2Search("Ms2Search");
constexpr QLatin1String kSampleType("SampleType");
constexpr QLatin1String kMetadata("Metadata");

constexpr std::array kColumns = {kName,     kPath,      kTimeUnit,   kDigestion, kTracesCsv,
                                 kTracesMs, kMs2Search, kSampleType, kMetadata};

// How still older documents call the path.
constexpr std::array kOldPaths = {QLatin1String("FilePath"), QLatin1String("FileName")};

constexpr std::array kTraceFileSuffixes = {QLatin1String(".txt"), QLatin1String(".csv"),
                                           QLatin1String(".arw")};

bool isKnownColumn(const QString &name)
{
    return std::ranges::find(kColumns, name) != kColumns.end() ||
           std::ranges::find(kOldPaths, name) != kOldPaths.end();
}

bool isTraceFile(const QString &path)
{
    return std::ranges::any_of(kTraceFileSuffixes, [&path](QLatin1String suffix) {
        return path.endsWith(suffix, Qt::CaseInsensitive);
    });
}

void addColumn(const CustomColumn &column, CustomColumns *columns)
{
    if (isKnownColumn(column.name) || columns->contains(column.name))
        return;
    if (!columns->addCustomColumn(column)) {
        qCWarning(propertyEditorLog) << "The column" << column.name
                                     << "of the samples can't be taken over, as its name is in use.";
    }
}

void addDefinedColumns(const RowNode &definitions, CustomColumns *columns)
{
    for (const QVariant &definition : definitions.data) {
        const QJsonObject object = QJsonValue::fromVariant(definition).toObject();
        CustomColumn column;
        column.name = object.value(QLatin1String("name")).toString();
        column.type = object.value(QLatin1String("type")).toString(QStringLiteral("text"));
        if (column.name.isEmpty())
            qCWarning(propertyEditorLog) << "A column of the samples is defined without a name:" << object;
        else
            addColumn(column, columns);
    }
}

/// The cells of one row by the names of their columns.
class OldSampleRow
{
public:
    OldSampleRow(const RowNode &row, const QMap<QString, qsizetype> &places)
        : m_row(row)
        , m_places(places)
    {}

    [[nodiscard]] QVariant cell(const QString &column) const
    {
        const auto place = m_places.constFind(column);
        return place == m_places.constEnd() ? QVariant() : m_row.data.value(*place);
    }
    [[nodiscard]] QString text(const QString &column) const { return cell(column).toString(); }

private:
    const RowNode &m_row;
    const QMap<QString, qsizetype> &m_places;
};

ResourceReferenceSPtr referenceOf(const QString &text)
{
    if (text.isEmpty())
        return {};
    Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (reference.hasError())
        qCWarning(propertyEditorLog).noquote() << reference.ecatch().errorMessage();
    return reference.valueOr({});
}

QString pathOf(const OldSampleRow &row)
{
    QString path = row.text(kPath);
    for (QLatin1String old : kOldPaths) {
        if (path.isEmpty())
            path = row.text(old);
    }
    return path;
}

/// Words that are no object say nothing that anybody asks for.
QJsonObject metadataOf(const QVariant &cell)
{
    const QByteArray text = cell.toString().toUtf8();
    return text.isEmpty() ? QJsonValue::fromVariant(cell).toObject() : QJsonDocument::fromJson(text).object();
}

/// All traces of the samples, each once.
class Traces
{
public:
    void addAll(const QList<TraceEntry> &entries)
    {
        for (const TraceEntry &entry : entries)
            add(entry);
    }

    void addTable(const ResourceReferenceSPtr &file, int sampleId)
    {
        if (!file)
            return;
        // Only an entry of the same name can be the same trace.
        const QString name = file->name().toLower();
        const auto known = m_tables.constFind(name);
        const QList<TraceEntry> alike =
            known == m_tables.constEnd() ? QList<TraceEntry>() : QList<TraceEntry>{m_entries.at(*known)};
        const auto trace =
            Compatibility::createTraceCsvTrace(file, Compatibility::traceItemsFromTracesEntries(alike));
        if (!trace)
            return;
        const qsizetype place = add(TraceEntry(*trace));
        m_tables.insert(name, place);
        // Samples come in the order of their ids.
        if (QList<int> &ids = m_sampleIds[place]; ids.isEmpty() || ids.constLast() != sampleId)
            ids.append(sampleId);
    }

    [[nodiscard]] QList<TraceEntry> entries() const
    {
        QList<TraceEntry> entries = m_entries;
        for (auto it = m_sampleIds.begin(); it != m_sampleIds.end(); ++it)
            entries[it.key()].setSamplesIds(TraceSampleIds(it.value()));
        return entries;
    }

private:
    qsizetype add(const TraceEntry &entry)
    {
        const auto known = m_places.constFind(entry.traceItem());
        if (known == m_places.constEnd()) {
            m_places.insert(entry.traceItem(), m_entries.size());
            m_entries.append(entry);
            return m_entries.size() - 1;
        }
        TraceEntry &same = m_entries[*known];
        same.setImported(same.isImported() || entry.isImported());
        return *known;
    }

    QList<TraceEntry> m_entries;
    QHash<TraceItem, qsizetype> m_places;
    QHash<QString, qsizetype> m_tables; ///< by the file's name in lower case
    QMap<qsizetype, QList<int>> m_sampleIds;
};

/// How the files of samples are found.
struct FileSearch
{
    QUrl baseUrl;
    bool stopAsking;
};

void readFiles(const OldSampleRow &row, SampleWithCustomColumns *sample, Traces *traces, FileSearch *search)
{
    const ResourceReferenceSPtr table = referenceOf(row.text(kTracesCsv));
    traces->addTable(table, sample->id);

    const QString path = pathOf(row);
    sample->msFile = referenceOf(path);
    if (isTraceFile(path))
        traces->addTable(sample->msFile, sample->id);
    else
        traces->addAll(extractTracesFromMsFile(&sample->msFile, &search->stopAsking, search->baseUrl));

    ResourceReferenceSPtr tracesMs = referenceOf(row.text(kTracesMs));
    traces->addAll(extractTracesFromMsFile(&tracesMs, &search->stopAsking, search->baseUrl));

    sample->traces = {table, tracesMs};
    sample->traces.removeAll(nullptr);
    if (const ResourceReferenceSPtr ms2Search = referenceOf(row.text(kMs2Search)))
        sample->extraReferences = {ms2Search};
}

void readCustomValues(const OldSampleRow &row, const CustomColumns &columns, SampleWithCustomColumns *sample)
{
    for (const CustomColumn &column : columns.columns()) {
        const QVariant value = row.cell(column.name);
        if (value.isValid() && !value.isNull())
            sample->customValues.insert(column.name, value);
    }
}

SampleWithCustomColumns readSample(const OldSampleRow &row, int id, const CustomColumns &columns,
                                   Traces *traces, FileSearch *search)
{
    SampleWithCustomColumns sample;
    sample.id = id;
    sample.name = SampleUtils::sampleNameWithoutMsExtensionSuffix(row.text(kName));
    sample.timeUnit = row.text(kTimeUnit);
    sample.digestion = row.text(kDigestion);
    sample.sampleType = row.text(kSampleType);
    sample.metadata = metadataOf(row.cell(kMetadata));
    readFiles(row, &sample, traces, search);
    readCustomValues(row, columns, &sample);
    return sample;
}

} // namespace

void extractSamplesAndAllTracesFromWlfwSamplesRowNode(const RowNode &samples,
                                                      const std::optional<RowNode> &customColumnsMetaData,
                                                      QList<SampleWithCustomColumns> *samplesOut,
                                                      CustomColumns *columnsOut, QList<TraceEntry> *tracesOut,
                                                      const QUrl &baseUrl)
{
    CustomColumns columns;
    if (customColumnsMetaData)
        addDefinedColumns(*customColumnsMetaData, &columns);
    QMap<QString, qsizetype> places;
    const QStringList names = samples.data.toStringList();
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names.at(i).isEmpty() || places.contains(names.at(i)))
            continue;
        places.insert(names.at(i), i);
        addColumn({names.at(i), QStringLiteral("text"), {}, {}}, &columns);
    }

    FileSearch search{baseUrl, RememberedAnswer::isAskingStopped()};
    Traces traces;
    samplesOut->clear();
    for (int i = 0; i < samples.getChildListSize(); ++i) {
        RowNode row(*samples.getChild(i));
        Compatibility::removeAllDoubleDashFromRowNode(&row);
        samplesOut->append(readSample(OldSampleRow(row, places), i + 1, columns, &traces, &search));
    }
    *columnsOut = columns;
    *tracesOut = traces.entries();
}

} // namespace orv
