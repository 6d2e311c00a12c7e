#pragma once

#include "Outcome.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orv::cli {

/// Refuses outputs that are files which the workflow refers to, such as those of samples and databases, by
/// whatever name. \a argument is the input that \a document came from. What doesn't exist yet, standard
/// output, pipes and devices are never refused, and cost nothing.
[[nodiscard]] Outcome<void> refuseReferred(const QJsonObject &document, const QString &argument,
                                           const QStringList &outputs);

} // namespace orv::cli
