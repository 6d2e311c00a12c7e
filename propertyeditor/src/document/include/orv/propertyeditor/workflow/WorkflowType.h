#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QString>

namespace orv {

/// What kind of analysis a workflow is. The text form stands in files, and the numbers are those by which
/// upgrade steps and applications tell workflows apart: never rename, never renumber.
enum class WorkflowType
{
    Unknown = 0,
    IntactMass = 1,
    ProteinSearch = 2,
    CompoundProfiling = 3,
    CompoundScreening = 4,
    PeptideMap = 5,
    TargetedPeptideMap = 6,
    ComparativePeptideMap = 7,
    HrimCompoundMap = 8,
    HrimIntactMass = 9,
    HrimReleasedGlycans = 10,
    IcIefMs = 11,
    DenaturedIntactMass = 12,
    NativeIntactMass = 13,
    DrugAntibodyRatio = 14,
    SubunitMass = 15,
    DisulfideMap = 16,
    HostCellProteins = 17,
    MultiAttributeMethod = 18,
    ReducedIntactMass = 19,
    ReleasedGlycans = 20,
    LabelledReleasedGlycans = 21,
    ReleasedGlycanQuantification = 22,
    SequenceVariants = 23,
    DeNovoSequencing = 24,
    ProteinQuantification = 25,
    ForcedDegradation = 26,
    IntactOligo = 27,
    DigestedOligo = 28,
    LabelFreeQuantification = 29,
    DataIndependentAcquisition = 30,
    ChargeVariants = 31,
    GlycoproteinSearch = 32,
    CrossLinkedPeptides = 34,
};

/// Every type, Unknown first, by number.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<WorkflowType> availableWorkflowTypes();

/// The stable text of a type; that of Unknown for a number that is no type.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString workflowTypeToString(WorkflowType type);

/// The type of exactly that text; Unknown for any other.
[[nodiscard]] ORV_WORKFLOW_EXPORT WorkflowType workflowTypeFromString(const QString &text);

/// The type that a document of an age without types shows by its icon; Unknown for any other icon name.
[[nodiscard]] ORV_WORKFLOW_EXPORT WorkflowType workflowTypeFromIconName(const QString &iconName);

/// The icon name of a type, from which workflowTypeFromIconName gives the type back; empty for Unknown.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString workflowTypeIconName(WorkflowType type);

} // namespace orv
