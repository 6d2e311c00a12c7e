// What the delegate hears from editors, and what the events of theirs do.
#include "EditorDataModel.h"
#include "ItemDelegate.h"
#include "KProperty.h"
#include "KPropertyEditorItemEvent.h"
#include "KPropertyEditorView.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QValidator>

#include <optional>
#include <utility>

namespace Internal {

namespace {

/// Enter and Tab belong to a text of several lines, but for Ctrl+Enter.
bool belongsToTextEdit(const QObject *object, const QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !qobject_cast<const QPlainTextEdit *>(object)) {
        return false;
    }
    const auto *const key = static_cast<const QKeyEvent *>(event);
    return (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
           !key->modifiers().testFlag(Qt::ControlModifier);
}

/// How an editor closes at \a key.
std::optional<QAbstractItemDelegate::EndEditHint> endHint(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QAbstractItemDelegate::NoHint;
    case Qt::Key_Tab:
        return QAbstractItemDelegate::EditNextItem;
    case Qt::Key_Backtab:
        return QAbstractItemDelegate::EditPreviousItem;
    default:
        return std::nullopt;
    }
}

/// False for a line whose validator refuses its text and can't mend it.
bool hasAcceptableInput(QWidget *editor)
{
    auto *const line = qobject_cast<QLineEdit *>(editor);
    if (!line || line->hasAcceptableInput() || !line->validator()) {
        return true;
    }
    QString mended = line->text();
    int position = line->cursorPosition();
    line->validator()->fixup(mended);
    return line->validator()->validate(mended, position) == QValidator::Acceptable;
}
} // namespace

QWidget *ItemDelegate::editorAround(QObject *object) const
{
    auto *const widget = qobject_cast<QWidget *>(object);
    return widget && m_editor && (widget == m_editor || m_editor->isAncestorOf(widget)) ? m_editor.data()
                                                                                        : nullptr;
}

/// Who scrolls past an editor doesn't mean to change its value. True for what the view is to have.
bool ItemDelegate::filterMouse(QObject *object, QEvent *event) const
{
    Edited *const open = edited(editorAround(object));
    if (!open || scrolls(static_cast<QWidget *>(object))) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        open->wasClicked = true;
    }
    if (event->type() != QEvent::Wheel || open->wasClicked) {
        return false;
    }
    event->ignore();
    return true;
}

bool ItemDelegate::filterKey(QWidget *editor, int key)
{
    if (key == Qt::Key_Escape) {
        restoreValue();
        if (!m_view) {
            return true;
        }
    }
    if (const std::optional<EndEditHint> hint = endHint(key); hint && !hasAcceptableInput(editor)) {
        // Qt would keep the line open, and with it those who use no mouse.
        Q_EMIT closeEditor(editor, *hint);
        return true;
    }
    // What the "..." button does, for those who don't use a mouse.
    const KProperty *const property = m_model->property(editedIndex());
    if (key == Qt::Key_F4 && property && property->option("selectButton").toBool()) {
        sendEditEvent(editor);
        return true;
    }
    return false;
}

/// A press into the view takes the focus before the view sees it, in a function of the application that can't
/// stand it that somebody who hears of a change deletes the view. So the view commits when the press arrives;
/// what was pressed beside its rows gives no press.
bool ItemDelegate::leavesToPress(QObject *object, const QEvent *event)
{
    if (event->type() != QEvent::FocusOut || !editorAround(object) ||
        static_cast<const QFocusEvent *>(event)->reason() != Qt::MouseFocusReason ||
        QApplication::focusWidget() != m_view) {
        return false;
    }
    m_leftToPress = m_editor;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const bool isOpen = m_leftToPress && m_leftToPress == m_editor;
            m_leftToPress = nullptr;
            if (isOpen && m_view) {
                m_view->acceptInput();
            }
        },
        Qt::QueuedConnection);
    return true;
}

bool ItemDelegate::eventFilter(QObject *object, QEvent *event)
{
    const Running running(this);
    if (filterMouse(object, event)) {
        return true;
    }
    // A dialog that the editor opens takes the focus. Closed, the editor would take along what it is parent
    // of.
    if (m_isAsking && event->type() == QEvent::FocusOut) {
        return false;
    }
    if (leavesToPress(object, event)) {
        return false;
    }
    QObject *target = object;
    if (m_editor && object == m_editor->focusProxy()) {
        target = m_editor;
    }
    // Other parts of an editor are watched for the mouse alone.
    if (target != m_editor && editorAround(target)) {
        return false;
    }
    if (belongsToTextEdit(object, event)) {
        return false;
    }
    if (target == m_editor && event->type() == QEvent::KeyPress &&
        filterKey(m_editor, static_cast<QKeyEvent *>(event)->key())) {
        return true;
    }
    return QStyledItemDelegate::eventFilter(target, event);
}

void ItemDelegate::editorChanged(QWidget *editor)
{
    const Running running(this);
    Edited *const edits = edited(editor);
    if (!edits || editor == m_leftToPress) {
        return;
    }
    if (editor != m_editor) {
        takeLateInput(editor, edits);
        return;
    }
    const KProperty *const property = m_model->property(edits->index);
    if (property && followsTyping(*property)) {
        Q_EMIT commitData(editor);
    }
}

void ItemDelegate::takeLateInput(QWidget *editor, Edited *edited)
{
    const QVariant value = editor->property(userPropertyName(editor).constData());
    KProperty *const property = edited->address.findEditable();
    if (property && edited->takesLateInput && value != edited->exchanged) {
        edited->exchanged = value;
        property->setValue(value);
    }
}

void ItemDelegate::sendEditEvent(QWidget *asking)
{
    const Running running(this);
    const QPointer<QWidget> editor = asking;
    const Edited *const edits = edited(asking);
    KProperty *const property = edits ? m_model->property(edits->index) : nullptr;
    if (!property) {
        return;
    }
    const PropertyAddress address = edits->address;
    const QVariant value = editor->property(userPropertyName(editor).constData());
    KPropertyEditorItemEvent event(*property, QStringLiteral("edit"), {{QStringLiteral("value"), value}});
    const QPointer<ItemDelegate> self(this);
    const bool wasAsking = std::exchange(m_isAsking, true);
    Q_EMIT m_view->handlePropertyEditorItemEvent(&event);
    if (!self || !m_view) {
        return;
    }
    m_isAsking = wasAsking;
    // A dialog ran meanwhile: the row, and even the property, may have been made anew.
    KProperty *const asked = event.hasResult() ? address.findEditable() : nullptr;
    if (!asked || !m_model->indexForProperty(asked, EditorDataModel::ValueColumn).isValid()) {
        return;
    }
    asked->setValue(event.result());
    Edited *const open = editor ? edited(editor) : nullptr;
    if (open && open->index.isValid() && m_model->property(open->index) == address.find()) {
        setEditorData(editor, open->index);
        // The dialog's own Ok stands: Escape takes back what is typed after it.
        rememberState(open, *m_model->property(open->index));
    }
}
} // namespace Internal
