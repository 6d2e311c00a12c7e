#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace orv {

/// How spectra of one kind of sample are deconvolved. A plain value.
struct ORV_WORKFLOW_EXPORT IntactOptions
{
    QString name;
    double minimumMz = 600.0;
    double maximumMz = 9000.0;
    double minimumMassDa = 500.0;
    double maximumMassDa = 200000.0;
    int minimumCharge = 5;
    int maximumCharge = 100;
    QString adduct;                     ///< formula of what carries one charge
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back

    bool operator==(const IntactOptions &) const = default;
};

/// The table of deconvolution options, for intact proteins and for oligonucleotides; docs/formats.md lists
/// the columns. Stateless, any thread.
namespace IntactOptionsUtils {

/// One row for denatured, protonated samples.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

/// Empty cells read as the values above. InvalidContent with row and column as detail for a cell that is no
/// number.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<IntactOptions>> optionsFromRowNode(const RowNode &table);
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode optionsToRowNode(const QList<IntactOptions> &options);

/// Whether spectra can be deconvolved. Errors: a lower bound that isn't positive or not below its upper one
/// (equal charges are fine), and an adduct that is no formula or empty. A warning: a name that stands twice.
/// The lists may be null, and are appended to.
ORV_WORKFLOW_EXPORT bool validate(const QList<IntactOptions> &options, QStringList *errors,
                                  QStringList *warnings);

} // namespace IntactOptionsUtils

} // namespace orv
