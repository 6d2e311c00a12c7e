#pragma once

#include <orv/core/Export.h>
#include <orv/core/LossObserver.h>

#include <QByteArrayView>
#include <QList>

namespace orv {

/// The numbers of \a json, which QJsonDocument must have read, that it writes as other ones, as they have
/// more digits than a double or an integer of 64 bits holds: 12345678901234567890 becomes
/// 12345678901234567000. Numbers of up to 17 digits, which other programs write for doubles, are none of
/// them. Linear in time.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<Loss> lossesOfNumbers(QByteArrayView json);

} // namespace orv
