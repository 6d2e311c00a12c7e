#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orv::FileUtilsGeneric {

/// Reads the JSON object in the file at \a path into \a object. On failure false, with \a object unchanged
/// and the reasons, messages first and then details, appended to \a errors. Both may be null.
ORV_WORKFLOW_EXPORT bool readJsonObjectFromFile(const QString &path, QJsonObject *object,
                                                QStringList *errors);

} // namespace orv::FileUtilsGeneric
