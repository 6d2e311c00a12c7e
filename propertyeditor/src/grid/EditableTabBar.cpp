#include "orv/propertyeditor/grid/EditableTabBar.h"

#include <QMouseEvent>
#include <QShortcut>
#include <QStyleOptionTab>

#include <utility>

namespace orv {

EditableTabBar::EditableTabBar(QWidget *parent)
    : QTabBar(parent)
{
    connect(this, &QTabBar::tabBarDoubleClicked, this, &EditableTabBar::onTabBarDoubleClicked);
}

EditableTabBar::~EditableTabBar() = default;

void EditableTabBar::setEditorMode(GridPropertyEditorView::EditorMode mode)
{
    m_isEditable = mode == GridPropertyEditorView::EditorMode::Designer;
    setMovable(m_isEditable);
}

void EditableTabBar::initStyleOption(QStyleOptionTab *option, int tabIndex) const
{
    QTabBar::initStyleOption(option, tabIndex);
    option->text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QSize EditableTabBar::tabSizeHint(int index) const
{
    const QString title = tabText(index);
    const QSize counted = fontMetrics().size(Qt::TextShowMnemonic, title);
    return QTabBar::tabSizeHint(index) + QSize(fontMetrics().size(0, title).width() - counted.width(), 0);
}

void EditableTabBar::mousePressEvent(QMouseEvent *event)
{
    m_isHeld = event->button() == Qt::LeftButton;
    QTabBar::mousePressEvent(event);
}

void EditableTabBar::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<EditableTabBar> self(this);
    QTabBar::mouseReleaseEvent(event);
    if (self && event->button() == Qt::LeftButton && std::exchange(m_isHeld, false))
        Q_EMIT released();
}

void EditableTabBar::onTabBarDoubleClicked(int index)
{
    if (index < 0 || index >= count() || !m_isEditable || tabRect(index).isNull())
        return;
    delete m_editor;
    auto *editor = new QLineEdit(tabText(index), this);
    m_editor = editor;
    editor->setAccessibleName(tr("Title of the tab"));
    editor->setGeometry(tabRect(index));
    editor->selectAll();
    editor->show();
    editor->setFocus(Qt::OtherFocusReason);
    // Enter and the loss of focus both tell that editing is finished.
    connect(
        editor, &QLineEdit::editingFinished, this, [this, index] { commitTitle(index); },
        Qt::SingleShotConnection);
    connect(
        this, &QTabBar::currentChanged, editor, [this] { dropTitle(); }, Qt::SingleShotConnection);
    auto *cancel = new QShortcut(QKeySequence::Cancel, editor);
    cancel->setContext(Qt::WidgetShortcut);
    connect(cancel, &QShortcut::activated, this, &EditableTabBar::dropTitle);
}

void EditableTabBar::dropTitle()
{
    if (m_editor)
        m_editor->deleteLater();
    m_editor = nullptr;
}

void EditableTabBar::commitTitle(int index)
{
    if (!m_editor)
        return;
    const QString text = m_editor->text();
    dropTitle();
    if (text.isEmpty() || index >= count() || text == tabText(index))
        return;
    setTabText(index, text);
    Q_EMIT titleEdited(index);
}

} // namespace orv
