#include "orv/chemistry/MassTolerance.h"

#include "internal/JsonMembers.h"

#include <orv/chemistry/MassUtils.h>

#include <QCoreApplication>

namespace orv {

namespace {

constexpr QLatin1String kValueKey("value");
constexpr QLatin1String kUnitKey("unit");

struct MassToleranceTr
{
    Q_DECLARE_TR_FUNCTIONS(MassTolerance)
};

} // namespace

double MassTolerance::inDaltonAt(double massDa) const
{
    constexpr double kPartsPerMillion = 1e-6;
    return unit == kppm ? value * massDa * kPartsPerMillion : value;
}

Result<MassTolerance> MassTolerance::fromJson(const QJsonObject &object, const MassTolerance &defaults)
{
    MassTolerance tolerance = defaults;
    ORV_RETURN_IF_ERROR(Internal::readNonNegative(object, kValueKey, &tolerance.value));
    ORV_RETURN_IF_ERROR(Internal::readString(object, kUnitKey, &tolerance.unit));
    const QStringList units = MassUtils::possibleMassToleranceUnits();
    if (!units.contains(tolerance.unit)) {
        return Error(ErrorCode::InvalidContent, MassToleranceTr::tr("A mass tolerance has an unknown unit."))
            .addDetail(MassToleranceTr::tr("The unit is \"%1\"; there are %2.")
                           .arg(tolerance.unit, units.join(QLatin1String(", "))));
    }
    tolerance.unknownMembers = Internal::without(object, {kValueKey, kUnitKey});
    return tolerance;
}

QJsonObject MassTolerance::toJson() const
{
    QJsonObject object = unknownMembers;
    object.insert(kValueKey, value);
    object.insert(kUnitKey, unit);
    return object;
}

} // namespace orv
