#include "orv/chemistry/CommonModifications.h"

#include <QCoreApplication>

#include <algorithm>

namespace orv::CommonModifications {

namespace {

struct CommonModificationsTr
{
    Q_DECLARE_TR_FUNCTIONS(CommonModifications)
};

struct ModificationRow
{
    const char *name;
    const char *formula;
    const char *residues;
};

constexpr ModificationRow kModifications[] = {
#include "Modifications.inc"
};

QList<CommonModification> readModifications()
{
    QList<CommonModification> modifications;
    for (const ModificationRow &row : kModifications) {
        const Result<ChemicalFormula> formula = ChemicalFormula::parse(QString::fromLatin1(row.formula));
        if (!formula.hasError())
            modifications.append({QString::fromUtf8(row.name), *formula, QString::fromLatin1(row.residues)});
    }
    std::sort(modifications.begin(), modifications.end(),
              [](const CommonModification &a, const CommonModification &b) {
                  return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
              });
    return modifications;
}

} // namespace

const QList<CommonModification> &all()
{
    static const QList<CommonModification> table = readModifications();
    return table;
}

QString source()
{
    return CommonModificationsTr::tr("Unimod, as ProteoWizard has it");
}

} // namespace orv::CommonModifications
