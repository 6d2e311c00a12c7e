// Steps by which a search of proteins became one of digested oligonucleotides.
#include "StepHelpers.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/table/KeyValueSimpleParser.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1String>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

constexpr QLatin1String kModifications("modifications");

Error renameSequences(const Content &working)
{
    const ItemGroup *const tab = working.group(QStringLiteral("Sequences"));
    const bool done =
        tab && !tab->isEmpty() &&
        tab->subGroup(0)->setName(QStringLiteral("Oligonucleotides (drag and drop FASTA files)"));
    if (done)
        return Error::NoError;
    return notPossible(QObject::tr("The workflow has no tab \"Sequences\" with a column. Add it with the "
                                   "version that made the workflow."));
}

Error removeGroups(const QStringList &names, KeyValueItem *item)
{
    for (const QString &name : names)
        ORV_RETURN_IF_ERROR(check(item->removeGroup(name), *item, name));
    return Error::NoError;
}

Error setCaption(const QString &group, const QString &caption, KeyValueItem *item)
{
    return check(item->setGroupCaption(group, caption), *item, group);
}

Error makeOligoSearch(KeyValueItem *item)
{
    constexpr int kNoCutoff = 2;
    ORV_RETURN_IF_ERROR(
        removeGroups({QStringLiteral("protein database options"), QStringLiteral("glycans")}, item));
    ORV_RETURN_IF_ERROR(
        setCaption(QStringLiteral("peptide output options"), QStringLiteral("Identified options"), item));
    ORV_RETURN_IF_ERROR(setCaption(QStringLiteral("protein output options"),
                                   QStringLiteral("Sequence output options"), item));
    ORV_RETURN_IF_ERROR(remove(item, QStringLiteral("KarvonEnablePromoteScoreNglycan")));
    ORV_RETURN_IF_ERROR(setValue(item, PropertyId::KarvonRalmixAutoScore, false));
    return setValue(item, PropertyId::KarvonProteinFdrPulldown, kNoCutoff);
}

Error removeInSilicoGroups(KeyValueItem *item)
{
    return removeGroups({QStringLiteral("in-silico options (theoretical digest)"),
                         QStringLiteral("in-silico options (csv import)")},
                        item);
}

/// Takes out what is decided anew whenever a search starts.
Error removeSearchOptions(KeyValueItem *item)
{
    const QJsonObject object =
        PropertyEditorJsonUtils::variantToObject(item->value(PropertyId::KarvonModText));
    KeyValueSimpleParser parser(object.value(kModifications).toString());
    parser.removeOptions(
        {QStringLiteral("enable_rps"), QStringLiteral("cleavage_flags"), QStringLiteral("oligo_search")});
    const QJsonObject rest{{kModifications, parser.toString()}};
    return setValue(item, PropertyId::KarvonModText, QJsonDocument(rest).toJson(QJsonDocument::Indented));
}

Error completeOligoSearch(KeyValueItem *item)
{
    ORV_RETURN_IF_ERROR(remove(item, keyOf(PropertyId::KarvonMachineType)));
    ORV_RETURN_IF_ERROR(remove(item, keyOf(PropertyId::KarvonRalmixMinScore)));
    ORV_RETURN_IF_ERROR(
        insert(item, PropertyId::KarvonMoleculeType, QStringLiteral("Instrument Parameters"), 0, kInt));
    const QString autoScore = keyOf(PropertyId::KarvonRalmixAutoScore);
    const int priority = int(PropertySetCreator::Priority::Low);
    ORV_RETURN_IF_ERROR(
        check(item->setOption(autoScore, PropertyEditorStringConstants::PRIORITY_KEY.data(), priority), *item,
              autoScore));
    return removeSearchOptions(item);
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_22_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::DigestedOligo)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(renameSequences(*working));
    for (KeyValueItem *item : settingsItems(*working, {BaseItemType::Karvon}))
        ORV_RETURN_IF_ERROR(makeOligoSearch(item));
    for (KeyValueItem *item : settingsItems(*working, {BaseItemType::Senthia}))
        ORV_RETURN_IF_ERROR(removeInSilicoGroups(item));
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_23_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() != WorkflowType::DigestedOligo)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(
        editEach(settingsItems(*working, {BaseItemType::Karvon}), &completeOligoSearch, *working));
    return Error::NoError;
}

} // namespace orv
