#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/Content.h>

#include <QJsonObject>

/// From documents to the trees that steps edit, and back.
namespace orv::TreeText {

[[nodiscard]] Result<PropertyEditor::Content> read(const QJsonObject &stamped);
/// By the document's text, which is the long way: it also changes values that a text changes.
[[nodiscard]] Result<PropertyEditor::Content> read(const PropertyEditorContent &document);

/// Fails if a tab is no rectangle, as it would be written empty.
Error checkTabs(const PropertyEditor::Content &tree);

/// Replaces *document by what the tree holds. Fails as checkTabs.
Error write(const PropertyEditor::Content &tree, PropertyEditorContent *document);

} // namespace orv::TreeText
