#pragma once

#include <orv/core/Result.h>

#include <QJsonArray>
#include <QJsonObject>

/// Samples as a tree of rows under column names, the form of documents below version 5.6.0.
namespace orv::SampleRows {

/// Whether \a samplesTable holds such a tree and no samples of the present form.
[[nodiscard]] bool isTree(const QJsonObject &samplesTable);

/// The rows as samples of the present form: a member per column that the row has a value for, and ids from 1.
[[nodiscard]] Result<QJsonArray> toSamples(const QJsonObject &samplesTable);

} // namespace orv::SampleRows
