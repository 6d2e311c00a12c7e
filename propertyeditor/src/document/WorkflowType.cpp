#include "orv/propertyeditor/workflow/WorkflowType.h"

#include <array>

namespace orv {

namespace {

struct Row
{
    WorkflowType type;
    const char *text;
    const char *iconName;
};

constexpr std::array kRows = {
    Row{WorkflowType::Unknown, "Unknown", ""},
    Row{WorkflowType::IntactMass, "IntactMass", "intact-mass"},
    Row{WorkflowType::ProteinSearch, "ProteinSearch", "protein-search"},
    Row{WorkflowType::CompoundProfiling, "CompoundProfiling", "compound-profiling"},
    Row{WorkflowType::CompoundScreening, "CompoundScreening", "compound-screening"},
    Row{WorkflowType::PeptideMap, "PeptideMap", "peptide-map"},
    Row{WorkflowType::TargetedPeptideMap, "TargetedPeptideMap", "targeted-peptide-map"},
    Row{WorkflowType::ComparativePeptideMap, "ComparativePeptideMap", "comparative-peptide-map"},
    Row{WorkflowType::HrimCompoundMap, "HrimCompoundMap", "hrim-compound-map"},
    Row{WorkflowType::HrimIntactMass, "HrimIntactMass", "hrim-intact-mass"},
    Row{WorkflowType::HrimReleasedGlycans, "HrimReleasedGlycans", "hrim-released-glycans"},
    Row{WorkflowType::IcIefMs, "IcIefMs", "icief-ms"},
    Row{WorkflowType::DenaturedIntactMass, "DenaturedIntactMass", "denatured-intact-mass"},
    Row{WorkflowType::NativeIntactMass, "NativeIntactMass", "native-intact-mass"},
    Row{WorkflowType::DrugAntibodyRatio, "DrugAntibodyRatio", "drug-antibody-ratio"},
    Row{WorkflowType::SubunitMass, "SubunitMass", "subunit-mass"},
    Row{WorkflowType::DisulfideMap, "DisulfideMap", "disulfide-map"},
    Row{WorkflowType::HostCellProteins, "HostCellProteins", "host-cell-proteins"},
    Row{WorkflowType::MultiAttributeMethod, "MultiAttributeMethod", "multi-attribute-method"},
    Row{WorkflowType::ReducedIntactMass, "ReducedIntactMass", "reduced-intact-mass"},
    Row{WorkflowType::ReleasedGlycans, "ReleasedGlycans", "released-glycans"},
    Row{WorkflowType::LabelledReleasedGlycans, "LabelledReleasedGlycans", "labelled-released-glycans"},
    Row{WorkflowType::ReleasedGlycanQuantification, "ReleasedGlycanQuantification",
        "released-glycan-quantification"},
    Row{WorkflowType::SequenceVariants, "SequenceVariants", "sequence-variants"},
    Row{WorkflowType::DeNovoSequencing, "DeNovoSequencing", "de-novo-sequencing"},
    Row{WorkflowType::ProteinQuantification, "ProteinQuantification", "protein-quantification"},
    Row{WorkflowType::ForcedDegradation, "ForcedDegradation", "forced-degradation"},
    Row{WorkflowType::IntactOligo, "IntactOligo", "intact-oligo"},
    Row{WorkflowType::DigestedOligo, "DigestedOligo", "digested-oligo"},
    Row{WorkflowType::LabelFreeQuantification, "LabelFreeQuantification", "label-free-quantification"},
    Row{WorkflowType::DataIndependentAcquisition, "DataIndependentAcquisition",
        "data-independent-acquisition"},
    Row{WorkflowType::ChargeVariants, "ChargeVariants", "charge-variants"},
    Row{WorkflowType::GlycoproteinSearch, "GlycoproteinSearch", "glycoprotein-search"},
    Row{WorkflowType::CrossLinkedPeptides, "CrossLinkedPeptides", "cross-linked-peptides"},
};

template<typename Predicate>
const Row &rowWhere(Predicate predicate)
{
    const auto *const found = std::find_if(kRows.begin(), kRows.end(), predicate);
    return found == kRows.end() ? kRows.front() : *found;
}

} // namespace

QList<WorkflowType> availableWorkflowTypes()
{
    QList<WorkflowType> types;
    types.reserve(qsizetype(kRows.size()));
    for (const Row &row : kRows)
        types.append(row.type);
    return types;
}

QString workflowTypeToString(WorkflowType type)
{
    return QString::fromLatin1(rowWhere([type](const Row &row) { return row.type == type; }).text);
}

WorkflowType workflowTypeFromString(const QString &text)
{
    return rowWhere([&text](const Row &row) { return text == QLatin1String(row.text); }).type;
}

WorkflowType workflowTypeFromIconName(const QString &iconName)
{
    return rowWhere([&iconName](const Row &row) { return iconName == QLatin1String(row.iconName); }).type;
}

QString workflowTypeIconName(WorkflowType type)
{
    return QString::fromLatin1(rowWhere([type](const Row &row) { return row.type == type; }).iconName);
}

} // namespace orv
