#include "orv/propertyeditor/SearchWords.h"

#include <algorithm>

namespace orv {

namespace {

/// Composing takes long for many marks on one letter.
constexpr qsizetype kMostComposed = 4096;

} // namespace

SearchWords::SearchWords(const QString &text)
    : m_words(folded(text).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
{
    m_words.removeDuplicates();
}

QString SearchWords::folded(const QString &text)
{
    const bool isComposed = text.size() <= kMostComposed;
    return (isComposed ? text.normalized(QString::NormalizationForm_KC) : text).toCaseFolded();
}

bool SearchWords::standIn(QStringView folded) const
{
    return std::ranges::all_of(m_words, [folded](const QString &word) { return folded.contains(word); });
}

std::optional<int> SearchWords::fieldIn(std::span<const QString> folded) const
{
    int furthest = 0;
    for (const QString &word : m_words) {
        const auto met =
            std::ranges::find_if(folded, [&word](const QString &text) { return text.contains(word); });
        if (met == folded.end())
            return {};
        furthest = std::max(furthest, int(met - folded.begin()));
    }
    return furthest;
}

bool SearchWords::narrow(const SearchWords &earlier) const
{
    return std::ranges::all_of(earlier.m_words, [this](const QString &before) {
        return std::ranges::any_of(m_words, [&before](const QString &word) { return word.contains(before); });
    });
}

} // namespace orv
