#pragma once

#include <orv/widgets/Export.h>

#include <QString>

/// The folders that file dialogs begin in, remembered from one run to the next.
namespace orv::FileSystemSettings {

/// A kind of dialog that remembers a folder of its own.
struct DirectoryLocation
{
    QLatin1String name; ///< for people who look into the settings
    QLatin1String key;  ///< of the setting
};

/// For dialogs without a folder of their own.
inline constexpr DirectoryLocation DefaultLocation = {QLatin1String("DefaultLocation"),
                                                      QLatin1String("FSS_DefaultLocation")};
/// For projects that are made.
inline constexpr DirectoryLocation NewProjectLocation = {QLatin1String("NewProjectLocation"),
                                                         QLatin1String("FSS_NewProjectLocation")};

/// The remembered folder; the person's folder of documents while none is, or when it is gone; the home folder
/// of those who have neither.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString folder(const DirectoryLocation &location);

/// Remembers the folder of a file, or a folder, that was chosen.
ORV_PROPERTY_EDITOR_EXPORT void rememberChosen(const DirectoryLocation &location, const QString &path);

} // namespace orv::FileSystemSettings
