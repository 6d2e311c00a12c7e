#include "orv/chemistry/OligoImpurities.h"

#include "internal/JsonMembers.h"

#include <array>

namespace orv {

namespace {

struct Count
{
    QLatin1String key;
    int OligoImpurities::*member;
};

constexpr std::array kCounts = {
    Count{QLatin1String("fivePrimeTruncations"), &OligoImpurities::fivePrimeTruncations},
    Count{QLatin1String("threePrimeTruncations"), &OligoImpurities::threePrimeTruncations},
    Count{QLatin1String("additions"), &OligoImpurities::additions},
    Count{QLatin1String("baseLosses"), &OligoImpurities::baseLosses},
};
constexpr QLatin1String kSulfurLossKey("sulfurLoss");

} // namespace

Result<OligoImpurities> OligoImpurities::fromJson(const QJsonObject &object)
{
    OligoImpurities impurities;
    impurities.unknownMembers = object;
    for (const Count &count : kCounts) {
        ORV_RETURN_IF_ERROR(
            Internal::readInt(object, count.key, 0, kMaximumCount, &(impurities.*count.member)));
        impurities.unknownMembers.remove(count.key);
    }
    ORV_RETURN_IF_ERROR(Internal::readBool(object, kSulfurLossKey, &impurities.sulfurLoss));
    impurities.unknownMembers.remove(kSulfurLossKey);
    return impurities;
}

QJsonObject OligoImpurities::toJson() const
{
    QJsonObject object = unknownMembers;
    for (const Count &count : kCounts)
        object.insert(count.key, this->*count.member);
    object.insert(kSulfurLossKey, sulfurLoss);
    return object;
}

} // namespace orv
