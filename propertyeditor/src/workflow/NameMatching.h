// Two lists of names side by side.
#pragma once

#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QPair>
#include <QString>

#include <optional>

namespace orv {

/// Names in a list, each told from earlier ones of the same text by its count.
class CountedNames
{
public:
    explicit CountedNames(const QList<QString> &names)
    {
        QHash<QString, int> counts;
        m_keys.reserve(names.size());
        for (const QString &name : names) {
            const Key key{name, counts[name]++};
            m_positions.insert(key, m_keys.size());
            m_keys.append(key);
        }
    }

    using Key = QPair<QString, int>;

    [[nodiscard]] const QList<Key> &keys() const { return m_keys; }
    [[nodiscard]] bool contains(const Key &key) const { return m_positions.contains(key); }
    [[nodiscard]] std::optional<qsizetype> find(const Key &key) const
    {
        const auto found = m_positions.constFind(key);
        return found == m_positions.cend() ? std::nullopt : std::optional(*found);
    }

    /// The name for people: a repeated one with its number, counted from 1.
    [[nodiscard]] static QString label(const Key &key)
    {
        const QString name = key.first.isEmpty() ? QStringLiteral("(no name)") : key.first;
        return key.second == 0 ? name : QStringLiteral("%1 (%2)").arg(name).arg(key.second + 1);
    }

    /// The labels of the names that \a other has too, in their order.
    [[nodiscard]] QJsonArray sharedWith(const CountedNames &other) const
    {
        QJsonArray labels;
        for (const Key &key : m_keys) {
            if (other.contains(key))
                labels.append(label(key));
        }
        return labels;
    }

private:
    QList<Key> m_keys;
    QHash<Key, qsizetype> m_positions;
};

/// Calls \a visit with the label of each name and its place in either list, if it has one: the names of
/// \a left first, then those of \a right alone.
template<typename Visit>
void matchNames(const CountedNames &left, const CountedNames &right, Visit visit)
{
    for (qsizetype i = 0; i < left.keys().size(); ++i)
        visit(CountedNames::label(left.keys().at(i)), std::optional(i), right.find(left.keys().at(i)));
    for (qsizetype i = 0; i < right.keys().size(); ++i) {
        if (!left.contains(right.keys().at(i)))
            visit(CountedNames::label(right.keys().at(i)), std::optional<qsizetype>(), std::optional(i));
    }
}

} // namespace orv
