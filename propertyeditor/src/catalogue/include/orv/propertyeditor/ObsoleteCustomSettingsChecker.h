#pragma once

#include <orv/core/ApplicationType.h>
#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QList>
#include <QString>

namespace orv {

/// Finds expert settings that an application doesn't read any more, because a setting of the form took their
/// place. Such a line would be passed over in silence. All functions are safe on any thread.
class ORV_WORKFLOW_EXPORT ObsoleteCustomSettingsChecker
{
public:
    /// A name that is out of use, and what took its place.
    struct Row
    {
        ApplicationType application;
        QString key; ///< "Section/name"
        PropertyId successor;
    };

    /// All names that are out of use; docs/formats.md lists them for people.
    [[nodiscard]] static QList<Row> rows();

    /// Whether \a text has a name that is out of use in \a application; then \a message, which may be null,
    /// tells the names in the order of the alphabet. With \a hasSections the text has headers "[Section]",
    /// otherwise its keys are "Section/name"; see CustomSettings.
    [[nodiscard]] static bool hasObsoleteSettings(ApplicationType application, const QString &text,
                                                  QString *message, bool hasSections);

    /// What to do about the names that hasObsoleteSettings finds: the captions of the settings that took
    /// their place. Empty when it finds none.
    [[nodiscard]] static QString remedy(ApplicationType application, const QString &text, bool hasSections);
};

} // namespace orv
