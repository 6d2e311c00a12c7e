#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// The table of samples and proteins in a retired cell, as far as its columns go. Any thread.
namespace orv::PropertyEditor::SamplesProteinsColumns {

/// The names of the columns of that type in the value of property 267, in their order:
/// \code
///     {"header": {"data": ["Name", "Type", "Unit"], "children": [{"data": ["Lot", "Sample", ""]}]}}
/// \endcode
/// MalformedStructure for a header, or a row of it, without three entries, and for one that lacks the name or
/// the type; InvalidContent for members of another type.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QStringList> columnNames(const QJsonObject &value,
                                                                  const QString &type);

} // namespace orv::PropertyEditor::SamplesProteinsColumns
