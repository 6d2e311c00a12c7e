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
    /// Refuses points and commas: a group of digits may be meant as decimals, and an integer has none.
    QValidator::State validate(QString &input, int &position) const override;

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

    As many decimals are shown as the value has, at least as many as the precision says (two without one), and
    more may be typed: the precision limits what a cell shows, not what is stored. A point and a comma are
   both read as the sign before the decimals, in every language; groups of digits aren't read. */
class KPROPERTYWIDGETS_EXPORT KPropertyDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue USER true)

public:
    KPropertyDoubleSpinBox(const KProperty &prop, QWidget *parent, int itemHeight);
    ~KPropertyDoubleSpinBox() override;

    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &input, int &position) const override;
    void fixup(QString &input) const override;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(double value);

private:
    Q_DISABLE_COPY(KPropertyDoubleSpinBox)
    bool readSeparators(QString *text) const;

    int m_leastDecimals = 0;
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
