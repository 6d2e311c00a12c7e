#include "orv/propertyeditor/PropertiesNames.h"

#include "PropertyReaders.h"
#include "PropertyRows.h"

#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertyVerification.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QHash>

#include <array>
#include <atomic>

namespace orv {

namespace {

using Catalogue = QMap<PropertyId, PropertyFeatures>;

// Atomic, for captions are asked for on worker threads too, while no window is there.
std::atomic<PropertiesNames::WorkflowTypeProvider> workflowTypeProvider = nullptr;

PropertyFeatures featuresOf(const PropertyRow &row)
{
    const PropertiesCsvReader &texts = PropertiesCsvReader::instance();
    const PropertyId id = row.id;
    return {
        .internalNameV1 = texts.internalNameV1(id),
        .internalNameV2 = texts.internalNameV2(id),
        .displayName = texts.displayName(id),
        .toolTip = texts.toolTip(id),
        .typeName = texts.typeName(id),
        .typeOptions = texts.typeOptions(id),
        .defaultValue = row.makeDefault(),
        .valueFromJson = propertyReader(row.reader, id),
        .verification = PropertyVerification::constructVerificationFunction(texts.verificationFunction(id),
                                                                            texts.verificationParameters(id)),
    };
}

Catalogue buildCatalogue()
{
    Catalogue catalogue;
    for (const PropertyRow &row : propertyRows())
        catalogue.insert(catalogue.cend(), row.id, featuresOf(row));
    return catalogue;
}

const PropertyFeatures &featuresFor(PropertyId id)
{
    static const PropertyFeatures none;
    static const std::array<const PropertyFeatures *, kPropertyCount> byNumber = [] {
        std::array<const PropertyFeatures *, kPropertyCount> found{};
        const Catalogue &catalogue = *PropertiesNames::names();
        for (auto it = catalogue.cbegin(); it != catalogue.cend(); ++it)
            found.at(size_t(it.key())) = &*it;
        return found;
    }();
    return id >= 0 && id < kPropertyCount ? *byNumber[size_t(id)] : none;
}

bool isPercentInFiles(PropertyId id)
{
    if (id < 0 || id >= kPropertyCount)
        return false;
    const PropertyReader reader = propertyRows().at(id).reader;
    return reader == PropertyReader::Percent || reader == PropertyReader::IntPercent;
}

using Captions = QMap<PropertyId, QString>;

const QMap<WorkflowType, Captions> &captionsByWorkflowType()
{
    // An analysis of digested oligonucleotides speaks of molecules where a peptide map speaks of peptides.
    static const QMap<WorkflowType, Captions> captions = {
        {WorkflowType::DigestedOligo,
         {{PropertyId::KarvonProteinFdrPulldown, QStringLiteral("FDR")},
          {PropertyId::RelevantProteins, QStringLiteral("Relevant Molecules")}}},
    };
    return captions;
}

} // namespace

const QMap<PropertyId, PropertyFeatures> *PropertiesNames::names()
{
    static const Catalogue catalogue = buildCatalogue();
    return &catalogue;
}

PropertyId PropertiesNames::findPropertyForName(const QString &name)
{
    return PropertiesCsvReader::instance().findPropertyForName(name);
}

bool PropertiesNames::hasPropertyForObject(const QJsonObject &object)
{
    const QString name = object.value(PropertyEditorStringConstants::NAME_KEY).toString();
    return findPropertyForName(name) != PropertyId::NoProperty;
}

QString PropertiesNames::displayNameForType(PropertyId id)
{
    const WorkflowTypeProvider provider = workflowTypeProvider;
    const WorkflowType workflowType = provider ? provider() : WorkflowType::Unknown;
    const auto captions = captionsByWorkflowType().constFind(workflowType);
    if (captions != captionsByWorkflowType().cend() && captions->contains(id))
        return captions->value(id);
    return featuresFor(id).displayName;
}

QString PropertiesNames::internalNameForType(PropertyId id)
{
    return featuresFor(id).internalNameV2;
}

QStringList PropertiesNames::internalNamesForTypes(const QList<PropertyId> &ids)
{
    QStringList names;
    names.reserve(ids.size());
    for (const PropertyId id : ids)
        names.append(internalNameForType(id));
    return names;
}

QString PropertiesNames::tooltipForType(PropertyId id)
{
    return featuresFor(id).toolTip;
}

QVariant PropertiesNames::defaultValueForType(PropertyId id)
{
    return featuresFor(id).defaultValue;
}

QVariant PropertiesNames::defaultValueInFileUnit(PropertyId id)
{
    constexpr double kPercent = 100;
    const QVariant value = defaultValueForType(id);
    return isPercentInFiles(id) ? value.toDouble() * kPercent : value;
}

QMap<QByteArray, QString> PropertiesNames::typeOptionsOfPropertyType(PropertyId id)
{
    return featuresFor(id).typeOptions;
}

QString PropertiesNames::valueTypeNameOfPropertyType(PropertyId id)
{
    return featuresFor(id).typeName;
}

KProperty::Type PropertiesNames::valueTypeOfPropertyType(PropertyId id)
{
    return KProperty::Type(PropertiesTraits::typeFeatures(featuresFor(id).typeName).type);
}

QChar PropertiesNames::readerCode(PropertyId id)
{
    const bool known = id >= 0 && id < kPropertyCount;
    return known ? QChar::fromLatin1(char(propertyRows().at(id).reader)) : QChar();
}

PropertiesNames::WorkflowTypeProvider PropertiesNames::setWorkflowTypeProvider(WorkflowTypeProvider provider)
{
    return workflowTypeProvider.exchange(provider);
}

} // namespace orv
