#pragma once

#include <QLocale>
#include <QString>

/// What the application tells Qt and the library before its first window.
namespace orv::EditorApplication {

/// Its names and version, under which settings, journals and windows are known. Before the application object
/// or behind it.
void setNames();

/// The icons of workflows and of the windows. Behind the application object.
void setIcons();

/// The columns that the library leaves to its hosts, and the editors of the settings that hold such tables.
void registerCreators();

/// Translates the texts of Qt, the library and the application into the language of \a locale, as far as
/// there are translations. English needs none.
void installTranslations(const QLocale &locale);

/// Where translations lie: beside the folder of the program, installed or not.
[[nodiscard]] QString translationsFolder();

} // namespace orv::EditorApplication
