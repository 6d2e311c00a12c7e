#pragma once

#include <orv/chemistry/ChemicalFormula.h>
#include <orv/core/Export.h>

#include <QList>
#include <QString>

namespace orv {

/// A modification of proteins that is well known. A plain value.
struct ORV_WORKFLOW_EXPORT CommonModification
{
    QString name;
    ChemicalFormula formula; ///< what it adds
    QString residues;        ///< letters, "NTerm" and "CTerm", with commas between
};

/// Modifications that Unimod shows to everybody or approved, as ProteoWizard's library has them; no exchanges
/// of residues. Stateless, any thread.
namespace CommonModifications {

/// By name; read on first use.
[[nodiscard]] ORV_WORKFLOW_EXPORT const QList<CommonModification> &all();

/// Where they come from, for people.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString source();

} // namespace CommonModifications

} // namespace orv
