#pragma once

#include <orv/propertyeditor/workflow/WorkflowRelink.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// The text of a path or of a server's reference by its names. Both separators count alike, several as one;
/// what it begins with ("/", "//", "C:", "talvane:") is a name of its own.
class PathNames
{
public:
    explicit PathNames(const QString &text);

    [[nodiscard]] qsizetype count() const { return m_names.size(); }
    /// What of the text is left behind the first \a count names, without a separator in front.
    [[nodiscard]] QString behind(qsizetype count) const;
    /// Case counts, but for the letter of a drive.
    [[nodiscard]] bool startWith(const PathNames &other) const;

private:
    QString m_text;
    QStringList m_names;
    QList<qsizetype> m_ends; ///< of each name, in the text
};

/// Where files have gone, by what their paths began with.
class MovedPaths
{
public:
    explicit MovedPaths(const QList<WorkflowRelinkRule> &rules);

    /// \a text with the beginning that the rule with the most names gives it; nothing where none fits. A file
    /// URL stays one.
    [[nodiscard]] std::optional<QString> moved(const QString &text) const;

private:
    struct Rule
    {
        PathNames from;
        QString to;
        bool keepsAll; ///< both texts are the same
    };

    [[nodiscard]] std::optional<QString> movedPath(const QString &path) const;

    QList<Rule> m_rules;
};

} // namespace orv
