// The list that comparisons of documents write.
#pragma once

#include "NameMatching.h"

#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QSet>

#include <atomic>
#include <utility>

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
        qsizetype known = 0; ///< what the path begins with is told by the members above
        QStringList columns; ///< of the table whose row is there

        [[nodiscard]] Place below(const QString &name) const;
        /// A row of a table with these columns.
        [[nodiscard]] Place tableRow(const QString &name, const QStringList &tableColumns) const;
        // The same, and what is there has that name.
        [[nodiscard]] Place inTab(const QString &name) const;
        [[nodiscard]] Place inColumn(const QString &name) const;
        [[nodiscard]] Place inRow(qsizetype number) const;
        [[nodiscard]] Place inSetting(const QString &name) const;
    };

    /// \a chosen are the numbers of differences of which the right side is wanted, closed under
    /// WorkflowDifference::together. Once \a isCancelled is set nothing more is looked for. Both outlive
    /// this.
    explicit DifferenceList(const QSet<qsizetype> *chosen = nullptr,
                            const std::atomic_bool *isCancelled = nullptr)
        : m_chosen(chosen)
        , m_isCancelled(isCancelled)
    {}

    /// What one side lacks is undefined there. Whether the right side is wanted; never inside of together(),
    /// which tells.
    bool add(const Place &place, const QJsonValue &left, const QJsonValue &right);
    /// The same; those of one \a group can only be had together. It begins with kNoGroup.
    bool add(const Place &place, const QJsonValue &left, const QJsonValue &right, qsizetype *group);

    /// One difference if the names that both sides have stand in another order. \a what says whose order.
    bool addOrder(const Place &place, const QString &what, const CountedNames &left,
                  const CountedNames &right);

    /// What \a find adds can only be had together; whether the right side is wanted.
    template<typename Find>
    bool together(Find find)
    {
        if (m_group != kNoGroup) {
            find();
            return false;
        }
        m_group = size();
        find();
        const qsizetype first = std::exchange(m_group, kNoGroup);
        return first < size() && isChosen(first);
    }

    /// Whether anybody wants to have something of the right side.
    [[nodiscard]] bool merges() const { return m_chosen; }
    [[nodiscard]] bool isCancelled() const { return m_isCancelled && *m_isCancelled; }
    [[nodiscard]] qsizetype size() const { return m_differences.size(); }
    [[nodiscard]] QList<WorkflowDifference> take();

    static constexpr qsizetype kNoGroup = WorkflowDifference::kAlone;

private:
    [[nodiscard]] bool isChosen(qsizetype number) const { return m_chosen && m_chosen->contains(number); }

    QList<WorkflowDifference> m_differences;
    const QSet<qsizetype> *m_chosen;
    const std::atomic_bool *m_isCancelled;
    qsizetype m_group = kNoGroup;
};

} // namespace orv
