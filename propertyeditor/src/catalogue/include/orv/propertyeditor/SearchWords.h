#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <span>

namespace orv {

/// What a person typed into a field of search: words in any order. Case doesn't count, nor does how a letter
/// is composed ("é" of one sign or of two, "µ" of either kind). No text is markup or a pattern.
/// \code
///     const SearchWords words(typed);
///     const bool isFound = words.standIn(SearchWords::folded(caption));
/// \endcode
/// A plain value.
class ORV_WORKFLOW_EXPORT SearchWords
{
public:
    SearchWords() = default;
    explicit SearchWords(const QString &text);

    /// A text in the form in which words are looked for.
    [[nodiscard]] static QString folded(const QString &text);

    [[nodiscard]] bool isEmpty() const { return m_words.isEmpty(); }
    /// Folded, each once.
    [[nodiscard]] const QStringList &words() const { return m_words; }

    /// Whether every word stands in \a folded.
    [[nodiscard]] bool standIn(QStringView folded) const;

    /// How far one has to read in \a folded, the texts of one thing from the one that tells most to the one
    /// that tells least, until every word has been met; nothing if one isn't there.
    [[nodiscard]] std::optional<int> fieldIn(std::span<const QString> folded) const;

    /// Whether \a earlier is met by all that these are met by.
    [[nodiscard]] bool narrow(const SearchWords &earlier) const;

private:
    QStringList m_words;
};

} // namespace orv
