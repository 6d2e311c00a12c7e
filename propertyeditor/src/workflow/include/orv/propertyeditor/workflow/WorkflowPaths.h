#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/Content.h>

#include <QUrl>

/// Relative files of a workflow, which count from its own folder. \a baseUrl is the URL of that folder, with
/// a slash at its end.
namespace orv::WorkflowPaths {

/// A document of its own with the same cells in which every path is absolute, for whatever opens files:
/// checks, parameter files, projects. Each cell is where it was. Fails for a tab that is no rectangle.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<PropertyEditor::Content>
absoluteCopy(const PropertyEditor::Content &content, const QUrl &baseUrl);

/// Lets the files of the samples, and no others, be absolute in \a content itself.
ORV_WORKFLOW_EXPORT void resolveSamples(PropertyEditor::Content *content, const QUrl &baseUrl);

} // namespace orv::WorkflowPaths
