// Steps that have to do with expert settings, a text of each cell of settings.
#include "StepHelpers.h"

#include <orv/chemistry/WorkflowNodeUpgradeUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/table/CustomSettings.h>

#include <QLatin1String>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

constexpr QLatin1String kXicGroup("XIC");
constexpr QLatin1String kCsvGroup("In-silico options (CSV import)");

constexpr QLatin1String kDenatured("[Intact]\nMode=Denatured");
constexpr QLatin1String kIsoResolved("[Intact]\nMode=IsoResolved");
constexpr QLatin1String kOldOligoDefaults("[Intact]\n"
                                          "AdvancedMonoCalculation=true\n"
                                          "MaxMonoisotope=35000\n"
                                          "ShowObservedMono=true\n"
                                          "IsotopeEnvelopeFilter=true\n"
                                          "SteppingMethod=Linear\n"
                                          "MZResolution=35000\n"
                                          "IsotopeSpacing=10\n"
                                          "ComputeChargeNew=true\n"
                                          "RemoveChargeOne=0.1\n"
                                          "ChargeEnvelopeFilterPower2=true\n"
                                          "ChargeEnvelopeWeights=0.05,0.9,0.05");

enum NoteKind
{
    FastXicNote = 0,
};

void logAll(const Warnings &warnings)
{
    for (const QString &warning : warnings)
        qCWarning(propertyEditorLog).noquote() << warning;
}

QString advancedText(const KeyValueItem &item)
{
    return item.value(PropertyId::AdvancedConfiguration).toString();
}

Error insertXicOptions(const WorkflowNodeXicMethodOptions &options, KeyValueItem *item)
{
    struct Row
    {
        PropertyId id;
        int value;
    };
    ORV_RETURN_IF_ERROR(insert(item, PropertyId::XicMode, kXicGroup,
                               WorkflowNodeXicMethodOptions::modeToString(options.mode), kText));
    const TurboXicSettings &fast = options.fastXicOptions;
    for (const Row &row : {Row{PropertyId::FastXicBlockScans, fast.scansPerBlock},
                           Row{PropertyId::FastXicCacheSize, fast.cacheMegabytes},
                           Row{PropertyId::FastXicMzBins, fast.mzBins}}) {
        const int type = PropertiesNames::valueTypeOfPropertyType(row.id);
        ORV_RETURN_IF_ERROR(insert(item, row.id, kXicGroup, row.value, type));
    }
    return Error::NoError;
}

/// The texts of step 5.33.0: who still has the old one hasn't touched it.
struct ModeTexts
{
    BaseItem *item;
    QString oldText;
    QString newText;
};

ModeTexts modeTexts(const Content &working)
{
    if (BaseItem *const intact = firstItem(working, BaseItemType::Intact))
        return {intact, QString(), kDenatured};
    return {firstItem(working, BaseItemType::Oligo), kOldOligoDefaults, kIsoResolved};
}

/// Whether the method had to be changed to the fast one.
Result<bool> makeFast(KeyValueItem *item)
{
    using Options = WorkflowNodeXicMethodOptions;
    const QString text = item->value(PropertyId::XicMode).toString();
    const std::optional<Options::XicMode> mode = Options::modeFromString(text);
    if (!mode) {
        return failure(QObject::tr("%1 is not an enum value").arg(text),
                       QObject::tr("The setting \"%1\" is \"%2\" or \"%3\".")
                           .arg(keyOf(PropertyId::XicMode), Options::modeToString(Options::XicMode::Standard),
                                Options::modeToString(Options::XicMode::Fast)));
    }
    if (*mode == Options::XicMode::Fast)
        return false;
    ORV_RETURN_IF_ERROR(setValue(item, PropertyId::XicMode, Options::modeToString(Options::XicMode::Fast)));
    return true;
}

/// Brings the in-silico peptides into their group of today, in the place of the group where they stood.
Error moveInSilicoFile(KeyValueItem *item)
{
    const QString key = keyOf(PropertyId::InSilicoPeptidesFile);
    if (!item->contains(key))
        return Error::NoError;
    const QString oldGroup = item->group(key);
    const QList<QByteArray> groups = item->groupNames();
    const QString groupBefore = QString::fromUtf8(groups.value(groups.indexOf(oldGroup.toUtf8()) - 1));
    ORV_RETURN_IF_ERROR(check(item->setGroupCaption(oldGroup, kCsvGroup), *item, oldGroup));
    const bool isThere = oldGroup == QString(kCsvGroup).toLower();
    if (!isThere)
        ORV_RETURN_IF_ERROR(check(item->setGroup(key, kCsvGroup), *item, key));
    item->moveGroup(kCsvGroup, item->hasGroup(oldGroup) && !isThere ? oldGroup : groupBefore);
    return Error::NoError;
}

Error insertAlignment(const WorkflowNodeInsilicoAlign &options, KeyValueItem *item)
{
    ORV_RETURN_IF_ERROR(
        insert(item, PropertyId::AlignmentEnabled, kCsvGroup, options.isInsilicoAlignmentEnabled, kBool));
    ORV_RETURN_IF_ERROR(insert(item, PropertyId::ToleranceDetermination, kCsvGroup,
                               int(options.toleranceDetermination), kInt));
    ORV_RETURN_IF_ERROR(
        insert(item, PropertyId::AlignmentTolerance, kCsvGroup, options.alignmentTolerance, kDouble));
    return Error::NoError;
}

Error splitAlignment(KeyValueItem *item)
{
    if (!item->contains(PropertyId::AdvancedConfiguration))
        return insertAlignment({}, item);
    const auto upgraded =
        WorkflowNodeUpgradeUtils::inSilicoAlignSettingsBackwardsCompatibility(advancedText(*item));
    logAll(upgraded.warnings);
    ORV_RETURN_IF_ERROR(insertAlignment(upgraded.options, item));
    return setValue(item, PropertyId::AdvancedConfiguration, upgraded.advancedText);
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_12_2(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    BaseItem *const first = firstItem(*working, BaseItemType::Senthia);
    if (!first)
        return Error::NoError;
    auto *const item = qobject_cast<KeyValueItem *>(first);
    if (!item) {
        qCWarning(propertyEditorLog) << "Unable to cast Senthia KeyValueItem";
        return Error::NoError;
    }
    if (!item->contains(PropertyId::AdvancedConfiguration))
        return Error::NoError;
    CustomSettings settings;
    logAll(settings.setupValues(advancedText(*item), CustomSettings::Format::Sections));
    if (settings.isEmpty())
        return Error::NoError;
    const auto upgraded =
        WorkflowNodeUpgradeUtils::fastXicBackwardsCompatibility(advancedText(*item), settings.values());
    logAll(upgraded.warnings);
    ORV_RETURN_IF_ERROR(insertXicOptions(upgraded.options, item));
    ORV_RETURN_IF_ERROR(setValue(item, PropertyId::AdvancedConfiguration, upgraded.advancedText));
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_33_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    const QSet<WorkflowType> types{WorkflowType::DenaturedIntactMass, WorkflowType::ReducedIntactMass,
                                   WorkflowType::IntactOligo};
    if (!types.contains(working->workflowType()))
        return Error::NoError;
    const ModeTexts texts = modeTexts(*working);
    if (!texts.item)
        return Error::NoError;
    auto *const item = qobject_cast<KeyValueItem *>(texts.item);
    if (!item) {
        qCWarning(propertyEditorLog) << "Unable to cast KeyValueItem";
        return Error::NoError;
    }
    if (!item->contains(PropertyId::AdvancedConfiguration) || advancedText(*item) != texts.oldText)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(setValue(item, PropertyId::AdvancedConfiguration, texts.newText));
    ORV_RETURN_IF_ERROR(working->writeBack());
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_35_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    bool hasChanged = false;
    for (KeyValueItem *item : settingsItems(*working, {BaseItemType::Senthia})) {
        if (!item->contains(PropertyId::XicMode))
            continue;
        Result<bool> changed = makeFast(item);
        if (!changed)
            return changed.ecatch();
        hasChanged = *changed || hasChanged;
    }
    if (!hasChanged)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(working->writeBack());
    addNote(FastXicNote, QObject::tr("For more efficient processing, the workflow was updated to use the "
                                     "fast XIC method."));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_43_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    if (working->workflowType() == WorkflowType::ProteinQuantification)
        return Error::NoError;
    const bool isProfiling = working->workflowType() == WorkflowType::CompoundProfiling;
    const auto edit = [isProfiling](KeyValueItem *item) -> Error {
        if (isProfiling)
            ORV_RETURN_IF_ERROR(moveInSilicoFile(item));
        return splitAlignment(item);
    };
    ORV_RETURN_IF_ERROR(
        editEach(settingsItems(*working, {BaseItemType::Trenq, BaseItemType::Senthia}), edit, *working));
    return Error::NoError;
}

} // namespace orv
