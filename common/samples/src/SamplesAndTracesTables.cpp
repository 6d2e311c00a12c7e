#include "orv/samples/SamplesAndTracesTables.h"

#include "internal/SampleColumns.h"
#include "internal/TraceColumns.h"
#include "internal/WrittenSamples.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SampleUtils.h>
#include <orv/samples/SamplesCheck.h>
#include <orv/table_model/TableSheet.h>

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <limits>

namespace orv {

namespace {

using SampleColumns::Sample;
using SamplesInput::CustomColumns;
using SamplesInput::Entry;
using SampleSheet = RecordSheet<Sample>;
using TraceSheet = RecordSheet<TracesImportList::Entry>;
using PresetSheet = RecordSheet<ElutionPeaksOptions>;

template<typename Record>
SamplesAndTracesTables::Sheet sheetOf(const std::shared_ptr<RecordSheet<Record>> &records)
{
    return {records, records->sheet()};
}

/// Cells that aren't allowed and listed one by one; more are counted alone.
constexpr qsizetype kListedCells = 50;
constexpr qsizetype kListedNames = 8;

enum class AcrossRows
{
    Yes,
    No, ///< names that two samples have are marked, and a warning
};

void findProblems(const TableSheet &sheet, const QString &table, AcrossRows isAcrossRows, QStringList *places)
{
    for (int row = 0; row < sheet.rowCount(); ++row) {
        for (int column = 0; column < sheet.columnCount(); ++column) {
            // What is missing is told in one line for all samples.
            if (sheet.text(row, column).isEmpty())
                continue;
            const QString problem = isAcrossRows == AcrossRows::Yes
                                        ? sheet.problem(row, column)
                                        : sheet.columns()[column].problem(sheet.text(row, column));
            if (!problem.isEmpty())
                places->append(SamplesAndTracesTables::tr("%1, row %2, %3: %4")
                                   .arg(table)
                                   .arg(row + 1)
                                   .arg(sheet.columns()[column].title, problem));
        }
    }
}

/// What can't be shown must not give way to what somebody adds.
Error unreadable()
{
    Error error(ErrorCode::InvalidContent, SamplesAndTracesTables::tr("The samples can't be read."));
    return error.addDetail(SamplesAndTracesTables::tr("Nothing can be changed while they stay as they are."));
}

QString nameOfFile(const QString &reference)
{
    return SampleUtils::sampleNameWithoutMsExtensionSuffix(
        ResourceReferenceUtils::localName(ResourceReferenceUtils::fromString(reference)));
}

} // namespace

class SamplesAndTracesTables::Private
{
public:
    explicit Private(SamplesAndTracesTables *tables)
        : q(tables)
    {}

    [[nodiscard]] Error load(const SamplesAndTracesContent &next);
    [[nodiscard]] Error loadSamples(const QList<Sample> &records, const CustomColumns &columns);
    void use(const std::shared_ptr<SampleSheet> &next, const QList<Sample> &records);
    void follow(const std::shared_ptr<SampleSheet> &sheet);
    /// What listeners hear of a sample: without its custom columns.
    [[nodiscard]] Entry entryOf(quint32 row) const;
    void readAllEntries();
    void readEntries(const QList<quint32> &rows);
    void insertEntries(const QList<int> &newRows);
    void removeEntries();
    void reorderEntries();
    void readPresetNames();
    [[nodiscard]] TableCodes codes() const;
    [[nodiscard]] Sample freshSample(quint32 row);
    [[nodiscard]] Error replaceColumns(const CustomColumns &columns, const QList<Sample> &records);
    [[nodiscard]] QStringList sampleRow(const SamplePathAndName &file) const;

    SamplesAndTracesTables *q;
    SamplesAndTracesContent content; ///< as it was set, or as it was when the columns changed
    QJsonObject json;                ///< as it was set
    bool isUnreadable = false;
    bool hasOtherColumns = false;

    std::shared_ptr<SampleSheet> samples;
    std::shared_ptr<TraceSheet> traces;
    std::shared_ptr<PresetSheet> presets;
    std::shared_ptr<void> earlier; ///< a step of it may still be on its way
    TraceColumns::PresetNames presetNames;

    QList<quint32> rows;
    QList<Entry> entries;         ///< of the rows
    QHash<int, qsizetype> places; ///< of the entries, by id; empty until it is asked for
    bool isChanged = false;
    WrittenSamples written;
    QHash<quint32, int> freshIds;
    QSet<int> takenIds;
    int nextId = 1;
};

Sample SamplesAndTracesTables::Private::freshSample(quint32 row)
{
    int &id = freshIds[row];
    if (id == 0) {
        while (takenIds.contains(nextId))
            ++nextId;
        takenIds.insert(nextId);
        id = nextId;
    }
    Sample sample;
    sample.id = id;
    return sample;
}

Error SamplesAndTracesTables::Private::loadSamples(const QList<Sample> &records, const CustomColumns &columns)
{
    freshIds.clear();
    takenIds.clear();
    int highest = 0;
    for (const Sample &sample : records) {
        takenIds.insert(sample.id);
        highest = std::max(highest, sample.id);
    }
    nextId = highest < std::numeric_limits<int>::max() - int(records.size()) ? highest + 1 : 1;
    const auto next = std::make_shared<SampleSheet>(SampleColumns::columns(columns),
                                                    [this](quint32 row) { return freshSample(row); });
    ORV_RETURN_IF_ERROR(next->load(records));
    use(next, records);
    return Error::NoError;
}

void SamplesAndTracesTables::Private::use(const std::shared_ptr<SampleSheet> &next,
                                          const QList<Sample> &records)
{
    if (samples)
        samples->sheet()->disconnect(q);
    if (samples)
        samples->sheet()->history()->disconnect(q);
    earlier = std::exchange(samples, next);
    follow(next);
    // Nobody has edited them yet, so there is nothing to be taken from the table.
    places.clear();
    written.forget();
    rows = next->sheet()->rowIds();
    entries = QList<Entry>(records.begin(), records.end());
}

void SamplesAndTracesTables::Private::follow(const std::shared_ptr<SampleSheet> &followed)
{
    const TableSheet *const sheet = followed->sheet();
    connect(sheet, &TableSheet::loaded, q, [this] { readAllEntries(); });
    connect(sheet, &TableSheet::cellsChanged, q, [this](const QList<quint32> &ids) { readEntries(ids); });
    connect(sheet, &TableSheet::rowsInserted, q,
            [this](const QList<int> &newRows) { insertEntries(newRows); });
    connect(sheet, &TableSheet::rowsRemoved, q, [this] { removeEntries(); });
    connect(sheet, &TableSheet::rowsReordered, q, [this] { reorderEntries(); });
    // One step may tell of several changes; listeners hear of it once.
    connect(sheet->history(), &TableHistory::indexChanged, q, [this] {
        const QPointer<SamplesAndTracesTables> self(q);
        if (std::exchange(isChanged, false))
            Q_EMIT q->samplesChanged();
        if (self)
            Q_EMIT q->edited();
    });
}

Entry SamplesAndTracesTables::Private::entryOf(quint32 row) const
{
    const Sample sample = samples->recordOf(row);
    return static_cast<const Entry &>(sample);
}

void SamplesAndTracesTables::Private::readAllEntries()
{
    places.clear();
    written.forget();
    rows = samples->sheet()->rowIds();
    entries.clear();
    entries.reserve(rows.size());
    for (const quint32 row : std::as_const(rows))
        entries.append(entryOf(row));
}

void SamplesAndTracesTables::Private::readEntries(const QList<quint32> &changed)
{
    isChanged = true;
    written.forget(changed);
    for (const quint32 row : changed) {
        if (const int place = samples->sheet()->rowOf(row); place >= 0 && place < entries.size())
            entries[place] = entryOf(row);
    }
}

void SamplesAndTracesTables::Private::insertEntries(const QList<int> &newRows)
{
    isChanged = true;
    places.clear();
    const QList<quint32> &now = samples->sheet()->rowIds();
    QList<Entry> next;
    next.reserve(now.size());
    auto place = newRows.cbegin();
    qsizetype old = 0;
    for (int row = 0; row < now.size(); ++row) {
        const bool isNew = place != newRows.cend() && *place == row;
        next.append(isNew ? entryOf(now[row]) : entries[old++]);
        if (isNew)
            ++place;
    }
    rows = now;
    entries = std::move(next);
}

void SamplesAndTracesTables::Private::removeEntries()
{
    isChanged = true;
    places.clear();
    QList<Entry> next;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (samples->sheet()->rowOf(rows[i]) >= 0)
            next.append(entries[i]);
    }
    rows = samples->sheet()->rowIds();
    entries = std::move(next);
}

void SamplesAndTracesTables::Private::reorderEntries()
{
    isChanged = true;
    places.clear();
    QList<Entry> next(entries.size());
    for (qsizetype i = 0; i < rows.size(); ++i)
        next[samples->sheet()->rowOf(rows[i])] = entries[i];
    rows = samples->sheet()->rowIds();
    entries = std::move(next);
}

TableCodes SamplesAndTracesTables::Private::codes() const
{
    TableCodes codes;
    for (const Entry &entry : entries)
        codes.list.append({QString::number(entry.id), entry.name});
    return codes;
}

void SamplesAndTracesTables::Private::readPresetNames()
{
    presetNames->clear();
    const TableSheet *const sheet = presets->sheet();
    const int column = sheet->columnOf(TraceColumns::kPresetName);
    for (int row = 0; row < sheet->rowCount(); ++row)
        presetNames->insert(sheet->text(row, column).toString());
    traces->sheet()->checkAnew();
}

Error SamplesAndTracesTables::Private::load(const SamplesAndTracesContent &next)
{
    const auto names = std::make_shared<QSet<QString>>();
    const auto nextTraces = std::make_shared<TraceSheet>(TraceColumns::ofTraces(
        names, [tables = QPointer(q)] { return tables ? tables->d->codes() : TableCodes(); }));
    const auto nextPresets = std::make_shared<PresetSheet>(TraceColumns::ofPresets());
    ORV_RETURN_IF_ERROR(nextTraces->load(next.options.traces.list()));
    ORV_RETURN_IF_ERROR(nextPresets->load(next.options.peaksOptions));
    ORV_RETURN_IF_ERROR(loadSamples(next.samples.samples, next.samples.columns));
    traces = nextTraces;
    presets = nextPresets;
    presetNames = names;
    content = next;
    const TableSheet &sheet = *presets->sheet();
    presets->sheet()->setRowRules(
        {TableRules::inOrder(sheet.columns(), TraceColumns::kStart, TraceColumns::kEnd)});
    readPresetNames();
    connect(presets->sheet()->history(), &TableHistory::indexChanged, q, [this] {
        readPresetNames();
        Q_EMIT q->edited();
    });
    connect(traces->sheet()->history(), &TableHistory::indexChanged, q, &SamplesAndTracesTables::edited);
    return Error::NoError;
}

Error SamplesAndTracesTables::Private::replaceColumns(const CustomColumns &columns,
                                                      const QList<Sample> &records)
{
    ORV_RETURN_IF_ERROR(loadSamples(records, columns));
    content.samples.columns = columns;
    hasOtherColumns = true;
    const QPointer<SamplesAndTracesTables> self(q);
    Q_EMIT q->sheetsChanged();
    if (self)
        Q_EMIT q->samplesChanged();
    if (self)
        Q_EMIT q->edited();
    return Error::NoError;
}

QStringList SamplesAndTracesTables::Private::sampleRow(const SamplePathAndName &file) const
{
    Sample sample;
    sample.name = file.name.isEmpty() ? nameOfFile(file.path) : file.name;
    sample.stored.insert(QStringLiteral("SamplePath"), file.path);
    return samples->textsOf(sample);
}

SamplesAndTracesTables::SamplesAndTracesTables(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    if (d->load({}).hasError())
        qFatal("No samples don't load");
}

SamplesAndTracesTables::~SamplesAndTracesTables() = default;

SamplesAndTracesTables::Sheet SamplesAndTracesTables::samples() const
{
    return sheetOf(d->samples);
}

SamplesAndTracesTables::Sheet SamplesAndTracesTables::traces() const
{
    return sheetOf(d->traces);
}

SamplesAndTracesTables::Sheet SamplesAndTracesTables::presets() const
{
    return sheetOf(d->presets);
}

Error SamplesAndTracesTables::setJsonContent(const QJsonObject &json)
{
    Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(json);
    Error error = content.hasError() ? content.error() : d->load(*content);
    if (error.hasError() && d->load({}).hasError())
        qFatal("No samples don't load");
    d->json = json;
    d->isUnreadable = error.hasError();
    d->hasOtherColumns = false;
    Q_EMIT sheetsChanged();
    Q_EMIT samplesChanged();
    return error.hasError() ? error.ecatch() : Error::NoError;
}

QJsonObject SamplesAndTracesTables::jsonContent() const
{
    const bool isEdited =
        d->hasOtherColumns || d->samples->isEdited() || d->traces->isEdited() || d->presets->isEdited();
    if (!isEdited)
        return d->json;
    SamplesAndTracesContent content = d->content;
    content.options.traces.setList(d->traces->records());
    content.options.peaksOptions = d->presets->records();
    const QJsonArray &samples = d->written.array(d->samples->sheet()->rowIds(),
                                                 [this](quint32 row) { return d->samples->recordOf(row); });
    return content.asStored(content.presentForm(samples, d->written.impliedColumns()));
}

SamplesAndTracesContent SamplesAndTracesTables::content() const
{
    SamplesAndTracesContent content = d->content;
    content.samples.samples = d->samples->records();
    content.options.traces.setList(d->traces->records());
    content.options.peaksOptions = d->presets->records();
    return content;
}

const QList<Entry> &SamplesAndTracesTables::entries() const
{
    return d->entries;
}

bool SamplesAndTracesTables::isUnreadable() const
{
    return d->isUnreadable;
}

Result<int> SamplesAndTracesTables::addFiles(const QList<SamplePathAndName> &files)
{
    if (isUnreadable())
        return unreadable();
    QSet<QString> known;
    const auto keyOf = [](const ResourceReferenceSPtr &file, const QString &name) {
        return (file ? file->key() : QString()) + QChar(u'\0') + name;
    };
    for (const Entry &entry : std::as_const(d->entries))
        known << keyOf(entry.msFile, entry.name) << keyOf(entry.msFile, {});
    QList<QStringList> rows;
    for (const SamplePathAndName &file : files) {
        const ResourceReferenceSPtr reference = ResourceReferenceUtils::fromString(file.path);
        if (known.contains(keyOf(reference, file.name)))
            continue;
        known << keyOf(reference, file.name) << keyOf(reference, {});
        rows.append(d->sampleRow(file));
    }
    Error error = d->samples->sheet()->insertRows(d->samples->sheet()->rowCount(), rows, tr("add samples"));
    if (error.hasError())
        return error.ecatch();
    return int(rows.size());
}

Result<int> SamplesAndTracesTables::nameByFiles()
{
    const TableSheet &sheet = *d->samples->sheet();
    QStringList names;
    QList<int> rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (!sheet.text(row, 0).trimmed().isEmpty() || sheet.text(row, 1).isEmpty())
            continue;
        names.append(nameOfFile(sheet.text(row, 1).toString()));
        rows.append(row);
    }
    QList<TableCellText> cells;
    for (qsizetype i = 0; i < rows.size(); ++i)
        cells.append({rows[i], 0, names[i]});
    if (Error error = d->samples->sheet()->setCells(cells, tr("name samples")); error.hasError())
        return error.ecatch();
    return int(rows.size());
}

const CustomColumns &SamplesAndTracesTables::customColumns() const
{
    return d->content.samples.columns;
}

bool SamplesAndTracesTables::hasValues(const QString &customColumn) const
{
    const TableSheet &sheet = *d->samples->sheet();
    const int column = sheet.columnOf(customColumn);
    for (int row = 0; column >= 0 && row < sheet.rowCount(); ++row) {
        if (!sheet.text(row, column).isEmpty())
            return true;
    }
    return false;
}

Error SamplesAndTracesTables::addCustomColumn(const SamplesInput::CustomColumn &column)
{
    if (isUnreadable())
        return unreadable();
    CustomColumns columns = customColumns();
    if (!columns.addCustomColumn(column)) {
        Error error(ErrorCode::InvalidContent, tr("A column can't be called \"%1\".").arg(column.name));
        return error.addDetail(tr("Enter a name that no other column has."));
    }
    return d->replaceColumns(columns, d->samples->records()).ecatch();
}

bool SamplesAndTracesTables::removeCustomColumn(const QString &name)
{
    SamplesInput::SamplesArrayWithCustomColumns next{d->samples->records(), customColumns()};
    return next.removeCustomColumn(name) && !d->replaceColumns(next.columns, next.samples).hasError();
}

bool SamplesAndTracesTables::validate(QStringList *warnings, QStringList *errors, QStringList *details) const
{
    QStringList places;
    findProblems(*d->samples->sheet(), tr("Samples"), AcrossRows::No, &places);
    findProblems(*d->traces->sheet(), tr("Traces"), AcrossRows::Yes, &places);
    findProblems(*d->presets->sheet(), tr("Peak options"), AcrossRows::Yes, &places);
    if (!places.isEmpty() && errors)
        errors->append(tr("Cells of the samples that hold what isn't allowed there: %1.").arg(places.size()));
    if (isUnreadable() && errors)
        errors->append(tr("The samples can't be read."));
    if (details)
        *details += places.first(std::min(places.size(), kListedCells));
    const bool isValid = SamplesCheck::validate(content(), warnings, errors, details);
    return isValid && places.isEmpty() && !isUnreadable();
}

int SamplesAndTracesTables::sampleIdOfRow(quint32 rowId) const
{
    const int row = d->samples->sheet()->rowOf(rowId);
    return row < 0 || row >= d->entries.size() ? 0 : d->entries[row].id;
}

QString SamplesAndTracesTables::namesOfSamples(QStringView cellText) const
{
    if (d->places.isEmpty()) {
        for (qsizetype i = d->entries.size() - 1; i >= 0; --i)
            d->places.insert(d->entries[i].id, i);
    }
    const QList<int> ids = TraceColumns::idsIn(cellText);
    QStringList texts;
    for (const int id : ids.first(std::min(ids.size(), kListedNames))) {
        const qsizetype place = d->places.value(id, -1);
        texts.append(place < 0 ? tr("no sample %1").arg(id) : d->entries[place].name);
    }
    if (ids.size() > kListedNames)
        texts.append(tr("%n more", nullptr, int(ids.size() - kListedNames)));
    return texts.join(QLatin1String(", "));
}

bool SamplesAndTracesTables::isTraceOf(int traceRow, const QList<int> &sampleIds) const
{
    const TraceSampleIds ids = d->traces->record(traceRow).samplesIds();
    return std::any_of(sampleIds.cbegin(), sampleIds.cend(), [&ids](int id) { return ids.contains(id); });
}

} // namespace orv
