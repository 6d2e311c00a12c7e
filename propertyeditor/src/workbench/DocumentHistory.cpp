#include "orv/propertyeditor/workbench/DocumentHistory.h"

#include "HistorySteps.h"
#include "StateDisplay.h"
#include "StepText.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/table_model/TableHistory.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStatusBar>
#include <QTextEdit>

#include <functional>
#include <optional>

namespace orv {

namespace {

/// The field in which somebody types, outside of the cells of views; null where nobody does.
QWidget *fieldOfTyping(const QWidget *window)
{
    QWidget *field = QApplication::focusWidget();
    const bool takesText = qobject_cast<QLineEdit *>(field) || qobject_cast<QAbstractSpinBox *>(field) ||
                           qobject_cast<QTextEdit *>(field) || qobject_cast<QPlainTextEdit *>(field);
    if (!takesText || field->window() != window)
        return nullptr;
    for (const QWidget *outer = field; outer; outer = outer->parentWidget()) {
        if (qobject_cast<const QAbstractItemView *>(outer))
            return nullptr;
    }
    return field;
}

/// The editor that is open in a cell of a view and has the focus; null without one.
QWidget *openEditor()
{
    for (QWidget *editor = QApplication::focusWidget(); editor; editor = editor->parentWidget()) {
        const QWidget *viewport = editor->parentWidget();
        const auto *view = viewport ? qobject_cast<QAbstractItemView *>(viewport->parentWidget()) : nullptr;
        if (view && view->viewport() == viewport)
            return editor;
    }
    return nullptr;
}

} // namespace

class DocumentHistory::Private
{
public:
    Private(DocumentHistory *history, PropertyEditorWindow *documentWindow)
        : window(documentWindow)
        , shown(documentWindow)
        , q(history)
    {}

    void begin();
    void takeSaved();
    void expectEdits();
    void whenHandled(const std::function<void()> &act);
    void takeIn();
    void tellOtherState();
    void record(const DocumentState &now);
    void push(const DocumentState &now, const QList<TableMove> &moves);
    [[nodiscard]] bool isStepOfTable(const DocumentState &now, const QList<TableMove> &moves);
    void settle(const DocumentState &actual);
    [[nodiscard]] bool settleTyping();
    void travel(StateChange::Direction direction);
    [[nodiscard]] bool edit(const DocumentState &from, const DocumentState &to, const QString &text);
    [[nodiscard]] bool show(const DocumentState &to, const StateChange &change,
                            const std::function<bool()> &prepare);
    void arrive(const DocumentState &to);
    [[nodiscard]] bool moveTables(const HistoryStep &step, StateChange::Direction direction) const;
    void takeUpgraded(const DocumentUpgrade &upgrade);
    void append(const HistoryStep &step);
    [[nodiscard]] qsizetype heldBytes() const;
    void trim();
    void dropUpgrade();
    [[nodiscard]] bool tellDropped();
    void leaveField();

    PropertyEditorWindow *window;
    ShownState shown;
    DocumentState state;
    std::optional<DocumentState> saved; ///< that lies on the disk
    HistorySteps steps;
    qsizetype limit = kDefaultLimit;
    bool isPending = false;
    bool isTravelling = false;
    int generation = 0;          ///< of documents
    bool isDropped = false;      ///< the upgrade, and nobody was told of that
    bool isSettling = false;     ///< what is told is the echo of a step
    QPointer<QWidget> field;     ///< in which the last step was made, as long as it may go on
    QPointer<QWidget> nextField; ///< the same for what is told and not yet taken in
    bool isFieldLeft = false;
    QString group; ///< what the steps of a group are called
    int groupDepth = 0;
    bool groupHasStep = false;
    DocumentHistory *q;
};

DocumentHistory::DocumentHistory(PropertyEditorWindow *window)
    : QObject(window)
    , d(std::make_unique<Private>(this, window))
{
    connect(window, &PropertyEditorWindow::documentShown, this, [this] { d->begin(); });
    connect(window, &PropertyEditorWindow::documentUpgraded, this,
            [this](const DocumentUpgrade &upgrade, bool isSaved) {
                if (!isSaved)
                    d->takeUpgraded(upgrade);
            });
    connect(window, &PropertyEditorWindow::aboutToReload, this, &DocumentHistory::takeIn);
    connect(window, &PropertyEditorWindow::documentSaved, this, [this] { d->takeSaved(); });
    connect(window, &PropertyEditorWindow::metadataEdited, this, [this] { d->expectEdits(); });
    connect(window->workflowTabs(), &WorkflowTabs::edited, this, [this] {
        EditableTabBar *bar = d->window->workflowTabs()->widget()->editableTabBar();
        if (!d->nextField)
            d->nextField = bar->isHeld() ? bar : fieldOfTyping(d->window);
        d->expectEdits();
    });
    // A tab that is dragged over others goes there in one step.
    connect(window->workflowTabs()->widget()->editableTabBar(), &EditableTabBar::released, this,
            [this] { d->leaveField(); });
    connect(&d->shown, &ShownState::settingEdited, this, [this] {
        if (d->isTravelling)
            return;
        d->nextField = openEditor();
        d->expectEdits();
    });
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, const QWidget *now) {
        if (d->field && now != d->field && !d->field->isAncestorOf(now))
            d->leaveField();
    });
    d->begin();
}

DocumentHistory::~DocumentHistory() = default;

DocumentState DocumentHistory::state()
{
    const QPointer<DocumentHistory> self(this);
    takeIn();
    return self ? d->state : DocumentState();
}

bool DocumentHistory::isModified()
{
    const QPointer<DocumentHistory> self(this);
    takeIn();
    return self && (!d->saved || !(d->state == *d->saved));
}

void DocumentHistory::countAsUnsaved()
{
    d->saved.reset();
    Q_EMIT changed();
}

int DocumentHistory::count() const
{
    return d->steps.count();
}

int DocumentHistory::index() const
{
    return d->steps.index();
}

bool DocumentHistory::isUpgradeTakenBack() const
{
    const HistoryStep *step = d->steps.next(StateChange::Direction::Forth);
    return step && step->upgradedFile;
}

QString DocumentHistory::undoText() const
{
    const HistoryStep *step = d->steps.next(StateChange::Direction::Back);
    return step ? step->text : QString();
}

QString DocumentHistory::redoText() const
{
    const HistoryStep *step = d->steps.next(StateChange::Direction::Forth);
    return step ? step->text : QString();
}

qsizetype DocumentHistory::heldBytes() const
{
    return d->heldBytes();
}

qsizetype DocumentHistory::limit() const
{
    return d->limit;
}

void DocumentHistory::setLimit(qsizetype bytes)
{
    d->limit = bytes;
    d->trim();
    Q_EMIT changed();
}

void DocumentHistory::undo()
{
    d->travel(StateChange::Direction::Back);
}

bool DocumentHistory::edit(const DocumentState &from, const DocumentState &to, const QString &text)
{
    return d->edit(from, to, text);
}

void DocumentHistory::redo()
{
    d->travel(StateChange::Direction::Forth);
}

void DocumentHistory::takeIn()
{
    d->takeIn();
}

DocumentHistory::Group::Group(DocumentHistory *history, const QString &text)
    : m_history(history)
{
    history->takeIn();
    if (history->d->groupDepth++ > 0)
        return;
    history->d->group = text;
    history->d->groupHasStep = false;
}

DocumentHistory::Group::~Group()
{
    if (m_history)
        m_history->takeIn();
    if (m_history)
        --m_history->d->groupDepth;
}

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
    settle(written);
    static_cast<void>(shown.takeMoves());
    saved = state;
    field = nullptr;
    if (tellDropped())
        Q_EMIT q->changed();
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
        window->statusBar()->showMessage(
            tr("Not all of the step can be shown: %1").arg(error.errorMessage()));
    shown.forget(change, to);
    return true;
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

} // namespace orv
