// Steps between 5.13.0 and 5.47.0 that decide something about files, tables and groups of settings.
#include "StepHelpers.h"

#include <orv/chemistry/ProteinGenerator.h>
#include <orv/propertyeditor/content/OligoProteinsTableItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1String>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

constexpr QLatin1String kDigestedOligoLayout("../UI_layouts/Digested_Oligo.ini");
constexpr QLatin1String kEmptyXicFilter("../filters/Remove XIC AUC is 0.cft");
constexpr QLatin1String kPeakWidthPreset("AutoComputeByPeakWidth-preset");
constexpr QLatin1String kDigestGroup("in-silico options (theoretical digest)");

/// Gives the map cells that have the setting \a id, but no file in it, the file \a path.
Error fillInFile(PropertyId id, const QString &path, const WorkingContent &working)
{
    QList<KeyValueItem *> items = settingsItems(working, {BaseItemType::Senthia});
    items.removeIf([id](const KeyValueItem *item) {
        return !item->contains(id) || ResourceReferenceUtils::fromVariant(item->value(id));
    });
    const QVariant reference = QVariant::fromValue(ResourceReferenceUtils::fromString(path));
    const auto edit = [id, &reference](KeyValueItem *item) { return setValue(item, id, reference); };
    return editEach(items, edit, working);
}

Error addPeakWidthPreset(QList<ElutionPeaksOptions> *presets)
{
    constexpr qsizetype kExpectedPresets = 5;
    if (presets->size() < kExpectedPresets) {
        return failure(QObject::tr("Workflow does not contain the expected trace peak option presets."),
                       QObject::tr("There are %1 presets, and the fifth is the model of a new one. Add "
                                   "presets with the version that made the workflow.")
                           .arg(presets->size()));
    }
    ElutionPeaksOptions added = presets->at(kExpectedPresets - 1);
    ElutionPeaksOptions::CreationOptions options = added.creationOptions();
    options.autoCompute = ElutionPeaksOptions::AutoCompute::ByPeakWidth;
    added.setCreationOptions(options);
    added.setName(kPeakWidthPreset);
    presets->append(added);
    for (ElutionPeaksOptions &preset : *presets) {
        ElutionPeaksOptions::CreationOptions all = preset.creationOptions();
        all.peakWidthFactor = Decimal::fromDouble(1.0, 2);
        preset.setCreationOptions(all);
    }
    return Error::NoError;
}

/// Lets a file of peptides take the place of the theoretical digest.
Error replaceDigest(KeyValueItem *item)
{
    const QList<QByteArray> names = item->properties(QByteArray(kDigestGroup.data()));
    if (names.isEmpty()) {
        return failure(QObject::tr("Cannot find properties for \"%1\" group").arg(kDigestGroup),
                       QObject::tr("The cell \"%1\" lacks them.").arg(item->typeString()));
    }
    QStringList keys;
    for (const QByteArray &name : names)
        keys.append(QString::fromUtf8(name));
    const QString last = keys.takeLast();
    for (const QString &key : std::as_const(keys))
        ORV_RETURN_IF_ERROR(remove(item, key));
    const QString file = keyOf(PropertyId::InSilicoPeptidesFile);
    if (last != file && item->contains(file)) {
        // Two settings of one name can't be stored: the file that is already named stays.
        ORV_RETURN_IF_ERROR(remove(item, last));
        return Error::NoError;
    }
    ORV_RETURN_IF_ERROR(check(item->replace(last, file, QString(), kText), *item, last));
    return check(item->setGroupCaption(kDigestGroup, QStringLiteral("In-silico options (CSV import)")), *item,
                 kDigestGroup);
}

Error convertFormula(BuildingBlock *block)
{
    if (block->formula.trimmed().isEmpty())
        return Error::NoError;
    const std::optional<BuildingBlockType> type = ChemicalFactory::buildingBlockType(block->type);
    if (!type) {
        return notPossible(QObject::tr("The building block \"%1\" has the unknown type \"%2\".")
                               .arg(block->symbol, block->type));
    }
    Result<QString> formula = ChemicalFactory::convertOldOligoBuildingBlockFormula(block->formula, *type);
    if (!formula) {
        return Error(formula.error())
            .addDetail(QObject::tr("It belongs to the building block \"%1\".").arg(block->symbol))
            .ecatch();
    }
    block->formula = *formula;
    return Error::NoError;
}

/// Whether there were any.
Result<bool> convertFormulas(OligoProteinsTableItem *item)
{
    Result<ProteinGenerator::InputOptions> options = ProteinGenerator::parseInputOptions(item->root());
    if (!options)
        return options.ecatch();
    // A plain table of sequences may have columns that the options don't hold.
    if (options->buildingBlocks.isEmpty())
        return false;
    for (BuildingBlock &block : options->buildingBlocks)
        ORV_RETURN_IF_ERROR(convertFormula(&block));
    item->setRoot(options->toRowNode());
    return true;
}

Error completeDataIndependent(KeyValueItem *item)
{
    if (!item->contains(PropertyId::CaldrinOutputFdr)) {
        ORV_RETURN_IF_ERROR(insert(item, PropertyId::CaldrinOutputFdr, QStringLiteral("Output Options"),
                                   QStringLiteral("2% FDR"), kText));
    }
    if (item->contains(PropertyId::CaldrinUseFdrCutoff))
        ORV_RETURN_IF_ERROR(remove(item, keyOf(PropertyId::CaldrinUseFdrCutoff)));
    if (item->contains(PropertyId::CaldrinDigestion))
        return Error::NoError;
    return insert(item, PropertyId::CaldrinDigestion, QStringLiteral("Digestion"),
                  QStringLiteral("Trypsin @ R,K | C-term"), kText);
}

Error makeInSilicoMode(KeyValueItem *item)
{
    const QString newKey = keyOf(PropertyId::InSilicoMode);
    // Two settings of one name can't be stored.
    ORV_RETURN_IF_ERROR(check(!item->contains(newKey), *item, newKey));
    const int mode = item->value(PropertyId::EnableInSilico).toBool() ? 1 : 0;
    const QString oldKey = keyOf(PropertyId::EnableInSilico);
    ORV_RETURN_IF_ERROR(check(item->replace(oldKey, newKey, mode, kInt), *item, oldKey));
    return insert(item, PropertyId::TheoreticalPeptides,
                  QStringLiteral("In-silico options (Theoretical Digest)"),
                  QJsonDocument(QJsonObject()).toJson(QJsonDocument::Indented), kBytes);
}

Error addGlycans(KeyValueItem *item)
{
    const QJsonObject glycans{
        {QStringLiteral("glycans"), QStringLiteral("% Custom modification text below\n")}};
    ORV_RETURN_IF_ERROR(insert(item, PropertyId::KarvonGlycanText, QStringLiteral("Glycans"),
                               QJsonDocument(glycans).toJson(), kBytes));
    item->moveGroup(QStringLiteral("Glycans"), QStringLiteral("modifications"));
    return Error::NoError;
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_13_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    KeyValueItem *const item = firstSettings(*working, BaseItemType::Dravik);
    const bool applies = working->workflowType() == WorkflowType::ReleasedGlycans && item &&
                         item->contains(PropertyId::InSilicoPeptidesFile) &&
                         !item->contains(PropertyId::InSilicoMoleculesFile);
    if (!applies)
        return Error::NoError;
    const QString group = item->group(PropertyId::InSilicoPeptidesFile);
    ORV_RETURN_IF_ERROR(insert(item, PropertyId::InSilicoMoleculesFile, group, QString(), kText));
    ORV_RETURN_IF_ERROR(
        check(item->setGroupCaption(group, QStringLiteral("In-silico options (file import)")), *item, group));
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_24_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::DigestedOligo)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(fillInFile(PropertyId::UiLayout, kDigestedOligoLayout, *working));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_26_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    const bool applies = working->workflowType() == WorkflowType::MultiAttributeMethod &&
                         !firstItem(*working, BaseItemType::Karvon);
    if (!applies)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(fillInFile(PropertyId::UiFilter, kEmptyXicFilter, *working));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_27_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    const QSet<WorkflowType> types{WorkflowType::IntactMass, WorkflowType::DenaturedIntactMass,
                                   WorkflowType::SubunitMass, WorkflowType::ReducedIntactMass,
                                   WorkflowType::IntactOligo};
    if (!types.contains(working->workflowType()))
        return Error::NoError;
    SamplesTableItem *const table = working->samplesTable();
    if (!table)
        return noSamples();
    SamplesAndTracesContent samples = table->content();
    ORV_RETURN_IF_ERROR(addPeakWidthPreset(&samples.options.peaksOptions));
    table->setContent(samples);
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_28_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::TargetedPeptideMap)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(editEach(settingsItems(*working, {BaseItemType::Senthia}), &replaceDigest, *working));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_31_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::IntactOligo)
        return Error::NoError;
    bool hasConverted = false;
    for (BaseItem *item : working->findAllItems(BaseItemType::OligoMolecules)) {
        auto *const table = qobject_cast<OligoProteinsTableItem *>(item);
        if (!table)
            continue;
        Result<bool> converted = convertFormulas(table);
        if (!converted)
            return converted.ecatch();
        hasConverted = *converted || hasConverted;
    }
    if (!hasConverted)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_44_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    ORV_RETURN_IF_ERROR(
        editEach(settingsItems(*working, {BaseItemType::CaldrinDIA}), &completeDataIndependent, *working));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_46_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    QList<KeyValueItem *> items = settingsItems(*working, {BaseItemType::Senthia});
    items.removeIf([](const KeyValueItem *item) { return !item->contains(PropertyId::EnableInSilico); });
    working->tellRenamed(keyOf(PropertyId::EnableInSilico), keyOf(PropertyId::InSilicoMode));
    ORV_RETURN_IF_ERROR(editEach(items, &makeInSilicoMode, *working));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_47_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::DataIndependentAcquisition)
        return Error::NoError;
    QList<KeyValueItem *> items = settingsItems(*working, {BaseItemType::CaldrinDIA});
    items.removeIf([](const KeyValueItem *item) { return item->contains(PropertyId::KarvonGlycanText); });
    ORV_RETURN_IF_ERROR(editEach(items, &addGlycans, *working));
    return Error::NoError;
}

} // namespace orv
