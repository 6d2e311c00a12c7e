#include "SampleColumns.h"

#include "EntryMembers.h"
#include "ReferenceTexts.h"

#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>

namespace orv::SampleColumns {

namespace {

using namespace SamplesInput;

struct SampleColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(SampleColumns)
};

using Column = RecordColumn<Sample>;

/// A stored text that is no reference is shown all the same, so that somebody can mend it.
QString storedPath(const Sample &sample)
{
    for (const QLatin1String key : {Members::kPath, Members::kOldPaths[0], Members::kOldPaths[1]}) {
        if (const QJsonValue text = sample.stored.value(key); text.isString())
            return text.toString();
    }
    return {};
}

QString fileOf(const Sample &sample)
{
    return sample.msFile ? ResourceReferenceUtils::toString(sample.msFile) : storedPath(sample);
}

void takeFile(Sample *sample, const QString &text)
{
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    sample->msFile = reference.hasError() || text.isEmpty() ? nullptr : *reference;
    if (sample->msFile)
        return;
    for (const QLatin1String old : Members::kOldPaths)
        sample->stored.remove(old);
    sample->stored.insert(Members::kPath, text);
}

Column textColumn(QLatin1String name, const QString &title, const QString &explanation,
                  QString Entry::*member)
{
    TableColumn column{.name = name, .title = title};
    column.explanation = explanation;
    return {column, [member](const Sample &sample) { return sample.*member; },
            [member](Sample *sample, const QString &text) { sample->*member = text; }};
}

Column filesColumn(QLatin1String name, const QString &title, const QString &explanation,
                   QList<ResourceReferenceSPtr> Entry::*member)
{
    TableColumn column{.name = name, .title = title};
    column.explanation = explanation;
    column.check = ReferenceTexts::problemOfList;
    return {
        column, [member](const Sample &sample) { return ReferenceTexts::toText(sample.*member); },
        [member](Sample *sample, const QString &text) { sample->*member = ReferenceTexts::fromText(text); }};
}

Column nameColumn()
{
    Column column =
        textColumn(Members::kName, SampleColumnsTr::tr("Name"),
                   SampleColumnsTr::tr("What settings, proteins and results call the sample."), &Entry::name);
    column.column.isRequired = true;
    return column;
}

Column fileColumn()
{
    TableColumn column{.name = Members::kPath, .title = SampleColumnsTr::tr("File")};
    column.kind = TableColumnKind::File;
    column.isRequired = true;
    column.explanation = SampleColumnsTr::tr("The file or folder with the spectra, or a project.");
    column.check = ReferenceTexts::problem;
    return {column, fileOf, takeFile};
}

QString yesOrNo(bool isYes)
{
    return isYes ? SampleColumnsTr::tr("Yes") : SampleColumnsTr::tr("No");
}

Column referenceColumn()
{
    TableColumn column{.name = Members::kReference, .title = SampleColumnsTr::tr("Reference")};
    column.kind = TableColumnKind::Choice;
    column.choices = {yesOrNo(true), yesOrNo(false)};
    column.defaultText = yesOrNo(false);
    column.explanation = SampleColumnsTr::tr("Whether the other samples are compared with this one.");
    return {column, [](const Sample &sample) { return yesOrNo(sample.isReference); },
            [](Sample *sample, const QString &text) { sample->isReference = text == yesOrNo(true); }};
}

TableColumn shownAs(const CustomColumn &custom)
{
    TableColumn column{.name = custom.name, .title = custom.name};
    if (custom.type == QLatin1String("number"))
        column.kind = TableColumnKind::Number;
    if (custom.type == QLatin1String("bool")) {
        column.kind = TableColumnKind::Choice;
        column.choices = {yesOrNo(true), yesOrNo(false)};
    }
    column.isReadOnly = custom.isFromMetadata();
    column.explanation = custom.isFromMetadata()
                             ? SampleColumnsTr::tr("\"%1\" of the server's metadata.").arg(custom.attribute)
                             : SampleColumnsTr::tr("Your own column \"%1\".").arg(custom.name);
    return column;
}

QString customText(const QVariant &value, const TableColumn &column)
{
    if (column.kind == TableColumnKind::Choice && value.typeId() == QMetaType::Bool)
        return yesOrNo(value.toBool());
    if (value.typeId() == QMetaType::Double)
        return NumberText::fromDouble(value.toDouble());
    return value.toString();
}

QVariant customValue(const QString &text, const TableColumn &column)
{
    if (column.kind == TableColumnKind::Choice && column.choices.contains(text))
        return text == yesOrNo(true);
    if (column.kind != TableColumnKind::Number)
        return text;
    const std::optional<double> number = NumberText::value(text);
    return number ? QVariant(*number) : QVariant(text);
}

Column customColumn(const CustomColumn &custom)
{
    const TableColumn column = shownAs(custom);
    return {
        column,
        [column](const Sample &sample) { return customText(sample.customValues.value(column.name), column); },
        [column](Sample *sample, const QString &text) {
            if (text.isEmpty())
                sample->customValues.remove(column.name);
            else
                sample->customValues.insert(column.name, customValue(text, column));
        }};
}

} // namespace

RecordSheet<Sample>::Columns columns(const CustomColumns &custom)
{
    RecordSheet<Sample>::Columns columns = {
        nameColumn(),
        fileColumn(),
        referenceColumn(),
        filesColumn(Members::kTraces, SampleColumnsTr::tr("Trace files"),
                    SampleColumnsTr::tr(
                        "Files with traces of the sample, such as UV in text form, separated by \";\"."),
                    &Entry::traces),
        filesColumn(Members::kExtraReferences, SampleColumnsTr::tr("Search results"),
                    SampleColumnsTr::tr("Results of searches and other companions, separated by \";\"."),
                    &Entry::extraReferences),
        textColumn(Members::kSampleType, SampleColumnsTr::tr("Sample type"),
                   SampleColumnsTr::tr("What kind of sample it is."), &Entry::sampleType),
        textColumn(Members::kDigestion, SampleColumnsTr::tr("Digestion"),
                   SampleColumnsTr::tr("How the sample was digested."), &Entry::digestion),
        textColumn(Members::kTimeUnit, SampleColumnsTr::tr("Time unit"),
                   SampleColumnsTr::tr("Of times in the files of traces."), &Entry::timeUnit),
    };
    for (const CustomColumn &column : custom.columns())
        columns.append(customColumn(column));
    return columns;
}

} // namespace orv::SampleColumns
