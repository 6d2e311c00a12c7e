#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

namespace orv {

/// Documents to begin with, filled with the defaults of the catalogue. Safe on any thread.
/// \code
///     const PropertyEditorContent content = NewWorkflow::make("Release check", {BaseItemType::Intact});
///     FileUtils::writeToFile(path, content.toJson()); // stamped
/// \endcode
namespace NewWorkflow {

/// Every type that a cell may have, by number.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<BaseItemType> cellTypes();

/// The settings of a new cell of that type by ascending id; none for a cell of tables.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<PropertyId> settingsOf(BaseItemType type);

/// A cell with its default settings or tables; empty for Unknown.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject defaultCell(BaseItemType type);

/// A document of the desktop with one tab of one row: a column for each type, called as the type, repeated
/// ones with a number behind. An empty \a name is left out.
[[nodiscard]] ORV_WORKFLOW_EXPORT PropertyEditorContent make(const QString &name,
                                                             const QList<BaseItemType> &types);

} // namespace NewWorkflow

} // namespace orv
