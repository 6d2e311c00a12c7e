#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QDateTimeEdit>
#include <QVariant>

/// Edits a date with time. Options: min, max, minValueText.
class KPROPERTYWIDGETS_EXPORT KPropertyDateTimeEditor : public QDateTimeEdit
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    KPropertyDateTimeEditor(const KProperty *prop, QWidget *parent);
    ~KPropertyDateTimeEditor() override;

    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void onDateTimeChanged();

private:
    Q_DISABLE_COPY(KPropertyDateTimeEditor)
};

class KPROPERTYWIDGETS_EXPORT KPropertyDateTimeDelegate : public KPropertyEditorCreatorInterface,
                                                          public KPropertyValueDisplayInterface
{
public:
    KPropertyDateTimeDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
