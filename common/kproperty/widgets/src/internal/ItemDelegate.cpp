#include "ItemDelegate.h"

#include "EditorDataModel.h"
#include "KProperty.h"
#include "KPropertyEditorItemEvent.h"
#include "KPropertyEditorView.h"
#include "KPropertyMultiLineStringEditor.h"
#include "KPropertyStringEditor.h"
#include "KPropertyWidgetsPluginManager.h"
#include "Painting.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QValidator>

#include <algorithm>
#include <optional>
#include <utility>

namespace Internal {

namespace {

QByteArray userPropertyName(const QWidget *editor)
{
    return QByteArray(editor->metaObject()->userProperty().name());
}

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

bool scrolls(const QWidget *part)
{
    return qobject_cast<const QAbstractScrollArea *>(part) ||
           qobject_cast<const QAbstractScrollArea *>(part->parentWidget());
}

/// Pictures have no equality, so that each would be a change when an editor is left.
bool isSamePixmap(const QVariant &first, const QVariant &second)
{
    return first.typeId() == QMetaType::QPixmap && second.typeId() == QMetaType::QPixmap &&
           first.value<QPixmap>().cacheKey() == second.value<QPixmap>().cacheKey();
}

template<typename Editor>
bool applyStringOptions(QWidget *widget, const KProperty &property, const QObject *context,
                        const std::function<void()> &selected)
{
    auto *const editor = qobject_cast<Editor *>(widget);
    if (!editor) {
        return false;
    }
    if (property.option("readOnlyInternalEditor").toBool()) {
        editor->setReadOnly(true);
    }
    editor->setSelectionButtonVisible(property.option("selectButton").toBool());
    QObject::connect(editor, &Editor::selectButtonClicked, context, selected);
    return true;
}

} // namespace

/// While a function that may tell others runs.
class ItemDelegate::Running
{
public:
    explicit Running(const ItemDelegate *delegate)
        : m_delegate(delegate)
    {
        ++delegate->m_running;
    }
    ~Running()
    {
        if (m_delegate) {
            --m_delegate->m_running;
        }
    }
    Q_DISABLE_COPY_MOVE(Running)

private:
    QPointer<const ItemDelegate> m_delegate;
};

ItemDelegate::ItemDelegate(KPropertyEditorView *view, const EditorDataModel *model)
    : QStyledItemDelegate(view)
    , m_view(view)
    , m_model(model)
{}

ItemDelegate::~ItemDelegate() = default;

QWidget *ItemDelegate::editor() const
{
    return m_editor;
}

QModelIndex ItemDelegate::editedIndex() const
{
    const Edited *const open = edited(m_editor);
    return open ? QModelIndex(open->index) : QModelIndex();
}

ItemDelegate::Edited *ItemDelegate::edited(const QObject *editor) const
{
    const auto found = editor ? m_edited.find(editor) : m_edited.end();
    return found == m_edited.end() ? nullptr : &*found;
}

void ItemDelegate::rememberState(Edited *edited, const KProperty &property) const
{
    edited->valueBefore = property.value();
    edited->modifiedBefore = property.isModified();
}

void ItemDelegate::releaseEditor(LateInput late)
{
    if (Edited *const open = edited(m_editor)) {
        open->takesLateInput = late == LateInput::Accepted;
    }
    m_editor = nullptr;
}

KProperty *ItemDelegate::propertyFor(const QWidget *editor) const
{
    const Edited *const edits = edited(editor);
    return edits && edits->takesLateInput ? edits->address.findEditable() : nullptr;
}

bool ItemDelegate::endsRemark(const QWidget *editor) const
{
    const Edited *const edits = edited(editor);
    return edits && edits->endsRemark;
}

void ItemDelegate::keepRemark(const KProperty &property)
{
    for (Edited &edits : m_edited) {
        if (edits.address.find() == &property) {
            edits.endsRemark = false;
        }
    }
}

void ItemDelegate::restoreValue()
{
    const Edited *const open = edited(m_editor);
    KProperty *const property = m_model->property(editedIndex());
    if (!open || !property) {
        return;
    }
    const QVariant before = open->valueBefore;
    if (open->modifiedBefore || property->oldValue() != before) {
        property->setValue(before);
    } else {
        property->resetValue();
    }
}

void ItemDelegate::outliveView()
{
    m_view = nullptr;
    m_editor = nullptr;
    const QHash<const QObject *, Edited> editors = std::exchange(m_edited, {});
    if (m_running == 0) {
        return;
    }
    for (auto each = editors.cbegin(); each != editors.cend(); ++each) {
        auto *const editor = const_cast<QWidget *>(static_cast<const QWidget *>(each.key()));
        editor->setParent(nullptr);
        editor->deleteLater();
    }
    setParent(nullptr);
    deleteLater();
}

void ItemDelegate::paintName(QPainter *painter, const QStyleOptionViewItem &option, const KProperty &property,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem nameOption(option);
    initStyleOption(&nameOption, index);
    nameOption.font.setBold(property.isModified());
    nameOption.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    nameOption.features &= ~QStyleOptionViewItem::WrapText;
    m_view->style()->drawControl(QStyle::CE_ItemViewItem, &nameOption, painter, m_view);
}

void ItemDelegate::paintValue(QPainter *painter, const QStyleOptionViewItem &option,
                              const KProperty &property, const QModelIndex &index) const
{
    QStyleOptionViewItem valueOption(option);
    m_view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &valueOption, painter, m_view);
    if (m_editor && editedIndex() == index) {
        return; // the editor covers the cell, at times with gaps through which the text would show
    }
    if (m_model->isReadOnly(property)) {
        valueOption.state &= ~QStyle::State_Enabled;
        // Greyed, yet legible: one reads these values as often as the others.
        const QColor grey = valueOption.palette.color(QPalette::Active, QPalette::PlaceholderText);
        valueOption.palette.setColor(QPalette::Disabled, QPalette::Text, grey);
    }
    valueOption.rect = Painting::besideRevertButton(option, property);
    if (!m_model->remark(&property).isEmpty()) {
        paintRemarkSign(painter, &valueOption);
    }
    painter->save();
    painter->setClipRect(valueOption.rect, Qt::IntersectClip);
    if (!KPropertyWidgetsPluginManager::self()->paint(property.type(), painter, valueOption, index)) {
        Painting::drawText(painter, valueOption, index.data(Qt::DisplayRole).toString());
    }
    painter->restore();
}

void ItemDelegate::paintRemarkSign(QPainter *painter, QStyleOptionViewItem *option) const
{
    const int size = option->fontMetrics.height();
    QRect sign(option->rect.left() + Painting::textMargin(), option->rect.top() + Painting::verticalPadding(),
               size, size);
    Painting::placeInFront(&sign, option);
    m_view->style()->standardIcon(QStyle::SP_MessageBoxWarning, option, m_view).paint(painter, sign);
}

void ItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const KProperty *const property = m_model->property(index);
    if (!property) {
        return; // group rows are drawn by the view, across both columns
    }
    if (index.column() == EditorDataModel::NameColumn) {
        paintName(painter, option, *property, index);
    } else {
        paintValue(painter, option, *property, index);
    }
}

QSize ItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const KProperty *const property = m_model->property(index);
    const int lineHeight = option.fontMetrics.lineSpacing();
    int lines = 1;
    if (property && index.column() == EditorDataModel::NameColumn) {
        lines += static_cast<int>(property->captionForDisplaying().trimmed().count(QLatin1Char('\n')));
    } else if (property && property->option("multiLine").toBool()) {
        lines = Painting::linesForText(*property, index.data(Qt::DisplayRole).toString());
    }
    const int padding = Painting::verticalPadding() * 2;
    return QSize(option.fontMetrics.averageCharWidth() * 12, lineHeight * lines + padding);
}

bool ItemDelegate::followsTyping(const KProperty &property) const
{
    switch (property.valueSyncPolicy()) {
    case KProperty::ValueSyncPolicy::Auto:
        return true;
    case KProperty::ValueSyncPolicy::FocusOut:
        return false;
    case KProperty::ValueSyncPolicy::Editor:
        break;
    }
    return m_view->isValueSyncEnabled();
}

QWidget *ItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    const KProperty *const property = m_model->property(index);
    if (!property || m_model->isReadOnly(*property)) {
        return nullptr;
    }
    QWidget *const editor =
        KPropertyWidgetsPluginManager::self()->createEditor(property->type(), parent, option, index);
    if (!editor) {
        return nullptr;
    }
    m_editor = editor;
    Edited open;
    open.index = index;
    open.address = PropertyAddress(m_model->propertySet(), *property);
    rememberState(&open, *property);
    open.endsRemark = !m_model->remark(property).isEmpty();
    m_edited.insert(editor, open);
    auto *const self = const_cast<ItemDelegate *>(this);
    connect(editor, &QObject::destroyed, self, [self](const QObject *gone) { self->m_edited.remove(gone); });
    prepareEditor(editor, *property);
    return editor;
}

void ItemDelegate::prepareEditor(QWidget *editor, const KProperty &property) const
{
    editor->setAutoFillBackground(true);
    const QString description = m_model->data(editedIndex(), Qt::AccessibleDescriptionRole).toString();
    editor->setToolTip(m_model->remark(&property).toHtmlEscaped());
    editor->setAccessibleName(property.captionOrName());
    editor->setAccessibleDescription(description);
    auto *const self = const_cast<ItemDelegate *>(this);
    // By name: the editor may be of any class that has the signal.
    if (editor->metaObject()->indexOfSignal("commitData(QWidget*)") >= 0) {
        connect(editor, SIGNAL(commitData(QWidget *)), self, SLOT(editorChanged(QWidget *)));
    }
    const auto selected = [self, editor] { self->sendEditEvent(editor); };
    if (!applyStringOptions<KPropertyStringEditor>(editor, property, this, selected)) {
        applyStringOptions<KPropertyMultiLineStringEditor>(editor, property, this, selected);
    }
    if (QWidget *const focusWidget = editor->focusProxy()) {
        focusWidget->setAccessibleName(property.captionOrName());
        focusWidget->setAccessibleDescription(description);
        focusWidget->installEventFilter(self);
    }
    watchMouse(editor);
}

void ItemDelegate::watchMouse(QWidget *editor) const
{
    auto *const self = const_cast<ItemDelegate *>(this);
    const QList<QWidget *> parts = editor->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        // Lists that drop down are windows of their own. What scrolls, scrolls.
        if (part->window() == editor->window() && !scrolls(part)) {
            part->installEventFilter(self);
        }
    }
}

void ItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QByteArray name = userPropertyName(editor);
    const KProperty *const property = m_model->property(index);
    if (name.isEmpty() || !property) {
        return;
    }
    // The value often comes from this editor; writing it back would move the cursor under the user's hands.
    const QVariant shown = editor->property(name.constData());
    if (!editor->property("kpropertyFilled").toBool() || !property->valueEqualsTo(shown)) {
        const QSignalBlocker blocker(editor);
        editor->setProperty(name.constData(), property->value());
        editor->setProperty("kpropertyFilled", true);
    }
    if (Edited *const open = edited(editor)) {
        open->exchanged = editor->property(name.constData());
    }
}

void ItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QByteArray name = userPropertyName(editor);
    if (name.isEmpty()) {
        return;
    }
    const QVariant value = editor->property(name.constData());
    Edited *const open = edited(editor);
    // What an editor cannot show in full must survive that it is opened and left.
    if (!open || value == open->exchanged || isSamePixmap(value, index.data(Qt::EditRole))) {
        return;
    }
    open->exchanged = value;
    const Running running(this);
    model->setData(index, value, Qt::EditRole);
}

void ItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const KProperty *const property = m_model->property(index);
    if (!property) {
        return;
    }
    QRect rect = Painting::besideRevertButton(option, *property);
    if (property->option("multiLine").toBool()) {
        rect.setHeight(std::min(rect.height(), Painting::editorHeight(option, *property)));
    }
    editor->setGeometry(rect);
}

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
    QMetaObject::invokeMethod(
        this,
        [this, left = m_editor] {
            if (left && left == m_editor && m_view) {
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
    if (!edits) {
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
