#include "orv/propertyeditor/workbench/DocumentHistory.h"

#include "DocumentHistory_p.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

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

bool DocumentHistory::beginAt(const DocumentState &file, const QString &text)
{
    return d->beginAt(file, text);
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

} // namespace orv
