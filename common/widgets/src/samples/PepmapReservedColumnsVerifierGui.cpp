#include "orv/widgets/PepmapReservedColumnsVerifierGui.h"

#include "SamplesProteinsCsv.h"

#include <orv/widgets/ORVStyle.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace orv {

namespace {

struct PepmapReservedColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(PepmapReservedColumnsVerifierGui)
};

/// In the form of SamplesProteinsCsv::plainName().
constexpr std::array kIntactPeaksColumns = {
    "apextime", "area",      "averagemass", "charge", "chargestates", "deltamass",
    "endtime",  "id",        "intensity",   "mass",   "massppm",      "modifications",
    "mz",       "proteinid", "sampleid",    "score",  "starttime",    "trace",
};

} // namespace

QStringList PepmapReservedColumnsVerifierGui::reservedInIntactPeaksTable(const QStringList &columns)
{
    QStringList reserved;
    for (const QString &column : columns) {
        const QString name = SamplesProteinsCsv::plainName(column);
        if (std::any_of(kIntactPeaksColumns.begin(), kIntactPeaksColumns.end(),
                        [&](const char *taken) { return name == QLatin1String(taken); }))
            reserved.append(column);
    }
    return reserved;
}

bool PepmapReservedColumnsVerifierGui::verifyIntactPeaksTable(const QMap<QString, QList<QVariant>> &columns,
                                                              QWidget *parent)
{
    const QStringList reserved = reservedInIntactPeaksTable(columns.keys());
    if (reserved.isEmpty())
        return true;
    ORVStyle::critical(
        parent, PepmapReservedColumnsTr::tr("Import"),
        PepmapReservedColumnsTr::tr("The table of intact peaks has columns of these names itself: "
                                    "%1. Call them otherwise in the file, and import it again.")
            .arg(reserved.join(QLatin1String(", "))));
    return false;
}

} // namespace orv
