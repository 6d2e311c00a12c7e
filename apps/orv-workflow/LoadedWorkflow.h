#pragma once

#include "Outcome.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/Content.h>

#include <QJsonObject>
#include <QList>
#include <QString>

#include <memory>

namespace orv::cli {

/// A workflow in its object form, the document that it was read from, and what the load dropped.
struct LoadedWorkflow
{
    QJsonObject document;
    std::unique_ptr<PropertyEditor::Content> content;
    QList<Loss> lost;
};

/// The workflow that a FILE argument means as it is stored, cells of unknown types included.
[[nodiscard]] Outcome<LoadedWorkflow> loadWorkflow(const QString &argument);

[[nodiscard]] Outcome<LoadedWorkflow> loadWorkflow(const QJsonObject &document);

/// The same with its samples' files and its glycan databases taken from its own folder where their paths are
/// relative, and that folder as base URL.
[[nodiscard]] Outcome<LoadedWorkflow> loadResolvedWorkflow(const QString &argument);

} // namespace orv::cli
