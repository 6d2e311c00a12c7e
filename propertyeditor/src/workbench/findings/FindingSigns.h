#pragma once

#include <KPropertyEditorView.h>
#include <orv/propertyeditor/validators/Finding.h>

#include <QIcon>

/// How bad a finding is: the same sign and word in the panel, at tabs, groups and rows. GUI thread.
namespace orv::FindingSigns {

using Level = PropertyEditor::Finding::Level;

[[nodiscard]] QIcon icon(Level level);
[[nodiscard]] QString word(Level level);
[[nodiscard]] KPropertyEditorView::RemarkKind remarkKind(Level level);
/// "Error: " and \a text.
[[nodiscard]] QString told(Level level, const QString &text);

} // namespace orv::FindingSigns
