#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>

#include <QJsonObject>
#include <QList>

namespace orv::PropertyEditor {

/// What is odd about the values of a document as they stand in it, apart from the texts that validators tell:
/// a load mends or hides it. Warnings. Free of shared state.
namespace DocumentFindings {

/// References that hold control characters, as of backslashes that were written once: "D:\temp" is "D:", a
/// tabulator and "emp". Rule "Text/controlCharacter". Without a \a document they have no places.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<LocatedFinding> controlCharacters(const Content &content,
                                                                          const QJsonObject &document);

/// Numbers that stand without quotes where engines read texts, and so 0. Rule "Text/numberWithoutQuotes".
/// None without a \a document.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<LocatedFinding> numbersWithoutQuotes(const QJsonObject &document);

/// All of them. \a content was loaded from \a document.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<LocatedFinding> of(const Content &content,
                                                           const QJsonObject &document);

} // namespace DocumentFindings

} // namespace orv::PropertyEditor
