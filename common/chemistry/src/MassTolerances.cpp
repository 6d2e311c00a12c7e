#include "orv/chemistry/MassTolerances.h"

#include "internal/JsonMembers.h"

#include <QCoreApplication>

namespace orv {

namespace {

constexpr QLatin1String kFullLengthProductKey("fullLengthProduct");
constexpr QLatin1String kImpuritiesKey("impurities");

struct MassTolerancesTr
{
    Q_DECLARE_TR_FUNCTIONS(MassTolerances)
};

Error readTolerance(const QJsonObject &object, QLatin1String key, MassTolerance *tolerance)
{
    QJsonObject member;
    ORV_RETURN_IF_ERROR(Internal::readObject(object, key, &member));
    Result<MassTolerance> read = MassTolerance::fromJson(member, *tolerance);
    if (read.hasError())
        return read.ecatch().addDetail(
            MassTolerancesTr::tr("It is the member \"%1\" of the mass tolerances.").arg(key));
    *tolerance = std::move(read).value();
    return Error::NoError;
}

} // namespace

Result<MassTolerances> MassTolerances::fromJson(const QJsonObject &object)
{
    MassTolerances tolerances;
    ORV_RETURN_IF_ERROR(readTolerance(object, kFullLengthProductKey, &tolerances.fullLengthProduct));
    ORV_RETURN_IF_ERROR(readTolerance(object, kImpuritiesKey, &tolerances.impurities));
    tolerances.unknownMembers = Internal::without(object, {kFullLengthProductKey, kImpuritiesKey});
    return tolerances;
}

QJsonObject MassTolerances::toJson() const
{
    QJsonObject object = unknownMembers;
    object.insert(kFullLengthProductKey, fullLengthProduct.toJson());
    object.insert(kImpuritiesKey, impurities.toJson());
    return object;
}

} // namespace orv
