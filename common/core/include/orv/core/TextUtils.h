#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QStringList>

/// Lists of texts for message boxes. Entries are plain text: they are escaped, so that a file name can't
/// smuggle in markup.
namespace orv::TextUtils {

/// "<ul><li>a</li><li>b</li></ul>"; empty for an empty list.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString stringListToHtmlList(const QStringList &texts);

/// The list under a heading that says that these are errors; empty for an empty list.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString errorsListToHtmlList(const QStringList &errors);

/// The list under a heading that says that these are warnings; empty for an empty list.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString warningsListToHtmlList(const QStringList &warnings);

// The same under a plain text, or under none where it is empty.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString errorsListToHtmlList(const QStringList &errors,
                                                               const QString &heading);
[[nodiscard]] ORV_WORKFLOW_EXPORT QString warningsListToHtmlList(const QStringList &warnings,
                                                                 const QString &heading);

} // namespace orv::TextUtils
