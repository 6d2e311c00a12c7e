#include "internal/SampleIds.h"

#include <orv/chemistry/MassUtils.h>

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <optional>

namespace orv::MassUtils {

namespace {

struct MassTableCheckTr
{
    Q_DECLARE_TR_FUNCTIONS(MassUtils)
};

/// "Row 3 (\"G0F\")".
QString rowName(qsizetype index, const DeltaMass &mass)
{
    return mass.name.isEmpty()
               ? MassTableCheckTr::tr("Row %1 of the masses").arg(index + 1)
               : MassTableCheckTr::tr("Row %1 (\"%2\") of the masses").arg(index + 1).arg(mass.name);
}

void checkMass(const QString &row, const DeltaMass &mass, QStringList *errors)
{
    if (!mass.unreadableMass.isEmpty()) {
        errors->append(
            MassTableCheckTr::tr("%1 has the mass \"%2\", which is no number. Please enter the mass in Da.")
                .arg(row, mass.unreadableMass));
    } else if (!mass.massDa) {
        errors->append(
            MassTableCheckTr::tr("%1 has no mass. Please enter the mass in Da or remove the row.").arg(row));
    }
}

void checkSamples(const QString &row, const DeltaMass &mass, const QSet<int> &known, QStringList *errors,
                  QStringList *warnings)
{
    const QList<int> gone = Internal::idsOutside(mass.samplesIds, known);
    if (gone.isEmpty())
        return;
    if (gone.size() == mass.samplesIds.size()) {
        errors->append(
            MassTableCheckTr::tr(
                "%1 is for the samples %2, which don't exist. Please choose samples or remove the row.")
                .arg(row, Internal::joinedNumbers(gone)));
    } else {
        warnings->append(MassTableCheckTr::tr("%1 is also for the samples %2, which don't exist.")
                             .arg(row, Internal::joinedNumbers(gone)));
    }
}

/// What makes two rows the same mass.
struct MassKey
{
    QString name;
    std::optional<double> massDa;
    QString protein;
    QList<int> samplesIds;

    bool operator==(const MassKey &) const = default;
    friend size_t qHash(const MassKey &key, size_t seed = 0)
    {
        return qHashMulti(seed, key.name, key.massDa.value_or(0.0), key.protein, key.samplesIds);
    }
};

} // namespace

bool validate(const QList<DeltaMass> &masses, const QList<int> &samplesIds, QStringList *errors,
              QStringList *warnings)
{
    QStringList foundErrors;
    QStringList foundWarnings;
    const QSet<int> known(samplesIds.begin(), samplesIds.end());

    QHash<MassKey, qsizetype> seen;
    for (qsizetype i = 0; i < masses.size(); ++i) {
        const DeltaMass &mass = masses.at(i);
        if (mass.isEmpty())
            continue;
        const QString row = rowName(i, mass);
        checkMass(row, mass, &foundErrors);
        if (mass.name.trimmed().isEmpty())
            foundWarnings.append(
                MassTableCheckTr::tr("%1 has no name, so its matches can't be told apart.").arg(row));
        checkSamples(row, mass, known, &foundErrors, &foundWarnings);
        const MassKey key{mass.name, mass.massDa, mass.protein, mass.samplesIds};
        const auto same = seen.constFind(key);
        if (same != seen.cend())
            foundWarnings.append(MassTableCheckTr::tr("%1 repeats row %2.").arg(row).arg(*same + 1));
        else
            seen.insert(key, i);
    }
    if (errors)
        errors->append(foundErrors);
    if (warnings)
        warnings->append(foundWarnings);
    return foundErrors.isEmpty();
}

} // namespace orv::MassUtils
