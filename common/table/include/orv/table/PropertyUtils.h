#pragma once

#include <orv/core/Export.h>

#include <QMetaType>
#include <QString>

/// The types of values in columns that people define. Any thread.
namespace orv::PropertyUtils {

/// That of a column which tells none that is known: texts.
[[nodiscard]] ORV_WORKFLOW_EXPORT QMetaType::Type defaultType();

/// "text" and "string", "number" and "double", "int" and "bool", in any case; \a otherwise for other names.
[[nodiscard]] ORV_WORKFLOW_EXPORT QMetaType::Type qtTypeForName(const QString &name,
                                                                QMetaType::Type otherwise);

} // namespace orv::PropertyUtils
