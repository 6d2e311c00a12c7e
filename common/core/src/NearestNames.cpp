#include "orv/core/NearestNames.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orv::NearestNames {

namespace {

constexpr qsizetype kMostNames = 3;
constexpr qsizetype kLongestName = 128;

/// The number of single changes between two texts, two neighbours that are swapped counted as one.
qsizetype distanceOf(const QString &a, const QString &b)
{
    const auto width = size_t(b.size()) + 1;
    std::vector<qsizetype> beforeLast(width), last(width), current(width);
    for (size_t j = 0; j < width; ++j)
        last[j] = qsizetype(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        current[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = size_t(j);
            const bool isEqual = a.at(i - 1) == b.at(j - 1);
            current[at] = std::min({last[at] + 1, current[at - 1] + 1, last[at - 1] + (isEqual ? 0 : 1)});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                current[at] = std::min(current[at], beforeLast[at - 2] + 1);
        }
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return last.back();
}

} // namespace

QStringList find(const QString &name, const QStringList &known)
{
    if (name.isEmpty() || name.size() > kLongestName)
        return {};
    const QString wanted = name.toLower();
    const qsizetype most = std::max<qsizetype>(1, wanted.size() / 3);
    std::vector<std::pair<qsizetype, QString>> near;
    for (const QString &candidate : known) {
        if (std::abs(candidate.size() - wanted.size()) > most)
            continue;
        const qsizetype distance = distanceOf(wanted, candidate.toLower());
        if (distance <= most)
            near.emplace_back(distance, candidate);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList names;
    for (const auto &[distance, candidate] : near) {
        if (names.size() < kMostNames && !names.contains(candidate))
            names.append(candidate);
    }
    return names;
}

QString question(const QString &name, const QStringList &known)
{
    const QStringList names = find(name, known);
    if (names.isEmpty())
        return {};
    return QStringLiteral(" Did you mean \"%1\"?").arg(names.join(QStringLiteral("\" or \"")));
}

} // namespace orv::NearestNames
