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
#include <QMetaProperty>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>

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

void ItemDelegate::releaseEditor()
{
    m_editor = nullptr;
    m_index = QPersistentModelIndex();
}

void ItemDelegate::restoreValue()
{
    KProperty *const property = m_model->property(m_index);
    if (!property) {
        return;
    }
    if (m_modifiedBefore || property->oldValue() != m_valueBefore) {
        property->setValue(m_valueBefore);
    } else {
        property->resetValue();
    }
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
    if (m_editor && m_index == index) {
        return; // the editor covers the cell, at times with gaps through which the text would show
    }
    if (m_model->isReadOnly(property)) {
        valueOption.state &= ~QStyle::State_Enabled;
        // Greyed, yet legible: one reads these values as often as the others.
        const QColor grey = valueOption.palette.color(QPalette::Active, QPalette::PlaceholderText);
        valueOption.palette.setColor(QPalette::Disabled, QPalette::Text, grey);
    }
    valueOption.rect.adjust(0, 0, property.isModified() ? -Painting::revertButtonWidth(option) : 0, 0);
    painter->save();
    painter->setClipRect(valueOption.rect, Qt::IntersectClip);
    if (!KPropertyWidgetsPluginManager::self()->paint(property.type(), painter, valueOption, index)) {
        Painting::drawText(painter, valueOption, index.data(Qt::DisplayRole).toString());
    }
    painter->restore();
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
    m_index = index;
    m_valueBefore = property->value();
    m_modifiedBefore = property->isModified();
    m_exchanged = QVariant();
    prepareEditor(editor, *property);
    return editor;
}

void ItemDelegate::prepareEditor(QWidget *editor, const KProperty &property) const
{
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(property.captionOrName());
    editor->setAccessibleDescription(property.description());
    auto *const self = const_cast<ItemDelegate *>(this);
    // By name: the editor may be of any class that has the signal.
    if (editor->metaObject()->indexOfSignal("commitData(QWidget*)") >= 0) {
        connect(editor, SIGNAL(commitData(QWidget *)), self, SLOT(editorChanged(QWidget *)));
    }
    const auto selected = [self] { self->sendEditEvent(); };
    if (!applyStringOptions<KPropertyStringEditor>(editor, property, this, selected)) {
        applyStringOptions<KPropertyMultiLineStringEditor>(editor, property, this, selected);
    }
    if (QWidget *const focusWidget = editor->focusProxy()) {
        focusWidget->setAccessibleName(property.captionOrName());
        focusWidget->setAccessibleDescription(property.description());
        focusWidget->installEventFilter(self);
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
    if (editor->property("kpropertyFilled").toBool() && property->valueEqualsTo(shown)) {
        m_exchanged = shown;
        return;
    }
    const QSignalBlocker blocker(editor);
    editor->setProperty(name.constData(), property->value());
    editor->setProperty("kpropertyFilled", true);
    m_exchanged = editor->property(name.constData());
}

void ItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QByteArray name = userPropertyName(editor);
    if (name.isEmpty()) {
        return;
    }
    const QVariant value = editor->property(name.constData());
    // What an editor cannot show in full must survive that it is opened and left.
    if (value == m_exchanged || isSamePixmap(value, index.data(Qt::EditRole))) {
        return;
    }
    m_exchanged = value;
    model->setData(index, value, Qt::EditRole);
}

void ItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    QRect rect = option.rect;
    const KProperty *const property = m_model->property(index);
    if (property && property->isModified()) {
        rect.adjust(0, 0, -Painting::revertButtonWidth(option), 0);
    }
    editor->setGeometry(rect);
}

bool ItemDelegate::eventFilter(QObject *object, QEvent *event)
{
    if (belongsToTextEdit(object, event)) {
        return false;
    }
    QObject *target = object;
    if (m_editor && object == m_editor->focusProxy()) {
        target = m_editor;
    }
    if (target == m_editor && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape) {
            restoreValue();
        }
        // What the "..." button does, for those who don't use a mouse.
        const KProperty *const property = m_model->property(m_index);
        if (key == Qt::Key_F4 && property && property->option("selectButton").toBool()) {
            sendEditEvent();
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(target, event);
}

void ItemDelegate::editorChanged(QWidget *editor)
{
    const KProperty *const property = m_model->property(m_index);
    if (property && followsTyping(*property)) {
        Q_EMIT commitData(editor);
    }
}

void ItemDelegate::sendEditEvent()
{
    const QPersistentModelIndex index = m_index;
    const QPointer<QWidget> editor = m_editor;
    KProperty *const property = m_model->property(index);
    if (!property || !editor) {
        return;
    }
    const QVariant value = editor->property(userPropertyName(editor).constData());
    KPropertyEditorItemEvent event(*property, QStringLiteral("edit"), {{QStringLiteral("value"), value}});
    Q_EMIT m_view->handlePropertyEditorItemEvent(&event);
    // A dialog ran meanwhile: the row may be gone.
    KProperty *const edited = m_model->property(index);
    if (event.hasResult() && edited) {
        edited->setValue(event.result());
        if (editor) {
            setEditorData(editor, index);
        }
    }
}

} // namespace Internal
