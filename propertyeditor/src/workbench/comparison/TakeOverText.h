#pragma once

#include <QString>

namespace orv {

class ComparisonModel;

/// What is told of the differences that are checked in a comparison, before and after they are taken over.
namespace TakeOverText {

/// "2 differences are checked. Taken over, they remove column Analysis › Karvon."; empty for none.
[[nodiscard]] QString ofChecked(const ComparisonModel &model);
/// The step of the history.
[[nodiscard]] QString ofStep(const ComparisonModel &model, const QString &otherName);
/// Once it was done.
[[nodiscard]] QString ofOutcome(const ComparisonModel &model, const QString &otherName);

} // namespace TakeOverText

} // namespace orv
