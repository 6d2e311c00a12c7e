// The differences of two JSON values in a document, below the structure of tabs and cells.
#pragma once

#include "NameMatching.h"

#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

namespace orv {

/// Collects differences below one place of the document.
class DifferenceList
{
public:
    using Kind = WorkflowDifference::Kind;

    /// Where a comparison stands. Deeper places are copies of it with a longer path.
    struct Place
    {
        QString path;
        QString tab;
        QString column;
        std::optional<qsizetype> row;
        QString property;

        [[nodiscard]] Place below(const QString &name) const;
    };

    /// What one side lacks is undefined there.
    void add(const Place &place, const QJsonValue &left, const QJsonValue &right);

    /// One difference if the names that both sides have stand in another order. \a what says whose order.
    void addOrder(const Place &place, const QString &what, const CountedNames &left,
                  const CountedNames &right);

    [[nodiscard]] qsizetype size() const { return m_differences.size(); }
    [[nodiscard]] QList<WorkflowDifference> take() { return std::move(m_differences); }

private:
    QList<WorkflowDifference> m_differences;
};

/// Compares any two values: tables row by row, objects by members, lists of named objects by name, and
/// anything else as a whole. At least one difference comes of values that differ.
void compareValues(const QJsonValue &left, const QJsonValue &right, const DifferenceList::Place &place,
                   DifferenceList *differences);

/// The same for a metadata member, whose text is JSON itself.
void compareMetadata(const QJsonValue &left, const QJsonValue &right, const DifferenceList::Place &place,
                     DifferenceList *differences);

/// Calls \a visit with each key of either object, ascending.
template<typename Visit>
void forEachMember(const QJsonObject &left, const QJsonObject &right, Visit visit)
{
    auto l = left.begin();
    auto r = right.begin();
    while (l != left.end() || r != right.end()) {
        const bool takesLeft = r == right.end() || (l != left.end() && l.key() <= r.key());
        const QString key = takesLeft ? l.key() : r.key();
        visit(key, left.value(key), right.value(key));
        if (l != left.end() && l.key() == key)
            ++l;
        if (r != right.end() && r.key() == key)
            ++r;
    }
}

} // namespace orv
