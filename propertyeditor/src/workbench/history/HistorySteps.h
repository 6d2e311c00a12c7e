#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"
#include "state/ShownState.h"

#include <QList>
#include <QString>

#include <optional>

namespace orv {

struct HistoryStep
{
    StateChange change;
    QString text;
    QList<TableMove> tables = {};
    std::optional<QString> upgradedFile = {}; ///< of the step that is the upgrade of the document
    qsizetype bytes = 0;
};

/// The steps of a document, done and undone ones.
class HistorySteps
{
public:
    using Direction = StateChange::Direction;

    [[nodiscard]] int count() const { return int(m_steps.size()); }
    /// How many of them are done.
    [[nodiscard]] int index() const { return m_index; }
    [[nodiscard]] qsizetype heldBytes() const;
    /// That which leads from the present state in a direction; null for none.
    [[nodiscard]] const HistoryStep *next(Direction direction) const;
    /// Goes over it.
    void go(Direction direction) { m_index += direction == Direction::Back ? -1 : 1; }

    void clear();
    /// A step that was done; what was undone before it is forgotten.
    void append(HistoryStep step);
    /// Takes the last step that was done away; what was undone is forgotten.
    [[nodiscard]] HistoryStep takeLast();
    /// Forgets the step that lies longest back, which must be done and not the last; nothing if there is
    /// none.
    [[nodiscard]] std::optional<HistoryStep> takeFirst();
    /// How far a table, which has done \a done of its steps, goes back with these steps; nothing if none
    /// takes it along.
    [[nodiscard]] std::optional<int> firstOf(const TableHistory *table, int done) const;
    /// The upgrade can't be taken back any more, once it lies on the disk.
    void forgetUpgrade();

    /// The present state is \a actual in place of \a state: the steps around lead there from now on.
    void settle(const DocumentState &state, const DocumentState &actual);
    /// A save made \a written of \a state. A step that didn't touch what the save wrote otherwise leaves it
    /// so.
    void followSaved(const DocumentState &state, const DocumentState &written);
    /// See StateChange::followMetadata().
    void followMetadata(const QJsonObject &before, const QJsonObject &after);

private:
    void followSaved(const DocumentState &state, const DocumentState &written, Direction direction);

    QList<HistoryStep> m_steps;
    int m_index = 0;
};

} // namespace orv
