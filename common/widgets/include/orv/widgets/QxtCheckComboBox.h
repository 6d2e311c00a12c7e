#pragma once

#include <orv/widgets/Export.h>

#include <QComboBox>
#include <QStringList>

#include <memory>

/*! A combo box whose rows are checked rather than chosen; it shows the checked texts, joined by a separator.

    @code
    QxtCheckComboBox box;
    box.addItems({tr("b ions"), tr("y ions"), tr("immonium ions")});
    box.setSeparator(QStringLiteral("; "));
    box.setCheckedItems({tr("b ions"), tr("y ions")}); // shows "b ions; y ions"
    @endcode

    Keyboard: Space, Enter or F4 opens the list, Up and Down move, Space checks, Enter and Escape close. The
   list stays open while rows are clicked. Rows have the data of Qt::CheckStateRole, so that a model may be
   set that has checkable rows of its own. Use it in the GUI thread. */
class ORV_PROPERTY_EDITOR_EXPORT QxtCheckComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString defaultText READ defaultText WRITE setDefaultText)
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    Q_PROPERTY(
        QStringList checkedItems READ checkedItems WRITE setCheckedItems NOTIFY checkedItemsChanged USER true)

public:
    explicit QxtCheckComboBox(QWidget *parent = nullptr);
    ~QxtCheckComboBox() override;

    void setModel(QAbstractItemModel *model) override;
    void hidePopup() override;

    Qt::CheckState itemCheckState(int index) const;
    /// Nothing happens for an index that does not exist.
    void setItemCheckState(int index, Qt::CheckState state);

    /// In the order of the rows.
    QStringList checkedItems() const;

    /// Shown while no row is checked; empty at first.
    QString defaultText() const;
    void setDefaultText(const QString &text);

    /// ", " at first.
    QString separator() const;
    void setSeparator(const QString &separator);

public Q_SLOTS:
    /// Checks the rows with these texts and no others. Texts that no row has are left out.
    void setCheckedItems(const QStringList &items);

Q_SIGNALS:
    /// Once per change of the user or of a function, not while the same rows stay checked.
    void checkedItemsChanged(const QStringList &items);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void toggle(const QModelIndex &index);
    void checkStatesChanged();
    void followModel();

    Q_DISABLE_COPY(QxtCheckComboBox)
    class Private;
    const std::unique_ptr<Private> d;
};
