// What opens, commits and closes the editors of the view. Whoever hears of a change may delete the view.
#include "KProperty.h"
#include "KPropertyEditorView_p.h"

#include <QApplication>
#include <QKeyEvent>

using Internal::EditorDataModel;
using Internal::ItemDelegate;

void KPropertyEditorView::acceptInput()
{
    const QPointer<KPropertyEditorView> self(this);
    const QPointer<QWidget> editor = d->delegate->editor();
    if (!editor || d->closing) {
        return;
    }
    d->closing = true;
    commitData(editor);
    if (self) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    if (self) {
        d->closing = false;
    }
}

void KPropertyEditorView::commitData(QWidget *editor)
{
    const QModelIndex cell = d->delegate->editedIndex();
    if (!editor || editor != d->delegate->editor() || !d->property(cell) || d->committing) {
        return;
    }
    // As the base class does it, but that goes on in a view that somebody who heard of the change has
    // deleted.
    const QPointer<KPropertyEditorView> self(this);
    const QPointer<QWidget> committed = editor;
    d->committing = true;
    editor->removeEventFilter(d->delegate);
    d->delegate->setModelData(editor, d->model, cell);
    if (!self) {
        return;
    }
    d->committing = false;
    if (committed) {
        editor->installEventFilter(d->delegate);
    }
    // The revert button comes and goes with the value.
    updateEditorGeometries();
}

void KPropertyEditorView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Losing the focus closes once more what Enter has closed already.
    if (!editor || editor != d->delegate->editor()) {
        return;
    }
    // Rows that were rebuilt meanwhile took the editor with them.
    const QPersistentModelIndex row = d->delegate->editedIndex();
    const QPointer<QWidget> closed = editor;
    d->delegate->releaseEditor(hint == QAbstractItemDelegate::RevertModelCache
                                   ? ItemDelegate::LateInput::Refused
                                   : ItemDelegate::LateInput::Accepted);
    if (!row.isValid()) {
        return;
    }
    const QPointer<KPropertyEditorView> self(this);
    letEditorSpeak(editor);
    if (!self) {
        return;
    }
    if (closed && row.isValid()) {
        QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    endRemark(closed);
    if (hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem) {
        editNext(hint);
    }
}

/// Some editors tell what was typed only when they lose the focus. The base class would take it from them
/// while it closes them, and can't stand it that somebody who hears of a change deletes the view.
void KPropertyEditorView::letEditorSpeak(QWidget *editor)
{
    const QPointer<KPropertyEditorView> self(this);
    const QPointer<QWidget> speaking = editor;
    QWidget *const focus = QApplication::focusWidget();
    editor->removeEventFilter(d->delegate);
    if (focus && (focus == editor || editor->isAncestorOf(focus))) {
        // Not at once to the view, which must outlive the function that gives it the focus.
        focus->clearFocus();
        if (self) {
            setFocus();
        }
    }
    if (self && speaking) {
        QCoreApplication::sendPostedEvents(editor, 0);
    }
}

void KPropertyEditorView::editNext(QAbstractItemDelegate::EndEditHint hint)
{
    const bool forward = hint == QAbstractItemDelegate::EditNextItem;
    QModelIndex index = currentIndex();
    do {
        index = forward ? indexBelow(index) : indexAbove(index);
    } while (index.isValid() && !d->editableCell(index).isValid());
    if (index.isValid()) {
        setCurrentIndex(index.siblingAtColumn(EditorDataModel::NameColumn));
        edit(d->editableCell(index), QAbstractItemView::AllEditTriggers, nullptr);
    }
}

bool KPropertyEditorView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    // Committing tells others, who may rebuild the rows.
    const QPersistentModelIndex cell = d->editableCell(index);
    if (trigger == QAbstractItemView::NoEditTriggers || !cell.isValid()) {
        return QTreeView::edit(index, trigger, event);
    }
    const QPointer<KPropertyEditorView> self(this);
    if (d->delegate->editor() && d->delegate->editedIndex() != cell) {
        acceptInput();
    }
    return self && cell.isValid() && QTreeView::edit(cell, trigger, event);
}

void KPropertyEditorView::undo()
{
    KProperty *const property = d->property(currentIndex());
    if (!property || !property->isModified() || d->model->isReadOnly(*property)) {
        return;
    }
    const QPointer<KPropertyEditorView> self(this);
    if (QWidget *const editor = d->delegate->editor()) {
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    }
    if (!self) {
        return;
    }
    // A child of a composed property has no set of its own: its parent tells of the change.
    if (property->parent() && property->parent()->composedProperty()) {
        property->setValue(property->oldValue());
        // Who hears of the change may have cleared the set.
        if (self && d->model->indexForProperty(property, EditorDataModel::NameColumn).isValid()) {
            property->clearModifiedFlag();
        }
    } else {
        property->resetValue();
    }
    if (self) {
        d->model->refresh(property);
        viewport()->update();
    }
}

void KPropertyEditorView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Undo)) {
        undo();
        event->accept();
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && state() != QAbstractItemView::EditingState && d->editableCell(currentIndex()).isValid()) {
        edit(currentIndex(), QAbstractItemView::EditKeyPressed, event);
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}
