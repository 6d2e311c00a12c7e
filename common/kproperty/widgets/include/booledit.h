#pragma once

#include "KPropertyFactory.h"
#include "KPropertyWidgetsFactory.h"
#include "combobox.h"
#include "kpropertywidgets_export.h"

#include <QToolButton>

/// A check box for true and false; null shows as false.
class KPROPERTYWIDGETS_EXPORT KPropertyBoolEditor : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    explicit KPropertyBoolEditor(const KProperty *prop, QWidget *parent = nullptr);
    ~KPropertyBoolEditor() override;

    QVariant value() const;

    /// Paints a check box with \a text behind it. With \a threeState a null \a value is a third state.
    static void draw(QPainter *p, const QRect &r, const QVariant &value, const QString &text,
                     bool threeState);

    /// Where draw() puts the box.
    static QRect indicatorRect(const QRect &r, const QWidget *widget = nullptr);

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(bool state);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(KPropertyBoolEditor)
    class Private;
    const std::unique_ptr<Private> d;
};

/// A list of true, false and null.
class KPROPERTYWIDGETS_EXPORT KPropertyThreeStateBoolEditor : public KPropertyComboBoxEditor
{
    Q_OBJECT

public:
    /// \a listData names true, false and null in this order.
    explicit KPropertyThreeStateBoolEditor(const KPropertyListData &listData, QWidget *parent = nullptr);
    ~KPropertyThreeStateBoolEditor() override;

    QVariant value() const override;
    void setValue(const QVariant &value) override;

private:
    Q_DISABLE_COPY(KPropertyThreeStateBoolEditor)
};

/// Options: 3State, yesName, noName, 3rdStateName, nullName.
class KPROPERTYWIDGETS_EXPORT KPropertyBoolDelegate : public KPropertyEditorCreatorInterface,
                                                      public KPropertyValuePainterInterface,
                                                      public KPropertyValueDisplayInterface
{
public:
    KPropertyBoolDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString propertyValueToString(const KProperty *prop, const QLocale &locale) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
