#include "DocumentHistory_p.h"
#include "StepText.h"

#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/table_model/TableHistory.h>

#include <utility>

// How edits become steps, and which of them are kept.

namespace orv {

/// Another document is shown.
void DocumentHistory::Private::begin()
{
    // Whoever hears of a step may load a document; the step ends there.
    ++generation;
    isTravelling = false;
    isSettling = false;
    isPending = false;
    shown.forget();
    state = shown.read();
    static_cast<void>(shown.takeMoves());
    saved = state;
    steps.clear();
    field = nullptr;
    nextField = nullptr;
    isFieldLeft = false;
    Q_EMIT q->changed();
}

/// Saving fills the tabs anew, with absolute paths.
void DocumentHistory::Private::takeSaved()
{
    isPending = false;
    shown.forget();
    const DocumentState written = shown.read();
    dropUpgrade();
    steps.forgetUpgrade();
    // The stamps of a save are part of no step.
    steps.followMetadata(state.metadata, written.metadata);
    state.metadata = written.metadata;
    steps.followSaved(state, written);
    state = written;
    static_cast<void>(shown.takeMoves());
    saved = state;
    field = nullptr;
    if (tellDropped())
        Q_EMIT q->changed();
}

/// An upgrade is a step like others, from a window that shows nothing of the document: what it would show of
/// one of an earlier version is less than the file has.
void DocumentHistory::Private::takeUpgraded(const DocumentUpgrade &upgrade)
{
    const DocumentState before;
    steps.clear();
    steps.append({StateChange::between(before, state),
                  tr("Upgrade from %1 to %2").arg(upgrade.from.toString(), upgrade.to.toString()),
                  {},
                  window->workflowFilePath()});
    saved = before;
    tellOtherState();
}

void DocumentHistory::Private::expectEdits()
{
    if (!isTravelling && !std::exchange(isPending, true))
        whenHandled([this] { takeIn(); });
}

/// Other columns follow an edit when its event has been handled; that is part of it.
void DocumentHistory::Private::whenHandled(const std::function<void()> &act)
{
    QMetaObject::invokeMethod(
        q, [this, act] { QMetaObject::invokeMethod(q, act, Qt::QueuedConnection); }, Qt::QueuedConnection);
}

void DocumentHistory::Private::takeIn()
{
    if (isTravelling || !std::exchange(isPending, false))
        return;
    const DocumentState now = shown.read();
    if (now == state) {
        static_cast<void>(shown.takeMoves());
        nextField = nullptr;
        if (std::exchange(isFieldLeft, false))
            field = nullptr;
        return;
    }
    if (isSettling)
        settle(now);
    else
        record(now);
    tellOtherState();
}

void DocumentHistory::Private::tellOtherState()
{
    const QPointer<DocumentHistory> self(q);
    if (tellDropped())
        Q_EMIT q->stateChanged();
    if (self)
        Q_EMIT q->changed();
}

void DocumentHistory::Private::record(const DocumentState &now)
{
    const QList<TableMove> moves = shown.takeMoves();
    const QPointer<QWidget> typed = std::exchange(nextField, nullptr);
    if (isStepOfTable(now, moves))
        return;
    const bool isSame = typed && typed == field && steps.index() > 0;
    const bool isGrouped = groupDepth > 0 && std::exchange(groupHasStep, true);
    field = std::exchange(isFieldLeft, false) ? nullptr : typed;
    if ((isSame || isGrouped) && steps.index() > 0) {
        state = steps.takeLast().change.applied(state, StateChange::Direction::Back);
        if (now == state) {
            field = nullptr;
            groupHasStep = false;
            return;
        }
    }
    push(now, isSame || isGrouped ? QList<TableMove>() : moves);
}

void DocumentHistory::Private::push(const DocumentState &now, const QList<TableMove> &moves)
{
    const StateChange change = StateChange::between(state, now);
    QString text = group;
    if (groupDepth == 0) {
        const bool isForth = moves.size() == 1 && moves.constFirst().after > moves.constFirst().before;
        const TableHistory *table = isForth ? moves.constFirst().history.data() : nullptr;
        text = StepText::of(state, change, now, table ? table->undoText() : QString());
    }
    append({change, text, moves});
    state = now;
}

/// A table takes steps back and forth by its menu, too.
bool DocumentHistory::Private::isStepOfTable(const DocumentState &now, const QList<TableMove> &moves)
{
    if (moves.size() != 1)
        return false;
    const TableMove &move = moves.constFirst();
    const auto direction =
        move.after < move.before ? StateChange::Direction::Back : StateChange::Direction::Forth;
    const HistoryStep *step = steps.next(direction);
    if (!step || step->tables.size() != 1 || step->tables.constFirst().history != move.history ||
        !(step->change.applied(state, direction) == now))
        return false;
    steps.go(direction);
    state = now;
    field = nullptr;
    return true;
}

/// The window shows something else than the step led to: the steps around lead there from now on.
void DocumentHistory::Private::settle(const DocumentState &actual)
{
    steps.settle(state, actual);
    state = actual;
}

/// What was typed there and isn't taken in yet still belongs to the step.
void DocumentHistory::Private::leaveField()
{
    if (isPending)
        isFieldLeft = true;
    else
        field = nullptr;
}

void DocumentHistory::Private::append(const HistoryStep &step)
{
    dropUpgrade();
    steps.append(step);
    trim();
}

qsizetype DocumentHistory::Private::heldBytes() const
{
    return steps.heldBytes() + shown.heldByTables();
}

/// Forgets what lies longest back, in the tables too, until the rest holds no more than the limit.
void DocumentHistory::Private::trim()
{
    // What no step of the document leads to goes first.
    if (heldBytes() > limit)
        shown.forgetStepsOfTables(
            [this](const TableHistory *table, int done) { return steps.firstOf(table, done); });
    qsizetype held = heldBytes();
    while (held > limit) {
        const std::optional<HistoryStep> first = steps.takeFirst();
        if (!first)
            return;
        held -= first->bytes;
        for (const TableMove &move : first->tables) {
            if (move.history)
                held -= move.history->forget(move.after - move.history->forgotten());
        }
    }
}

/// What is made where an upgrade was taken back takes its place.
void DocumentHistory::Private::dropUpgrade()
{
    isDropped = isDropped || q->isUpgradeTakenBack();
}

/// Whether the window is still there.
bool DocumentHistory::Private::tellDropped()
{
    const QPointer<DocumentHistory> self(q);
    if (std::exchange(isDropped, false))
        Q_EMIT q->upgradeDropped();
    return self;
}

} // namespace orv
