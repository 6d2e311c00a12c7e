// The steps that only insert a setting into cells, or remove one: a row for each, and no code.
#include "StepHelpers.h"

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

#include <QStringList>
#include <QVersionNumber>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <variant>

namespace orv {

using namespace PropertyEditor;
using namespace UpgradeSteps;

namespace {

using Cell = ORV_QEnumsBaseItemType;

/// Up to three of a kind, at compile time.
template<typename T>
class Few
{
public:
    constexpr Few(std::initializer_list<T> values)
        : m_count(values.size())
    {
        std::ranges::copy(values, m_values.begin());
    }
    [[nodiscard]] constexpr bool isEmpty() const { return m_count == 0; }
    [[nodiscard]] bool contains(T value) const { return std::find(begin(), end(), value) != end(); }
    [[nodiscard]] constexpr const T *begin() const { return m_values.data(); }
    [[nodiscard]] constexpr const T *end() const { return m_values.data() + m_count; }

private:
    std::array<T, 3> m_values = {};
    size_t m_count;
};

/// Which workflows a step is for.
struct Workflows
{
    Few<WorkflowType> only = {}; ///< any type if empty
    Few<WorkflowType> but = {};

    [[nodiscard]] bool contains(WorkflowType type) const
    {
        return (only.isEmpty() || only.contains(type)) && !but.contains(type);
    }
};

/// The value of an inserted setting, which has the type that belongs to it in a document.
using PlainValue = std::variant<bool, int, QLatin1String, Few<const char *>>;

constexpr QLatin1String kNoText("");

enum class Change
{
    Insert,         ///< fails where the setting is there already
    InsertIfAbsent, ///< leaves a setting that is there as it is
    RemoveIfThere,
};

struct PlainStep
{
    int minor;
    Workflows workflows;
    Change change;
    Few<BaseItemType> cells;
    PropertyId id;
    QLatin1String group = {}; ///< its caption; settings are added to its end
    PlainValue value = {};
    PropertyId before = PropertyId::NoProperty; ///< which the setting stands behind, in place of the end
};

constexpr QLatin1String kReportGroup("Report");
constexpr QLatin1String kMatchGroup("Match between runs");
constexpr Workflows kAllWorkflows;
constexpr Workflows kLabelFree{.only = {WorkflowType::LabelFreeQuantification}};

// clang-format off
constexpr std::array kPlainSteps = {
    PlainStep{15, kAllWorkflows, Change::Insert, {Cell::Karvon},
              PropertyId::ExportSearchReport, kReportGroup, false},
    PlainStep{20, kAllWorkflows, Change::Insert, {Cell::Senthia, Cell::Dravik},
              PropertyId::IsotopeModel, QLatin1String("Feature Finder"), 0},
    PlainStep{21, {.only = {WorkflowType::ProteinSearch}}, Change::Insert, {Cell::Karvon},
              PropertyId::ReportConfiguration, kReportGroup, kNoText},
    PlainStep{30, {.only = {WorkflowType::DigestedOligo}}, Change::Insert, {Cell::Senthia},
              PropertyId::InSilicoPeptidesFile, QLatin1String("In-silico options (CSV import)"), kNoText},
    PlainStep{34, kLabelFree, Change::Insert, {Cell::Trenq},
              PropertyId::MatchBetweenRuns, kMatchGroup, 0},
    PlainStep{36, kLabelFree, Change::Insert, {Cell::Trenq},
              PropertyId::RetentionTimeAlignment, kMatchGroup, true},
    PlainStep{37, kLabelFree, Change::Insert, {Cell::Trenq},
              PropertyId::ReportedPeptideSelection, QLatin1String("Reported peptide filtering"), 0,
              PropertyId::ReportedPeptideCount},
    PlainStep{38, kAllWorkflows, Change::Insert, {Cell::Senthia, Cell::Trenq},
              PropertyId::PdfReportTemplate, kReportGroup, kNoText},
    PlainStep{40, {.only = {WorkflowType::LabelFreeQuantification, WorkflowType::GlycoproteinSearch}},
              Change::Insert, {Cell::Karvon},
              PropertyId::KarvonInclusionFilter, QLatin1String("Inclusion"), kNoText},
    PlainStep{41, {.but = {WorkflowType::DigestedOligo}}, Change::Insert, {Cell::Karvon},
              PropertyId::KarvonNglycanMotifLetters, QLatin1String("Glycans"), Few<const char *>{"S", "T"}},
    PlainStep{42, kAllWorkflows, Change::RemoveIfThere, {Cell::Trenq, Cell::Senthia, Cell::Dravik},
              PropertyId::CreateXicCache},
    PlainStep{45, kAllWorkflows, Change::InsertIfAbsent, {Cell::CaldrinDIA},
              PropertyId::CaldrinInstrument, QLatin1String("Instrument Parameters"), QLatin1String("QTOF / HCD")},
};
// clang-format on

/// A value as documents hold it, and the type that goes with it.
struct TypedValue
{
    QVariant value;
    int type;
};

TypedValue typed(bool value)
{
    return {value, kBool};
}

TypedValue typed(int value)
{
    return {value, kInt};
}

TypedValue typed(QLatin1String value)
{
    return {QString(value), kText};
}

TypedValue typed(const Few<const char *> &values)
{
    QStringList texts;
    for (const char *text : values)
        texts.append(QString::fromLatin1(text));
    return {texts, kListText};
}

Error insertSetting(const PlainStep &step, KeyValueItem *item)
{
    const TypedValue inserted = std::visit([](const auto &value) { return typed(value); }, step.value);
    return insert(item, step.id, step.group, inserted.value, inserted.type, step.before);
}

Error takePlainStep(int minor, Result<WorkingContent> working)
{
    if (!working)
        return working.ecatch();
    const auto *const step = std::ranges::find(kPlainSteps, minor, &PlainStep::minor);
    Q_ASSERT(step != kPlainSteps.end());
    if (!step->workflows.contains(working->workflowType()))
        return Error::NoError;
    QList<KeyValueItem *> items = settingsItems(*working, {step->cells.begin(), step->cells.end()});
    if (step->change == Change::RemoveIfThere)
        items.removeIf([step](const KeyValueItem *item) { return !item->contains(step->id); });
    const auto edit = [step](KeyValueItem *item) -> Error {
        if (step->change == Change::RemoveIfThere)
            return remove(item, keyOf(step->id));
        if (step->change == Change::InsertIfAbsent && item->contains(step->id))
            return Error::NoError;
        return insertSetting(*step, item);
    };
    ORV_RETURN_IF_ERROR(editEach(items, edit, *working));
    return Error::NoError;
}

} // namespace

Error WflwUpgradeHelper::upgradeV_5_15_0(PropertyEditorContent *content)
{
    return takePlainStep(15, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_20_0(PropertyEditorContent *content)
{
    return takePlainStep(20, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_21_0(PropertyEditorContent *content)
{
    return takePlainStep(21, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_29_0(PropertyEditorContent * /*content*/)
{
    return Error::NoError;
}

Error WflwUpgradeHelper::upgradeV_5_30_0(PropertyEditorContent *content)
{
    return takePlainStep(30, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_34_0(PropertyEditorContent *content)
{
    return takePlainStep(34, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_36_0(PropertyEditorContent *content)
{
    return takePlainStep(36, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_37_0(PropertyEditorContent *content)
{
    return takePlainStep(37, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_38_0(PropertyEditorContent *content)
{
    return takePlainStep(38, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_40_0(PropertyEditorContent *content)
{
    return takePlainStep(40, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_41_0(PropertyEditorContent *content)
{
    return takePlainStep(41, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_42_0(PropertyEditorContent *content)
{
    return takePlainStep(42, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_45_0(PropertyEditorContent *content)
{
    return takePlainStep(45, createPecToUpgrade(content));
}

Error WflwUpgradeHelper::upgradeV_5_17_0(PropertyEditorContent *content)
{
    return readAndWrite(createPecToUpgrade(content));
}

} // namespace orv
