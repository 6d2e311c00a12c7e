#pragma once

#include <QJsonObject>

namespace orv {

class LossObserver;

/// Tells \a observer what nobody reads of a document whose samples are rows of a table: values beyond the
/// last column, and members that rows don't have. The observer must not be null.
void reportOldSampleLosses(const QJsonObject &document, LossObserver *observer);

} // namespace orv
