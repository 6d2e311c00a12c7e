// The steps that only add settings to cells, or take one away.
#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

#include <QStringList>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

using Types = QSet<BaseItemType>;

struct Insertion
{
    Types cells;
    PropertyId id;
    QString group;
    QVariant value;
    int type;
    PropertyId before = PropertyId::NoProperty;
};

Error insertEverywhere(const Insertion &insertion, const WorkingContent &working)
{
    const auto edit = [&insertion](KeyValueItem *item) {
        return insert(item, insertion.id, insertion.group, insertion.value, insertion.type, insertion.before);
    };
    return editEach(settingsItems(working, insertion.cells), edit, working);
}

/// Whether workflows of a type are touched.
using Gate = bool (*)(WorkflowType type);

bool anyType(WorkflowType /*type*/)
{
    return true;
}

template<WorkflowType... types>
bool oneOf(WorkflowType type)
{
    return ((type == types) || ...);
}

template<WorkflowType other>
bool notOf(WorkflowType type)
{
    return type != other;
}

Error plainStep(Gate gate, const Insertion &insertion, Result<WorkingContent> working)
{
    if (!working)
        return working.ecatch();
    if (!gate(working->workflowType()))
        return Error::NoError;
    ORV_RETURN_IF_ERROR(insertEverywhere(insertion, *working));
    return Error::NoError;
}

QString reportGroup()
{
    return QStringLiteral("Report");
}

QString matchGroup()
{
    return QStringLiteral("Match between runs");
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_15_0(PropertyEditorContent *content)
{
    return plainStep(&anyType,
                     {{BaseItemType::Karvon}, PropertyId::ExportSearchReport, reportGroup(), false, kBool},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_20_0(PropertyEditorContent *content)
{
    return plainStep(&anyType,
                     {{BaseItemType::Senthia, BaseItemType::Dravik},
                      PropertyId::IsotopeModel,
                      QStringLiteral("Feature Finder"),
                      0,
                      kInt},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_21_0(PropertyEditorContent *content)
{
    return plainStep(
        &oneOf<WorkflowType::ProteinSearch>,
        {{BaseItemType::Karvon}, PropertyId::ReportConfiguration, reportGroup(), QString(), kText},
        createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_29_0(PropertyEditorContent * /*content*/)
{
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_30_0(PropertyEditorContent *content)
{
    return plainStep(&oneOf<WorkflowType::DigestedOligo>,
                     {{BaseItemType::Senthia},
                      PropertyId::InSilicoPeptidesFile,
                      QStringLiteral("In-silico options (CSV import)"),
                      QString(),
                      kText},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_34_0(PropertyEditorContent *content)
{
    return plainStep(&oneOf<WorkflowType::LabelFreeQuantification>,
                     {{BaseItemType::Trenq}, PropertyId::MatchBetweenRuns, matchGroup(), 0, kInt},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_36_0(PropertyEditorContent *content)
{
    return plainStep(&oneOf<WorkflowType::LabelFreeQuantification>,
                     {{BaseItemType::Trenq}, PropertyId::RetentionTimeAlignment, matchGroup(), true, kBool},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_37_0(PropertyEditorContent *content)
{
    return plainStep(&oneOf<WorkflowType::LabelFreeQuantification>,
                     {{BaseItemType::Trenq},
                      PropertyId::ReportedPeptideSelection,
                      QStringLiteral("Reported peptide filtering"),
                      0,
                      kInt,
                      PropertyId::ReportedPeptideCount},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_38_0(PropertyEditorContent *content)
{
    return plainStep(&anyType,
                     {{BaseItemType::Senthia, BaseItemType::Trenq},
                      PropertyId::PdfReportTemplate,
                      reportGroup(),
                      QString(),
                      kText},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_40_0(PropertyEditorContent *content)
{
    return plainStep(&oneOf<WorkflowType::LabelFreeQuantification, WorkflowType::GlycoproteinSearch>,
                     {{BaseItemType::Karvon},
                      PropertyId::KarvonInclusionFilter,
                      QStringLiteral("Inclusion"),
                      QString(),
                      kText},
                     createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_41_0(PropertyEditorContent *content)
{
    return plainStep(&notOf<WorkflowType::DigestedOligo>,
                     {{BaseItemType::Karvon},
                      PropertyId::KarvonNglycanMotifLetters,
                      QStringLiteral("Glycans"),
                      QStringList{QStringLiteral("S"), QStringLiteral("T")},
                      kListText},
                     createPecToUpgrade(content));
}

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

Error WflwUpgradeHelper::upgradeV_5_17_0(PropertyEditorContent *content)
{
    return readAndWrite(createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_42_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    QList<KeyValueItem *> items =
        settingsItems(*working, {BaseItemType::Trenq, BaseItemType::Senthia, BaseItemType::Dravik});
    items.removeIf([](const KeyValueItem *item) { return !item->contains(PropertyId::CreateXicCache); });
    const auto edit = [](KeyValueItem *item) { return remove(item, keyOf(PropertyId::CreateXicCache)); };
    ORV_RETURN_IF_ERROR(editEach(items, edit, *working));
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_45_0(PropertyEditorContent *content)
{
    Result<WorkingContent> working = createPecToUpgrade(content);
    if (!working)
        return working.ecatch();
    const auto edit = [](KeyValueItem *item) -> Error {
        if (item->contains(PropertyId::CaldrinInstrument))
            return Error::NoError;
        return insert(item, PropertyId::CaldrinInstrument, QStringLiteral("Instrument Parameters"),
                      QStringLiteral("QTOF / HCD"), kText);
    };
    ORV_RETURN_IF_ERROR(editEach(settingsItems(*working, {BaseItemType::CaldrinDIA}), edit, *working));
    return Error::NoError;
}

} // namespace orv
