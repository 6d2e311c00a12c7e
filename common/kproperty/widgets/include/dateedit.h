#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QDateEdit>
#include <QVariant>

/// Edits a date. Options: min, max, minValueText.
class KPROPERTYWIDGETS_EXPORT KPropertyDateEditor : public QDateEdit
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    KPropertyDateEditor(const KProperty *prop, QWidget *parent);
    ~KPropertyDateEditor() override;

    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void onDateChanged();

private:
    Q_DISABLE_COPY(KPropertyDateEditor)
};

class KPROPERTYWIDGETS_EXPORT KPropertyDateDelegate : public KPropertyEditorCreatorInterface,
                                                      public KPropertyValueDisplayInterface
{
public:
    KPropertyDateDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
