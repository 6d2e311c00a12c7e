#include "MovedPaths.h"

#include <orv/core/FilePathUtils.h>
#include <orv/resources/ResourceReference.h>

#include <QUrl>

#include <algorithm>

namespace orv {

namespace {

constexpr QLatin1Char kSlash('/');
constexpr QLatin1Char kBackslash('\\');
constexpr QLatin1String kFileUrl("file:");

bool isPathSeparator(QChar c)
{
    return c == kSlash || c == kBackslash;
}

qsizetype endOfSeparators(const QString &text, qsizetype position)
{
    while (position < text.size() && isPathSeparator(text.at(position)))
        ++position;
    return position;
}

/// In a path from "/" a backslash belongs to a name.
bool hasBackslashSeparators(const QString &path)
{
    return !path.startsWith(kSlash) || FilePathUtils::isUncPath(path);
}

/// "data" for "./data"; "." and whatever else begins otherwise as it is.
QString withoutOwnFolder(const QString &path)
{
    qsizetype begin = 0;
    while (begin + 1 < path.size() && path.at(begin) == QLatin1Char('.') &&
           isPathSeparator(path.at(begin + 1)))
        begin = endOfSeparators(path, begin + 1);
    return begin < path.size() ? path.mid(begin) : path;
}

/// As the new beginning separates its names; with slashes where it has none.
QString separatedLike(const QString &beginning, const QString &path, QString rest)
{
    const bool wantsBackslashes = beginning.contains(kBackslash) && !beginning.contains(kSlash);
    if (wantsBackslashes)
        return rest.replace(kSlash, kBackslash);
    return hasBackslashSeparators(path) ? rest.replace(kBackslash, kSlash) : rest;
}

QString joined(const QString &beginning, const QString &rest)
{
    if (rest.isEmpty() || isPathSeparator(beginning.back()))
        return beginning + rest;
    const bool wantsBackslash = beginning.contains(kBackslash) && !beginning.contains(kSlash);
    return beginning + (wantsBackslash ? kBackslash : kSlash) + rest;
}

} // namespace

PathNames::PathNames(const QString &text)
    : m_text(text)
{
    qsizetype begin = endOfSeparators(text, 0);
    if (begin > 0) {
        m_names.append(begin == 2 ? QStringLiteral("//") : QStringLiteral("/"));
        m_ends.append(begin);
    }
    while (begin < text.size()) {
        const auto end = std::find_if(text.begin() + begin, text.end(), &isPathSeparator);
        m_ends.append(end - text.begin());
        m_names.append(text.mid(begin, m_ends.constLast() - begin));
        begin = endOfSeparators(text, m_ends.constLast());
    }
}

QString PathNames::behind(qsizetype count) const
{
    return m_text.mid(endOfSeparators(m_text, m_ends.at(count - 1)));
}

bool PathNames::startWith(const PathNames &other) const
{
    if (other.m_names.isEmpty() || other.count() > count())
        return false;
    const bool areDrives =
        FilePathUtils::hasDriveLetter(m_names.constFirst()) && m_names.constFirst().size() == 2;
    const auto sensitivity = areDrives ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return m_names.constFirst().compare(other.m_names.constFirst(), sensitivity) == 0 &&
           std::equal(other.m_names.begin() + 1, other.m_names.end(), m_names.begin() + 1);
}

MovedPaths::MovedPaths(const QList<WorkflowRelinkRule> &rules)
{
    for (const WorkflowRelinkRule &rule : rules)
        m_rules.append({PathNames(withoutOwnFolder(rule.from)), rule.to, rule.from == rule.to});
    std::ranges::stable_sort(m_rules, std::ranges::greater(),
                             [](const Rule &rule) { return rule.from.count(); });
}

std::optional<QString> MovedPaths::moved(const QString &text) const
{
    if (std::optional<QString> path = movedPath(text))
        return path;
    if (!text.startsWith(kFileUrl, Qt::CaseInsensitive))
        return {};
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (reference.hasError())
        return {};
    const std::optional<QString> path = movedPath((*reference)->text());
    return path ? std::optional(QUrl::fromLocalFile(*path).toString(QUrl::FullyEncoded)) : std::nullopt;
}

std::optional<QString> MovedPaths::movedPath(const QString &path) const
{
    const auto ruleFor = [this](const PathNames &names) {
        return std::ranges::find_if(m_rules, [&names](const Rule &one) { return names.startWith(one.from); });
    };
    PathNames names(path);
    auto rule = ruleFor(names);
    if (rule == m_rules.end()) {
        names = PathNames(withoutOwnFolder(path));
        rule = ruleFor(names);
    }
    if (rule == m_rules.end())
        return {};
    if (rule->keepsAll)
        return path;
    return joined(rule->to, separatedLike(rule->to, path, names.behind(rule->from.count())));
}

} // namespace orv
