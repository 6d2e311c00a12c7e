#include "DocumentHistory_p.h"
#include "StateDisplay.h"
#include "StatusLine.h"
#include "settings/SettingView.h"

#include <KPropertySet.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/table_model/TableHistory.h>

#include <cstdlib>

// How the window is brought to the other end of a step.

namespace orv {

namespace {

/// What a window shows on the way is nothing to look at.
class HeldUpdates
{
public:
    explicit HeldUpdates(QWidget *window)
        : m_window(window)
    {
        window->setUpdatesEnabled(false);
    }
    ~HeldUpdates()
    {
        if (m_window)
            m_window->setUpdatesEnabled(true);
    }
    Q_DISABLE_COPY_MOVE(HeldUpdates)

private:
    const QPointer<QWidget> m_window;
};

} // namespace

bool DocumentHistory::Private::moveTables(const HistoryStep &step, StateChange::Direction direction) const
{
    const bool isBack = direction == StateChange::Direction::Back;
    const QPointer<DocumentHistory> self(q);
    for (const TableMove &move : step.tables) {
        const int from = isBack ? move.after : move.before;
        const int to = isBack ? move.before : move.after;
        // A table that went on otherwise, or was made anew, is given its content instead.
        const bool isThere = move.history && stepsDone(*move.history) == from &&
                             to >= move.history->forgotten() &&
                             to <= move.history->forgotten() + move.history->count();
        for (int i = 0; isThere && i < std::abs(to - from) && self && move.history; ++i)
            to < from ? move.history->undo() : move.history->redo();
    }
    return self;
}

/// Takes in what is being typed; whether the window is still there, and at rest.
bool DocumentHistory::Private::settleTyping()
{
    const QPointer<DocumentHistory> self(q);
    window->commitTyping();
    if (self)
        takeIn();
    return self && !isTravelling;
}

void DocumentHistory::Private::travel(StateChange::Direction direction)
{
    if (!settleTyping() || !steps.next(direction))
        return;
    const HistoryStep step = *steps.next(direction);
    const DocumentState to = step.change.applied(state, direction);
    const bool isShown = show(to, step.change, [&] {
        if (!moveTables(step, direction))
            return false;
        if (step.upgradedFile)
            window->setWorkflowFilePath(direction == StateChange::Direction::Back ? QString()
                                                                                  : *step.upgradedFile);
        return true;
    });
    if (!isShown)
        return;
    steps.go(direction);
    arrive(to);
}

bool DocumentHistory::Private::edit(const DocumentState &from, const DocumentState &to, const QString &text)
{
    if (!settleTyping() || !(state == from))
        return false;
    if (from == to)
        return true;
    const StateChange change = StateChange::between(from, to);
    if (!show(to, change, [] { return true; }))
        return true;
    append({change, text});
    arrive(to);
    return true;
}

/// False if the window or its document went meanwhile, in \a prepare already or later.
bool DocumentHistory::Private::show(const DocumentState &to, const StateChange &change,
                                    const std::function<bool()> &prepare)
{
    const QPointer<DocumentHistory> self(q);
    isTravelling = true;
    const int document = generation;
    const DocumentState from = state;
    const auto goesOn = [self, this, document] { return self && document == generation; };
    if (!prepare() || !goesOn())
        return false;
    StateDisplay display(window, goesOn);
    const Error error = display.show(from, to);
    if (!goesOn())
        return false;
    display.goTo(from, to);
    if (!goesOn())
        return false;
    if (error.hasError())
        StatusLine::tell(window, tr("Not all of the step can be shown: %1").arg(error.errorMessage()));
    shown.forget(change, to);
    return true;
}

/// Shows \a to where nobody is led to; what the window shows of it is the state then. Whether the window and
/// its document are still there, and all of it is shown.
bool DocumentHistory::Private::bring(const DocumentState &to)
{
    const QPointer<DocumentHistory> self(q);
    const int document = generation;
    const auto goesOn = [self, this, document] { return self && document == generation; };
    StateDisplay display(window, goesOn);
    Error error = display.show(state, to);
    if (!goesOn())
        return false;
    shown.forget(StateChange::between(state, to), to);
    state = shown.read();
    static_cast<void>(shown.takeMoves());
    return !error.ecatch().hasError();
}

/// The values of the file are set first, so that the properties know them as what they were.
bool DocumentHistory::Private::beginAt(const DocumentState &file, const QString &text)
{
    if (!settleTyping() || steps.count() > 0 || file.tabs.isEmpty())
        return false;
    const QPointer<DocumentHistory> self(q);
    const int document = generation;
    const DocumentState given = state;
    const int tab = window->workflowTabs()->widget()->currentIndex();
    const HeldUpdates held(window);
    isTravelling = true;
    const bool isFileShown = bring(file);
    if (!self || document != generation)
        return false;
    const DocumentState before = state;
    if (isFileShown) {
        for (const SettingView &column : SettingView::all(window)) {
            if (KPropertySet *set = column.view ? column.view->propertySet() : nullptr)
                set->clearModifiedFlags();
        }
    }
    static_cast<void>(bring(given));
    if (!self || document != generation)
        return false;
    window->workflowTabs()->widget()->setCurrentIndex(tab);
    const bool isStep = isFileShown && !(before == state);
    if (isStep)
        append({StateChange::between(before, state), text});
    arrive(state);
    return isStep;
}

void DocumentHistory::Private::arrive(const DocumentState &to)
{
    state = to;
    settle(shown.read());
    static_cast<void>(shown.takeMoves());
    field = nullptr;
    isTravelling = false;
    isSettling = true;
    whenHandled([this] {
        takeIn();
        isSettling = false;
    });
    tellOtherState();
}

} // namespace orv
