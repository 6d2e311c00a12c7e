#include "orv/widgets/QxtCheckComboBox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSet>
#include <QStandardItemModel>
#include <QStylePainter>
#include <QWheelEvent>

namespace {

/// Rows that are added as plain texts come with a check box.
class CheckModel : public QStandardItemModel
{
public:
    explicit CheckModel(QObject *parent)
        : QStandardItemModel(0, 1, parent)
    {}

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return QStandardItemModel::flags(index) | Qt::ItemIsUserCheckable;
    }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant value = QStandardItemModel::data(index, role);
        return index.isValid() && role == Qt::CheckStateRole && !value.isValid() ? QVariant(Qt::Unchecked)
                                                                                 : value;
    }
};

QString shownText(const QxtCheckComboBox &box)
{
    const QStringList checked = box.checkedItems();
    return checked.isEmpty() ? box.defaultText() : checked.join(box.separator());
}

/// The value that Qt reports for a combo box is the text of its current row, which has no meaning here.
class AccessibleCheckComboBox : public QAccessibleWidget
{
public:
    explicit AccessibleCheckComboBox(QxtCheckComboBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? shownText(*box()) : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.hasPopup = true;
        state.expanded = box()->view()->isVisible();
        return state;
    }
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(box()->view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == box()->view() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString &name) override
    {
        if (name != showMenuAction() && name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (box()->view()->isVisible()) {
            box()->hidePopup();
        } else {
            box()->showPopup();
        }
    }

private:
    [[nodiscard]] QxtCheckComboBox *box() const { return static_cast<QxtCheckComboBox *>(widget()); }
};

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    auto *const box = className == QLatin1String(QxtCheckComboBox::staticMetaObject.className())
                          ? qobject_cast<QxtCheckComboBox *>(object)
                          : nullptr;
    return box ? new AccessibleCheckComboBox(box) : nullptr;
}

} // namespace

class QxtCheckComboBox::Private
{
public:
    QString defaultText;
    QString separator = QStringLiteral(", ");
    QStringList lastChecked;
    QMetaObject::Connection connections[4];
    QPersistentModelIndex pressed;
    bool changing = false;
};

QxtCheckComboBox::QxtCheckComboBox(QWidget *parent)
    : QComboBox(parent)
    , d(std::make_unique<Private>())
{
    QAccessible::installFactory(makeAccessible); // Qt keeps one of each
    QComboBox::setModel(new CheckModel(this));
    followModel();
    view()->installEventFilter(this);
    view()->viewport()->installEventFilter(this);
    setAccessibleDescription(tr("Several entries can be checked"));
}

QxtCheckComboBox::~QxtCheckComboBox() = default;

void QxtCheckComboBox::followModel()
{
    for (const QMetaObject::Connection &connection : d->connections) {
        disconnect(connection);
    }
    const auto changed = [this] { checkStatesChanged(); };
    d->connections[0] = connect(model(), &QAbstractItemModel::dataChanged, this, changed);
    d->connections[1] = connect(model(), &QAbstractItemModel::rowsRemoved, this, changed);
    d->connections[2] = connect(model(), &QAbstractItemModel::modelReset, this, changed);
    // Rows of a model that is set from outside may come with their check marks.
    d->connections[3] = connect(model(), &QAbstractItemModel::rowsInserted, this, changed);
}

void QxtCheckComboBox::checkStatesChanged()
{
    if (d->changing) {
        return;
    }
    const QStringList checked = checkedItems();
    update();
    if (checked != d->lastChecked) {
        d->lastChecked = checked;
        QAccessibleValueChangeEvent event(this, shownText(*this));
        QAccessible::updateAccessibility(&event);
        Q_EMIT checkedItemsChanged(checked);
    }
}

Qt::CheckState QxtCheckComboBox::itemCheckState(int index) const
{
    return static_cast<Qt::CheckState>(itemData(index, Qt::CheckStateRole).toInt());
}

void QxtCheckComboBox::setItemCheckState(int index, Qt::CheckState state)
{
    setItemData(index, state, Qt::CheckStateRole);
}

QStringList QxtCheckComboBox::checkedItems() const
{
    QStringList items;
    for (int i = 0; i < count(); ++i) {
        if (itemCheckState(i) == Qt::Checked) {
            items.append(itemText(i));
        }
    }
    return items;
}

void QxtCheckComboBox::setCheckedItems(const QStringList &items)
{
    const QSet<QString> wanted(items.cbegin(), items.cend());
    d->changing = true;
    for (int i = 0; i < count(); ++i) {
        const Qt::CheckState state = wanted.contains(itemText(i)) ? Qt::Checked : Qt::Unchecked;
        if (itemCheckState(i) != state) {
            setItemData(i, state, Qt::CheckStateRole);
        }
    }
    d->changing = false;
    checkStatesChanged();
}

QString QxtCheckComboBox::defaultText() const
{
    return d->defaultText;
}

void QxtCheckComboBox::setDefaultText(const QString &text)
{
    d->defaultText = text;
    update();
}

QString QxtCheckComboBox::separator() const
{
    return d->separator;
}

void QxtCheckComboBox::setSeparator(const QString &separator)
{
    d->separator = separator;
    update();
}

void QxtCheckComboBox::setModel(QAbstractItemModel *model)
{
    QComboBox::setModel(model);
    followModel();
    checkStatesChanged();
}

void QxtCheckComboBox::hidePopup()
{
    d->pressed = QModelIndex();
    QComboBox::hidePopup();
    // A combo box also has a current row; here it would be an entry that looks chosen and is not.
    setCurrentIndex(-1);
}

void QxtCheckComboBox::toggle(const QModelIndex &index)
{
    if (index.flags().testFlag(Qt::ItemIsEnabled) && index.flags().testFlag(Qt::ItemIsUserCheckable)) {
        const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        model()->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
}

bool QxtCheckComboBox::eventFilter(QObject *receiver, QEvent *event)
{
    if (receiver == view() && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Space:
            toggle(view()->currentIndex());
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            hidePopup();
            return true;
        default:
            break;
        }
    }
    // The list of a plain combo box closes at the click; here one click follows another.
    if (receiver == view()->viewport() && event->type() == QEvent::MouseButtonPress) {
        d->pressed = view()->indexAt(static_cast<QMouseEvent *>(event)->position().toPoint());
    }
    if (receiver == view()->viewport() && event->type() == QEvent::MouseButtonRelease) {
        const QModelIndex released = view()->indexAt(static_cast<QMouseEvent *>(event)->position().toPoint());
        if (released.isValid() && released == d->pressed) {
            toggle(released);
        }
        d->pressed = QModelIndex();
        return true;
    }
    return QComboBox::eventFilter(receiver, event);
}

void QxtCheckComboBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_F4:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        showPopup();
        break;
    default:
        // Typing or arrows would change the current row, which has no meaning here.
        event->ignore();
        break;
    }
}

void QxtCheckComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void QxtCheckComboBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(shownText(*this), Qt::ElideRight, room.width() - 4);
    option.currentIcon = QIcon();
    if (checkedItems().isEmpty()) {
        option.palette.setColor(QPalette::ButtonText, option.palette.color(QPalette::PlaceholderText));
    }
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
