#include "ItemDelegate.h"

#include "EditorDataModel.h"
#include "KProperty.h"
#include "KPropertyEditorView.h"
#include "KPropertyMultiLineStringEditor.h"
#include "KPropertyStringEditor.h"
#include "KPropertyWidgetsPluginManager.h"
#include "Painting.h"

#include <QAbstractScrollArea>
#include <QMetaProperty>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace Internal {

namespace {

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

QByteArray ItemDelegate::userPropertyName(const QWidget *editor)
{
    return QByteArray(editor->metaObject()->userProperty().name());
}

bool ItemDelegate::scrolls(const QWidget *part)
{
    return qobject_cast<const QAbstractScrollArea *>(part) ||
           qobject_cast<const QAbstractScrollArea *>(part->parentWidget());
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
        paintRemarkSign(painter, &valueOption, property);
    }
    painter->save();
    painter->setClipRect(valueOption.rect, Qt::IntersectClip);
    if (!KPropertyWidgetsPluginManager::self()->paint(property.type(), painter, valueOption, index)) {
        Painting::drawText(painter, valueOption, index.data(Qt::DisplayRole).toString());
    }
    painter->restore();
}

void ItemDelegate::paintRemarkSign(QPainter *painter, QStyleOptionViewItem *option,
                                   const KProperty &property) const
{
    const int size = option->fontMetrics.height();
    QRect sign(option->rect.left() + Painting::textMargin(), option->rect.top() + Painting::verticalPadding(),
               size, size);
    Painting::placeInFront(&sign, option);
    Painting::drawSign(painter, sign, *option, m_view->remarkIcon(m_model->remarkKind(&property)));
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
    m_leftToPress = nullptr;
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

} // namespace Internal
