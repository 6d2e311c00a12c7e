#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

/// Edits an int. Options: min, max, step, minValueText, prefix, suffix.
class KPROPERTYWIDGETS_EXPORT KPropertyIntSpinBox : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    KPropertyIntSpinBox(const KProperty &prop, QWidget *parent, int itemHeight);
    ~KPropertyIntSpinBox() override;

    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(int value);

private:
    Q_DISABLE_COPY(KPropertyIntSpinBox)
};

/*! Edits a double. Options as for integers, and precision.

    Without a precision as many decimals are shown as the value has, at least two. */
class KPROPERTYWIDGETS_EXPORT KPropertyDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue USER true)

public:
    KPropertyDoubleSpinBox(const KProperty &prop, QWidget *parent, int itemHeight);
    ~KPropertyDoubleSpinBox() override;

    QString textFromValue(double value) const override;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(double value);

private:
    Q_DISABLE_COPY(KPropertyDoubleSpinBox)
    bool m_hasPrecision = false;
};

/// For Int, UInt, LongLong and ULongLong; the last three have editors of 64 bits.
class KPROPERTYWIDGETS_EXPORT KPropertyIntSpinBoxDelegate : public KPropertyEditorCreatorInterface,
                                                            public KPropertyValueDisplayInterface
{
public:
    KPropertyIntSpinBoxDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString propertyValueToString(const KProperty *prop, const QLocale &locale) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};

/// For Double.
class KPROPERTYWIDGETS_EXPORT KPropertyDoubleSpinBoxDelegate : public KPropertyEditorCreatorInterface,
                                                               public KPropertyValueDisplayInterface
{
public:
    KPropertyDoubleSpinBoxDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString propertyValueToString(const KProperty *prop, const QLocale &locale) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
