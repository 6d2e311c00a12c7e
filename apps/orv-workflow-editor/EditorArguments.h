#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// What was asked of the application on its command line.
struct EditorArguments
{
    QStringList files; ///< absolute

    /// Set where there is nothing to show: the text goes to standard output, or to standard error where the
    /// arguments are wrong.
    struct Answer
    {
        QString text;
        int exitCode = 0;
    };
    std::optional<Answer> answer;

    static constexpr int kWrongUsage = 2;
};

/// Needs an application object, but no screen: help works in a terminal without one. \a arguments begin with
/// the program's name; names of files are taken from the current folder.
[[nodiscard]] EditorArguments readEditorArguments(const QStringList &arguments);

} // namespace orv
