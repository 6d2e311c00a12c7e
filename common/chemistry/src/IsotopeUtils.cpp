#include "orv/chemistry/IsotopeUtils.h"

#include "internal/Elements.h"
#include "internal/IsotopeColumns.h"
#include "internal/IsotopeDistribution.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <QCoreApplication>

#include <cmath>
#include <numeric>

namespace orv::IsotopeUtils {

namespace IsotopeColumns = Internal::IsotopeColumns;
using namespace Qt::StringLiterals;

namespace {

constexpr double kMostLost = 1e-3;

struct IsotopeUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(IsotopeUtils)
};

Error badRow(int row, const QString &reason)
{
    return Error(ErrorCode::InvalidContent, IsotopeUtilsTr::tr("The table of isotopes can't be read."))
        .addDetail(IsotopeUtilsTr::tr("Row %1: %2").arg(row + 1).arg(reason));
}

Error noEnvelope(const ChemicalFormula &formula, const QString &reason)
{
    return Error(ErrorCode::InvalidContent, IsotopeUtilsTr::tr("A formula has no isotope envelope."))
        .addDetail(IsotopeUtilsTr::tr("The formula is \"%1\". %2").arg(formula.toString(), reason));
}

} // namespace

RowNode defaultRowNode()
{
    // No enrichment stands for the natural abundance, which is nobody's to type in.
    return isotopesToRowNode({{u"Natural abundance"_s, u"C"_s, 13, std::nullopt, {}}});
}

Result<QList<IsotopeLabel>> isotopesFromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table, {IsotopeColumns::kName, IsotopeColumns::kElement,
                                             IsotopeColumns::kMassNumber, IsotopeColumns::kEnrichment});
    QList<IsotopeLabel> isotopes;
    for (int i = 0; i < rows.rowCount(); ++i) {
        IsotopeLabel isotope;
        isotope.name = rows.text(i, IsotopeColumns::kName);
        isotope.element = rows.text(i, IsotopeColumns::kElement).trimmed();
        isotope.massNumber = Internal::intOf(rows.cell(i, IsotopeColumns::kMassNumber)).value_or(0);
        if (!naturalAbundancePercent(isotope.element, isotope.massNumber)) {
            return badRow(i, IsotopeUtilsTr::tr("There is no natural isotope \"%1\" of \"%2\".")
                                 .arg(rows.text(i, IsotopeColumns::kMassNumber), isotope.element));
        }
        const QVariant enrichment = rows.cell(i, IsotopeColumns::kEnrichment);
        isotope.enrichmentPercent = Internal::numberOf(enrichment);
        constexpr double kAll = 100.0;
        const double percent =
            isotope.enrichmentPercent.value_or(Internal::isEmptyCell(enrichment) ? 0.0 : -1.0);
        if (percent < 0.0 || percent > kAll)
            return badRow(
                i, IsotopeUtilsTr::tr("The enrichment \"%1\" is no percentage.").arg(enrichment.toString()));
        isotope.otherCells = rows.otherCells(i);
        isotopes.append(isotope);
    }
    return isotopes;
}

RowNode isotopesToRowNode(const QList<IsotopeLabel> &isotopes)
{
    RowNode table = Internal::tableOf({IsotopeColumns::kName, IsotopeColumns::kElement,
                                       IsotopeColumns::kMassNumber, IsotopeColumns::kEnrichment});
    Internal::TableWriter rows(&table);
    for (const IsotopeLabel &isotope : isotopes) {
        rows.addRow(
            {isotope.name, isotope.element, isotope.massNumber, Internal::cellOf(isotope.enrichmentPercent)},
            isotope.otherCells);
    }
    return table;
}

std::optional<double> naturalAbundancePercent(const QString &element, int massNumber)
{
    constexpr double kPercent = 100.0;
    const Internal::Element *found = Internal::findElement(element);
    if (!found || found->symbol.startsWith(u'_')) // single isotopes
        return std::nullopt;
    for (const Internal::Element::Isotope &isotope : found->isotopes) {
        if (std::lround(isotope.massDa) == massNumber)
            return isotope.abundance * kPercent;
    }
    return std::nullopt;
}

Result<QList<IsotopePeak>> envelope(const ChemicalFormula &formula, double cutoff)
{
    if (!(cutoff > 0.0 && cutoff < 1.0))
        return noEnvelope(formula, IsotopeUtilsTr::tr("The cutoff %1 isn't between 0 and 1.").arg(cutoff));
    if (formula.isEmpty())
        return noEnvelope(formula, IsotopeUtilsTr::tr("It is empty."));
    Internal::IsotopeDistribution molecules;
    for (auto it = formula.counts().cbegin(); it != formula.counts().cend(); ++it) {
        if (it.value() < 0 || it.value() > ChemicalFormula::kMaximumCount)
            return noEnvelope(
                formula, IsotopeUtilsTr::tr("There can't be %1 atoms of %2.").arg(it.value()).arg(it.key()));
        const Internal::Element &element = *Internal::findElement(it.key());
        if (element.isotopes.isEmpty())
            return noEnvelope(formula, IsotopeUtilsTr::tr("Nature has no isotopes of %1.").arg(it.key()));
        molecules = molecules.with(Internal::IsotopeDistribution(element).times(it.value()));
    }
    const QList<IsotopePeak> peaks = molecules.peaks(cutoff);
    const double kept =
        std::accumulate(peaks.begin(), peaks.end(), 0.0,
                        [](double sum, const IsotopePeak &peak) { return sum + peak.abundance; });
    if (kept < 1.0 - kMostLost) {
        return noEnvelope(formula,
                          IsotopeUtilsTr::tr("The cutoff %1 would leave out %2 % of its molecules; choose a "
                                             "smaller one.")
                              .arg(cutoff)
                              .arg((1.0 - kept) * 100.0, 0, 'f', 1));
    }
    return peaks;
}

} // namespace orv::IsotopeUtils
