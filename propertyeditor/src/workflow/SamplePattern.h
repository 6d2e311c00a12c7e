#pragma once

#include <QRegExp>
#include <QString>

#include <optional>

namespace orv {

/// One pattern that names of samples are matched with; see SampleNames. The common kinds are judged here in a
/// time that doesn't depend on the pattern's length. QRegExp judges sets and backslashes, once a name is long
/// enough for them: to read a pattern takes it a time that grows with the square of its length.
class SamplePattern
{
public:
    explicit SamplePattern(const QString &text);

    /// Whether it matches its own text alone.
    [[nodiscard]] bool isPlain() const { return m_kind == Kind::Plain; }
    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] bool matches(const QString &name);

private:
    enum class Kind
    {
        Plain,
        Wildcard, ///< with "*" and "?" alone
        Other,
    };

    [[nodiscard]] bool matchesWildcard(const QString &name) const;
    [[nodiscard]] bool matchesOther(const QString &name);

    QString m_text;
    Kind m_kind;
    qsizetype m_shortest = 0; ///< no shorter name matches
    std::optional<QRegExp> m_expression;
};

} // namespace orv
