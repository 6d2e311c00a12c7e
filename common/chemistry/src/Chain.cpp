#include "orv/chemistry/Chain.h"

#include <QCoreApplication>

namespace orv {

namespace {

struct ChainTr
{
    Q_DECLARE_TR_FUNCTIONS(Chain)
};

} // namespace

Error Chain::updateMasses(const MassCalculator &monoisotopic, const MassCalculator &average,
                          const ChemicalFactory &factory)
{
    Result<ChemicalFormula> formula = factory.formula(sequence, type);
    if (formula.hasError()) {
        monoisotopicMassDa.reset();
        averageMassDa.reset();
        return formula.ecatch().addDetail(ChainTr::tr("It is the sequence of the chain \"%1\".").arg(name));
    }
    monoisotopicMassDa = monoisotopic.mass(*formula);
    averageMassDa = average.mass(*formula);
    return Error::NoError;
}

} // namespace orv
