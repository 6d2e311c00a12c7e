#include "SamplePattern.h"

#include <algorithm>

namespace orv {

namespace {

constexpr QLatin1Char kAnyText('*');
constexpr QLatin1Char kAnyCharacter('?');
constexpr QLatin1String kOddCharacters("[]\\");

bool holdsOneOf(const QString &text, QLatin1String characters)
{
    return std::any_of(text.begin(), text.end(), [characters](QChar c) { return characters.contains(c); });
}

/// Of a pattern with sets: one character for each that stands for itself, for each set and for "?". What
/// stands behind a backslash isn't counted, as there is much that it may mean.
qsizetype lengthOfShortestName(const QString &pattern)
{
    qsizetype count = 0;
    for (qsizetype i = 0; i < pattern.size() && pattern.at(i) != u'\\'; ++i) {
        if (pattern.at(i) == kAnyText || pattern.at(i) == u']')
            continue;
        ++count;
        if (pattern.at(i) != u'[')
            continue;
        // The first character of a set belongs to it, whatever it is.
        const bool isNegated = i + 1 < pattern.size() && pattern.at(i + 1) == u'^';
        const qsizetype end = pattern.indexOf(u']', i + (isNegated ? 3 : 2));
        if (end < 0)
            return count;
        i = end;
    }
    return count;
}

} // namespace

SamplePattern::SamplePattern(const QString &text)
    : m_text(text)
    , m_kind(holdsOneOf(text, kOddCharacters)                          ? Kind::Other
             : text.contains(kAnyText) || text.contains(kAnyCharacter) ? Kind::Wildcard
                                                                       : Kind::Plain)
    , m_shortest(m_kind == Kind::Other ? lengthOfShortestName(text) : 0)
{}

bool SamplePattern::matches(const QString &name)
{
    switch (m_kind) {
    case Kind::Plain:
        return name == m_text;
    case Kind::Wildcard:
        return matchesWildcard(name);
    case Kind::Other:
        break;
    }
    return name.size() >= m_shortest && matchesOther(name);
}

/// Takes as little as it can for each "*", and more for the last one only when what follows doesn't fit.
bool SamplePattern::matchesWildcard(const QString &name) const
{
    qsizetype p = 0;
    qsizetype n = 0;
    qsizetype lastStar = -1;
    qsizetype takenFrom = 0;
    while (n < name.size()) {
        if (p < m_text.size() && m_text.at(p) == kAnyText) {
            lastStar = p++;
            takenFrom = n;
        } else if (p < m_text.size() && (m_text.at(p) == kAnyCharacter || m_text.at(p) == name.at(n))) {
            ++p;
            ++n;
        } else if (lastStar >= 0) {
            p = lastStar + 1;
            n = ++takenFrom;
        } else {
            return false;
        }
    }
    return std::all_of(m_text.begin() + p, m_text.end(), [](QChar c) { return c == kAnyText; });
}

bool SamplePattern::matchesOther(const QString &name)
{
    if (!m_expression)
        m_expression.emplace(m_text, Qt::CaseSensitive, QRegExp::Wildcard);
    return m_expression->exactMatch(name);
}

} // namespace orv
