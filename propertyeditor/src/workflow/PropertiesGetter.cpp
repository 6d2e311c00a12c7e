#include "PropertiesGetter_p.h"
#include "SamplePattern.h"

#include <orv/chemistry/ProteinAutoPopulateOptions.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/SampleNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/content/SequenceDatabaseItems.h>
#include <orv/table/CustomSettings.h>

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <utility>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::BaseItem;
using PropertyEditor::SamplesTableItem;

namespace {

struct RequiredCell
{
    BaseItemType document;
    BaseItemType required;
};

constexpr std::array kRequiredCells = {
    RequiredCell{BaseItemType::Intact, BaseItemType::Masses},
    RequiredCell{BaseItemType::Intact, BaseItemType::IntactOptions},
    RequiredCell{BaseItemType::Senthia, BaseItemType::Isotope},
    RequiredCell{BaseItemType::Senthia, BaseItemType::Disulfide},
};

using Properties = QMap<PropertyId, QVariant>;

Properties readProperties(const QJsonObject &object, BaseItemType type)
{
    const QSet<PropertyId> &allowed = allowedProperties(type);
    const QMap<PropertyId, PropertyFeatures> &catalogue = *PropertiesNames::names();
    Properties properties;
    const QJsonArray entries = object.value(PROPERTIES_KEY).toArray();
    for (const auto value : entries) {
        const QJsonObject entry = value.toObject();
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(entry, type);
        if (allowed.contains(id) && !properties.contains(id))
            properties.insert(id, catalogue.value(id).valueFromJson(entry));
    }
    return properties;
}

QJsonObject storedObject(const QJsonObject &cell, PropertyId id)
{
    return PropertyEditorJsonUtils::propValueObject(PropertyEditorJsonUtils::getPropertyWithType(cell, id));
}

QByteArray fastaRecord(const QString &name, const QString &sequence)
{
    return "\n>" + name.toUtf8() + "\n" + sequence.toUtf8() + "\n";
}

/// Empty as soon as one name stands for combinations.
template<typename Molecules>
QByteArray fastaText(const Molecules &molecules)
{
    QByteArray text;
    for (const auto &molecule : molecules) {
        if (ProteinAutoPopulateOptions::mayConvert(molecule.name))
            return {};
        text += fastaRecord(molecule.name, molecule.sequence);
    }
    return text;
}

template<typename Entries>
SampleNames namesOf(const Entries &entries)
{
    QStringList names;
    names.reserve(entries.size());
    for (const SamplesInput::Entry &entry : entries)
        names.append(entry.name);
    return SampleNames(names);
}

template<typename Entries>
QStringList namesMatching(const Entries &entries, const QStringList &patterns)
{
    return namesOf(entries).matching(patterns);
}

/// As often as they stand there.
template<typename Entries>
QStringList namesMatching(const Entries &entries, const QString &text)
{
    SamplePattern pattern(text);
    QStringList names;
    for (const SamplesInput::Entry &entry : entries) {
        if (pattern.matches(entry.name))
            names.append(entry.name);
    }
    return names;
}

QList<SamplesInput::Entry> entriesOf(const PropertiesGetter::CellData &cell)
{
    const QJsonObject table =
        PropertyEditorJsonUtils::variantToObject(cell.properties.value(PropertyId::SamplesTable));
    Result<QList<SamplesInput::Entry>> entries = SamplesInput::samplesFromJsonArray(table);
    if (entries.hasError()) {
        Error error = entries.error();
        qCWarning(propertyEditorLog) << "Can't read the samples:" << error.ecatch().errorMessage();
        return {};
    }
    return *std::move(entries);
}

QList<SamplesInput::Entry> entriesOf(const SamplesTableItem *item)
{
    return item ? item->samplesInput() : QList<SamplesInput::Entry>();
}

} // namespace

void PropertiesGetter::Private::warn(const QString &text)
{
    qCWarning(propertyEditorLog).noquote() << text;
    warnings.append(text);
}

QList<PropertiesGetter::Private::CellIndex> PropertiesGetter::Private::findCells(BaseItemType type, int row)
{
    const QString typeName = BaseItem::typeNameMap().value(type);
    if (typeName.isEmpty()) {
        warn(QStringLiteral("Unknown cell type: %1").arg(int(type)));
        return {};
    }
    QList<CellIndex> found;
    for (const PropertyEditorContent::Tab &tab : content.tabsAndContent()) {
        const qsizetype columns = tab.second.first.size();
        const VariantItems &cells = tab.second.second;
        for (qsizetype column = 0; column < std::min(columns, cells.size()); ++column) {
            const Result<QJsonObject> head = RawCell::parse(cells.at(column));
            if (head.hasError()) {
                qCWarning(propertyEditorLog) << "Cannot parse json content";
                continue;
            }
            const QString headType =
                head->value(TYPE_KEY).toString(BaseItem::typeToString(BaseItemType::Unknown));
            if (headType.compare(typeName, Qt::CaseInsensitive) != 0)
                continue;
            const qsizetype first = row == kAllRows ? 0 : row;
            const qsizetype last = row == kAllRows ? (cells.size() - column - 1) / columns : row;
            for (qsizetype i = first; i <= last && column + i * columns < cells.size(); ++i) {
                const Result<QJsonObject> cell = RawCell::parse(cells.at(column + i * columns));
                if (cell.hasError())
                    qCWarning(propertyEditorLog) << "Cannot parse json content";
                else
                    found.append({type, int(i), int(column), *cell});
            }
        }
    }
    return found;
}

PropertiesGetter::CellData PropertiesGetter::Private::documentOf(const CellIndex &cell)
{
    CellData data{cell.type, cell.row, readProperties(cell.object, cell.type)};
    for (const RequiredCell &rule : kRequiredCells) {
        if (rule.document != cell.type)
            continue;
        const QList<CellIndex> required = findCells(rule.required, cell.row);
        if (required.isEmpty()) {
            warn(QStringLiteral("Can't find cell '%1' required by cell '%2'")
                     .arg(BaseItem::typeToString(rule.required), BaseItem::typeToString(cell.type)));
            continue;
        }
        data.properties.insert(readProperties(required.constFirst().object, rule.required));
    }
    return data;
}

PropertiesGetter::PropertiesGetter(const PropertyEditorContent &content)
    : d(std::make_unique<Private>(content))
{}

PropertiesGetter::PropertiesGetter(PropertiesGetter &&other) noexcept = default;
PropertiesGetter &PropertiesGetter::operator=(PropertiesGetter &&other) noexcept = default;
PropertiesGetter::~PropertiesGetter() = default;

QList<PropertiesGetter::CellData> PropertiesGetter::documents() const
{
    QList<CellData> documents;
    for (const BaseItemType type : PropertyEditor::CellTypes::documents()) {
        for (const Private::CellIndex &cell : d->findCells(type))
            documents.append(d->documentOf(cell));
    }
    return documents;
}

QList<PropertiesGetter::CellData> PropertiesGetter::globals() const
{
    QList<CellData> globals;
    for (const BaseItemType type : {BaseItemType::Database, BaseItemType::Proteins}) {
        for (const Private::CellIndex &cell : d->findCells(type, 0))
            globals.append({type, 0, readProperties(cell.object, type)});
    }
    return globals;
}

QList<PropertiesGetter::CellData> PropertiesGetter::samples() const
{
    QList<CellData> samples;
    for (const Private::CellIndex &cell : d->findCells(BaseItemType::Samples))
        samples.append({cell.type, cell.row, readProperties(cell.object, cell.type)});
    return samples;
}

QByteArray PropertiesGetter::fastaContent() const
{
    const auto tableIn = [this](BaseItemType type, PropertyId id) {
        const QList<Private::CellIndex> cells = d->findCells(type);
        return cells.isEmpty() ? QJsonObject() : storedObject(cells.constFirst().object, id);
    };
    QJsonObject table = tableIn(BaseItemType::IntactProteins, PropertyId::IntactProteins);
    const bool isIntact = !table.isEmpty();
    if (!isIntact)
        table = tableIn(BaseItemType::Proteins, PropertyId::Proteins);

    ProteinGenerator generator(true, nullptr);
    if (Error error = generator.init(PropertyEditorJsonUtils::objectToRowNode(table), CustomSettings())) {
        const QStringList reasons = error.ecatch().errorMessages() + error.details();
        d->warn(QStringLiteral("Creation of ProteinGenerator failed %1").arg(reasons.join(u' ')));
        return {};
    }
    const ProteinComplexList &proteins = generator.proteinComplexList();
    return isIntact && !d->findCells(BaseItemType::Senthia).isEmpty()
               ? fastaText(proteins.chainList().toVector())
               : fastaText(proteins.proteinList());
}

QList<QSharedPointer<ResourceReference>> PropertiesGetter::fastaReferences() const
{
    const QList<Private::CellIndex> cells = d->findCells(BaseItemType::Database);
    if (cells.isEmpty())
        return {};
    Result<QList<SequenceDatabaseItem>> items =
        PropertyEditor::SequenceDatabaseItems::fromJson(PropertyEditorJsonUtils::getPropertyWithType(
            cells.constFirst().object, PropertyId::SequenceDatabases));
    if (items.hasError()) {
        Error error = items.error();
        d->warn(error.ecatch().errorMessage());
        return {};
    }
    return getFastaReferences(*items);
}

QStringList PropertiesGetter::warnings() const
{
    return d->warnings;
}

QStringList PropertiesGetter::samplesMatchingRegExp(const CellData &items, const QString &pattern)
{
    return namesMatching(entriesOf(items), pattern);
}

QStringList PropertiesGetter::samplesMatchingRegExp(const SamplesTableItem *items, const QString &pattern)
{
    return namesMatching(entriesOf(items), pattern);
}

QStringList PropertiesGetter::samplesMatchingRegExp(const QList<SamplesInput::Entry> &items,
                                                    const QString &pattern)
{
    return namesMatching(items, pattern);
}

QStringList PropertiesGetter::samplesMatchingRegExp(const CellData &items, const QStringList &patterns)
{
    return namesMatching(entriesOf(items), patterns);
}

QStringList PropertiesGetter::samplesMatchingRegExp(const SamplesTableItem *items,
                                                    const QStringList &patterns)
{
    return namesMatching(entriesOf(items), patterns);
}

QStringList PropertiesGetter::samplesMatchingRegExp(const QList<SamplesInput::Entry> &items,
                                                    const QStringList &patterns)
{
    return namesMatching(items, patterns);
}

SamplesInput::SamplesArrayWithCustomColumns
PropertiesGetter::samplesMatchingRegExp(const SamplesInput::SamplesArrayWithCustomColumns &items,
                                        const QStringList &patterns)
{
    const QStringList matching = namesMatching(items.samples, patterns);
    const QSet<QString> names(matching.begin(), matching.end());
    SamplesInput::SamplesArrayWithCustomColumns kept;
    kept.columns = items.columns;
    std::copy_if(items.samples.begin(), items.samples.end(), std::back_inserter(kept.samples),
                 [&names](const SamplesInput::Entry &sample) { return names.contains(sample.name); });
    return kept;
}

void PropertiesGetter::filterOutNotMatchingSamples(const QStringList &patterns,
                                                   QList<SamplesInput::Entry> *entries)
{
    const QStringList matching = namesMatching(*entries, patterns);
    const QSet<QString> names(matching.begin(), matching.end());
    entries->removeIf([&names](const SamplesInput::Entry &entry) { return !names.contains(entry.name); });
}

} // namespace orv
