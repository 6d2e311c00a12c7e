#include "orv/propertyeditor/content/IntactProteinsTableItem.h"

#include <orv/chemistry/ChainId.h>
#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/core/Logging.h>

#include <QHash>

namespace orv::PropertyEditor {

namespace {

using InputOptions = ProteinGenerator::InputOptions;

/// Old numbers of the chains that stay, with their new ones.
QHash<int, int> keepCustomChains(InputOptions *options)
{
    options->chains.removeIf([](const Chain &chain) { return !chain.isCustom; });
    QHash<int, int> numbers;
    for (Chain &chain : options->chains) {
        const int number = int(numbers.size()) + 1;
        numbers.insert(chain.number, number);
        chain.number = number;
    }
    return numbers;
}

void keepProteinsOf(const QHash<int, int> &numbers, InputOptions *options)
{
    options->proteins.removeIf([&numbers](const ProteinComplex &protein) {
        return !std::ranges::all_of(protein.chainNumbers,
                                    [&numbers](int number) { return numbers.contains(number); });
    });
    for (ProteinComplex &protein : options->proteins) {
        for (int &number : protein.chainNumbers)
            number = numbers.value(number);
    }
}

QString columnNameOf(const QString &attribute, MappingTarget target,
                     const QList<TalvaneMetadataMappingConnection> &connections)
{
    const auto connection = std::ranges::find_if(
        connections, [&](const auto &each) { return each.attribute == attribute && each.target == target; });
    return connection == connections.end() ? attribute : connection->columnName();
}

} // namespace

IntactProteinsTableItem::IntactProteinsTableItem()
    : BaseTableItem(BaseItemType::IntactProteins)
{}

IntactProteinsTableItem::~IntactProteinsTableItem() = default;

PropertyId IntactProteinsTableItem::propertyId() const
{
    return PropertyId::IntactProteins;
}

Error IntactProteinsTableItem::load(const QJsonObject &json, ValidationOptions options,
                                    const LoadContext &context)
{
    ORV_RETURN_IF_ERROR(BaseTableItem::load(json, options, context));
    markOldChainsAsCustom();
    return Error::NoError;
}

void IntactProteinsTableItem::markOldChainsAsCustom()
{
    RowNode *chains = rootNode().getChild(columnIndex(kChains));
    if (!chains || chains->getRowDataToStringList().contains(kisCustom))
        return;
    // The column lookups of a node ask its root, so the table is completed by itself.
    RowNode completed;
    if (!completed.deepCopy(chains))
        return;
    completed.addDataToRootAndResizeChildren(kisCustom, 1);
    *chains = completed;
}

void IntactProteinsTableItem::reloadMetadata(const QList<MetadataMapping> &mappings,
                                             const QList<TalvaneMetadataMappingConnection> &connections)
{
    Result<InputOptions> parsed = ProteinGenerator::parseInputOptions(rootNode());
    if (parsed.hasError()) {
        qCWarning(propertyEditorLog).noquote()
            << "The chains of proteins cannot be read:" << parsed.ecatch().errorMessage();
        return;
    }
    InputOptions options = std::move(parsed).value();
    const MassCalculator monoisotopic = ProteinGenerator::createMassCalculator(MassType(0));
    const MassCalculator average = ProteinGenerator::createMassCalculator(MassType(1));
    keepProteinsOf(keepCustomChains(&options), &options);

    for (const MetadataMapping &mapping : mappings) {
        if (mapping.target != target())
            continue;
        Chain chain;
        chain.number = int(options.chains.size()) + 1;
        chain.id = ChainId::createDefaultIdText(chain.number, options.chains);
        chain.name = columnNameOf(mapping.value.attribute, target(), connections);
        chain.sequence = mapping.value.value.toVariant().toString();
        chain.isCustom = false;
        // A sequence without formula is shown without masses, and told by the check of the table.
        if (const Error error = chain.updateMasses(monoisotopic, average); error.hasError())
            qCWarning(propertyEditorLog).noquote() << error.errorMessage();
        ProteinComplex protein = ProteinUtils::mirrorChain(chain);
        protein.samplesIds = mapping.sampleIds;
        options.chains.append(chain);
        options.proteins.append(protein);
    }
    setRoot(options.toRowNode());
}

} // namespace orv::PropertyEditor
