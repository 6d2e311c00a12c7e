#include "TraceColumns.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace orv::TraceColumns {

namespace {

struct TraceColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(TraceColumns)
};

using Trace = TracesImportList::Entry;
using TraceColumn = RecordColumn<Trace>;
using Preset = ElutionPeaksOptions;
using PresetColumn = RecordColumn<Preset>;

struct TypeName
{
    TraceType type;
    const char *name;
};

constexpr std::array kTypes = {
    TypeName{TraceType::Tic, QT_TRANSLATE_NOOP("TraceColumns", "Total ion current")},
    TypeName{TraceType::Bpi, QT_TRANSLATE_NOOP("TraceColumns", "Base peak intensity")},
    TypeName{TraceType::Xic, QT_TRANSLATE_NOOP("TraceColumns", "Extracted ion")},
    TypeName{TraceType::Uv, QT_TRANSLATE_NOOP("TraceColumns", "UV")},
    TypeName{TraceType::Other, QT_TRANSLATE_NOOP("TraceColumns", "Other chromatogram")},
    TypeName{TraceType::Csv, QT_TRANSLATE_NOOP("TraceColumns", "Text file")},
    TypeName{TraceType::Electropherogram, QT_TRANSLATE_NOOP("TraceColumns", "Electropherogram")},
    TypeName{TraceType::IcIef, QT_TRANSLATE_NOOP("TraceColumns", "icIEF")},
    TypeName{TraceType::IntaBio, QT_TRANSLATE_NOOP("TraceColumns", "IntaBio")},
};

QString yesOrNo(bool isYes)
{
    return isYes ? TraceColumnsTr::tr("Yes") : TraceColumnsTr::tr("No");
}

/// A number for a type that this version doesn't know.
QString typeText(TraceType type)
{
    const auto *const found =
        std::find_if(kTypes.begin(), kTypes.end(), [type](const TypeName &row) { return row.type == type; });
    return found == kTypes.end() ? NumberText::fromDouble(int(type)) : TraceColumnsTr::tr(found->name);
}

TraceType typeOf(const QString &text, TraceType before)
{
    const auto *const found = std::find_if(kTypes.begin(), kTypes.end(), [&](const TypeName &row) {
        return TraceColumnsTr::tr(row.name) == text;
    });
    return found == kTypes.end() ? before : found->type;
}

TableColumn described(QLatin1String name, const QString &title, TableColumnKind kind,
                      const QString &explanation)
{
    TableColumn column{.name = name, .title = title, .kind = kind};
    column.explanation = explanation;
    return column;
}

template<typename Record>
RecordColumn<Record> yesNoColumn(TableColumn column, const std::function<bool(const Record &)> &read,
                                 const std::function<void(Record *, bool)> &write)
{
    column.kind = TableColumnKind::Choice;
    column.choices = {yesOrNo(true), yesOrNo(false)};
    column.defaultText = yesOrNo(true);
    return {column, [read](const Record &record) { return yesOrNo(read(record)); },
            [write](Record *record, const QString &text) { write(record, text == yesOrNo(true)); }};
}

QString samplesText(const TraceSampleIds &ids)
{
    if (ids.isAll())
        return allSamples();
    QStringList texts;
    for (const int id : ids.ids())
        texts.append(QString::number(id));
    return texts.join(QLatin1String("; "));
}

QString samplesProblem(QStringView text)
{
    if (text.compare(allSamples(), Qt::CaseInsensitive) == 0)
        return {};
    for (const QStringView part : text.split(u';')) {
        bool isNumber = false;
        (void)part.trimmed().toInt(&isNumber);
        if (!isNumber && !part.trimmed().isEmpty())
            return TraceColumnsTr::tr("\"%1\" is no id of a sample. Enter \"%2\", or ids such as \"1; 2\".")
                .arg(part, allSamples());
    }
    return {};
}

TraceColumn samplesColumn(const SampleCodes &samples)
{
    TableColumn column =
        described(kSamples, TraceColumnsTr::tr("Samples"), TableColumnKind::Text,
                  TraceColumnsTr::tr("\"%1\", or the ids of samples, separated by \";\".").arg(allSamples()));
    column.defaultText = allSamples();
    column.check = samplesProblem;
    column.codes = [samples] {
        TableCodes codes = samples();
        codes.separator = QStringLiteral("; ");
        codes.none = allSamples();
        return codes;
    };
    return {column, [](const Trace &trace) { return samplesText(trace.samplesIds()); },
            [](Trace *trace, const QString &text) {
                if (text.compare(allSamples(), Qt::CaseInsensitive) == 0)
                    trace->setSamplesIds({});
                else if (samplesProblem(text).isEmpty())
                    trace->setSamplesIds(TraceSampleIds(idsIn(text)));
            }};
}

TraceColumn typeColumn()
{
    TableColumn column = described(QLatin1String("type"), TraceColumnsTr::tr("Type"), TableColumnKind::Choice,
                                   TraceColumnsTr::tr("What the trace shows."));
    for (const TypeName &row : kTypes)
        column.choices.append(TraceColumnsTr::tr(row.name));
    column.defaultText = column.choices.constFirst();
    return {column, [](const Trace &trace) { return typeText(trace.traceItem().type()); },
            [](Trace *trace, const QString &text) {
                const TraceItem item = trace->traceItem();
                trace->setTraceItem(TraceItem(typeOf(text, item.type()), item.info()));
            }};
}

TraceColumn infoColumn(QLatin1String name, const QString &title, const QString &explanation,
                       QString TraceInfo::*member)
{
    return {described(name, title, TableColumnKind::Text, explanation),
            [member](const Trace &trace) { return trace.traceItem().info().*member; },
            [member](Trace *trace, const QString &text) {
                TraceInfo info = trace->traceItem().info();
                info.*member = text;
                trace->setTraceItem(TraceItem(trace->traceItem().type(), info));
            }};
}

TraceColumn presetColumn(const PresetNames &presets)
{
    TableColumn column =
        described(kPreset, TraceColumnsTr::tr("Peak options"), TableColumnKind::Text,
                  TraceColumnsTr::tr("The preset by which peaks are found in the trace; empty for none."));
    column.check = [presets](QStringView text) {
        return text.isEmpty() || presets->contains(text.toString())
                   ? QString()
                   : TraceColumnsTr::tr("There is no preset \"%1\".").arg(text);
    };
    return {column, [](const Trace &trace) { return trace.peaksOptionsName(); },
            [](Trace *trace, const QString &text) { trace->setPeaksOptionsName(text); }};
}

using Options = Preset::CreationOptions;

PresetColumn numberColumn(TableColumn column, double Options::*member)
{
    column.minimum = 0;
    column.defaultText = QString::number(Options().*member);
    return {
        column,
        [member](const Preset &preset) { return NumberText::fromDouble(preset.creationOptions().*member); },
        [member](Preset *preset, const QString &text) {
            Options options = preset->creationOptions();
            options.*member = NumberText::value(text).value_or(options.*member);
            preset->setCreationOptions(options);
        }};
}

PresetColumn flagColumn(const TableColumn &column, bool Options::*member)
{
    return yesNoColumn<Preset>(
        column, [member](const Preset &preset) { return preset.creationOptions().*member; },
        [member](Preset *preset, bool isOn) {
            Options options = preset->creationOptions();
            options.*member = isOn;
            preset->setCreationOptions(options);
        });
}

/// An end that is left empty counts as 0, so that the other one stays and the preset's own check tells.
PresetColumn timeColumn(TableColumn column, Decimal Preset::TimeRange::*member)
{
    column.unit = TraceColumnsTr::tr("min");
    column.minimum = 0;
    return {column,
            [member](const Preset &preset) {
                return preset.timeRange() ? ((*preset.timeRange()).*member).toString() : QString();
            },
            [member](Preset *preset, const QString &text) {
                Preset::TimeRange range = preset->timeRange().value_or(Preset::TimeRange());
                if (const auto time = text.isEmpty() ? Decimal() : Decimal::fromString(text))
                    range.*member = *time;
                const bool isEmpty = text.isEmpty() && range == Preset::TimeRange();
                preset->setTimeRange(isEmpty ? std::nullopt : std::make_optional(range));
            }};
}

QString autoText(Preset::AutoCompute kind)
{
    switch (kind) {
    case Preset::AutoCompute::Off:
        return TraceColumnsTr::tr("Off");
    case Preset::AutoCompute::ByPeakWidth:
        return TraceColumnsTr::tr("By peak width");
    }
    return QString::number(int(kind));
}

PresetColumn autoColumn()
{
    TableColumn column =
        described(QLatin1String("autoCompute"), TraceColumnsTr::tr("Automatic"), TableColumnKind::Choice,
                  TraceColumnsTr::tr("What smoothing and interval are computed from."));
    column.choices = {autoText(Preset::AutoCompute::Off), autoText(Preset::AutoCompute::ByPeakWidth)};
    column.defaultText = column.choices.constFirst();
    return {column, [](const Preset &preset) { return autoText(preset.creationOptions().autoCompute); },
            [](Preset *preset, const QString &text) {
                Options options = preset->creationOptions();
                for (const auto kind : {Preset::AutoCompute::Off, Preset::AutoCompute::ByPeakWidth}) {
                    if (text == autoText(kind))
                        options.autoCompute = kind;
                }
                preset->setCreationOptions(options);
            }};
}

PresetColumn widthColumn()
{
    TableColumn column = described(
        QLatin1String("peakWidthFactor"), TraceColumnsTr::tr("Peak width factor"), TableColumnKind::Number,
        TraceColumnsTr::tr("By which the widths are multiplied that peaks are taken to have."));
    column.minimum = 0;
    return {column,
            [](const Preset &preset) {
                const std::optional<Decimal> &factor = preset.creationOptions().peakWidthFactor;
                return factor ? factor->toString() : QString();
            },
            [](Preset *preset, const QString &text) {
                Options options = preset->creationOptions();
                if (text.isEmpty())
                    options.peakWidthFactor.reset();
                else if (const std::optional<Decimal> factor = Decimal::fromString(text))
                    options.peakWidthFactor = factor;
                preset->setCreationOptions(options);
            }};
}

PresetColumn presetNameColumn()
{
    TableColumn column = described(kPresetName, TraceColumnsTr::tr("Name"), TableColumnKind::Text,
                                   TraceColumnsTr::tr("By which traces name these options."));
    column.isRequired = true;
    column.isUnique = true;
    return {column, [](const Preset &preset) { return preset.name(); },
            [](Preset *preset, const QString &text) { preset->setName(text); }};
}

} // namespace

QString allSamples()
{
    return TraceColumnsTr::tr("all");
}

QList<int> idsIn(QStringView text)
{
    QList<int> ids;
    for (const QStringView part : text.split(u';')) {
        bool isNumber = false;
        const int id = part.trimmed().toInt(&isNumber);
        if (isNumber)
            ids.append(id);
    }
    return ids;
}

RecordSheet<Trace>::Columns ofTraces(const PresetNames &presets, const SampleCodes &samples)
{
    const TableColumn use =
        described(QLatin1String("imported"), TraceColumnsTr::tr("Use"), TableColumnKind::Choice,
                  TraceColumnsTr::tr("Whether the trace is imported."));
    return {
        yesNoColumn<Trace>(
            use, [](const Trace &trace) { return trace.isImported(); },
            [](Trace *trace, bool isUsed) { trace->setImported(isUsed); }),
        typeColumn(),
        infoColumn(QLatin1String("channelName"), TraceColumnsTr::tr("Channel"),
                   TraceColumnsTr::tr("What the file calls the trace; of a text file its name."),
                   &TraceInfo::channelName),
        infoColumn(QLatin1String("channelId"), TraceColumnsTr::tr("Channel id"),
                   TraceColumnsTr::tr("By which the reader of the file finds the trace."),
                   &TraceInfo::channelId),
        samplesColumn(samples),
        presetColumn(presets),
    };
}

RecordSheet<Preset>::Columns ofPresets()
{
    using Kind = TableColumnKind;
    TableColumn interval = described(QLatin1String("intervalTimeMinutes"), TraceColumnsTr::tr("Interval"),
                                     Kind::Number, TraceColumnsTr::tr("Shortest distance of two peaks."));
    interval.unit = TraceColumnsTr::tr("min");
    return {
        presetNameColumn(),
        timeColumn(
            described(kStart, TraceColumnsTr::tr("From"), Kind::Number,
                      TraceColumnsTr::tr("Where peaks begin to be looked for; empty for the whole trace.")),
            &Preset::TimeRange::start),
        timeColumn(
            described(kEnd, TraceColumnsTr::tr("To"), Kind::Number,
                      TraceColumnsTr::tr("Where peaks end to be looked for; empty for the whole trace.")),
            &Preset::TimeRange::end),
        flagColumn(described(QLatin1String("findsPeaks"), TraceColumnsTr::tr("Find peaks"), Kind::Choice,
                             TraceColumnsTr::tr("Whether peaks are looked for at all.")),
                   &Options::findsPeaks),
        numberColumn(described(QLatin1String("smoothSigma"), TraceColumnsTr::tr("Smoothing"), Kind::Number,
                               TraceColumnsTr::tr("Sigma of the Gaussian that smooths the trace.")),
                     &Options::smoothSigma),
        numberColumn(interval, &Options::intervalTimeMinutes),
        flagColumn(described(QLatin1String("correctsBaseline"), TraceColumnsTr::tr("Correct baseline"),
                             Kind::Choice, TraceColumnsTr::tr("Whether the baseline is subtracted first.")),
                   &Options::correctsBaseline),
        numberColumn(described(QLatin1String("smoothSigmaBaseline"), TraceColumnsTr::tr("Baseline smoothing"),
                               Kind::Number,
                               TraceColumnsTr::tr("Sigma of the Gaussian that smooths the baseline.")),
                     &Options::smoothSigmaBaseline),
        autoColumn(),
        widthColumn(),
    };
}

} // namespace orv::TraceColumns
