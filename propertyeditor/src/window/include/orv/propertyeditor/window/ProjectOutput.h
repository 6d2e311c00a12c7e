#pragma once

#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/widgets/DuplicateFilePolicy.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/Path.h>

#include <QList>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

namespace PropertyEditor {
class KeyValueItem;
} // namespace PropertyEditor

/// Asks where the results of a workflow go. GUI thread.
namespace ProjectOutput {

/// A folder where documents of several kinds yield several results, or previews; else a file. Empty, of
/// unknown kind, when nothing was chosen or there is nothing to run. \a policy, which may be null, is written
/// where several results are asked for.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT Path
askForPath(QWidget *parent, const QList<BaseItemType> &documents,
           const QList<PropertyEditor::KeyValueItem *> &projects, DuplicateFilePolicy *policy);

/// Those of that type, in order.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QList<PropertyEditor::KeyValueItem *>
filterProjects(const QList<PropertyEditor::KeyValueItem *> &projects, BaseItemType type);

} // namespace ProjectOutput

} // namespace orv
