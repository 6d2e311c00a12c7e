#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QTimeEdit>
#include <QVariant>

/// Edits a time of day. Options: min, max, minValueText.
class KPROPERTYWIDGETS_EXPORT KPropertyTimeEditor : public QTimeEdit
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    KPropertyTimeEditor(const KProperty *prop, QWidget *parent);
    ~KPropertyTimeEditor() override;

    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void onTimeChanged();

private:
    Q_DISABLE_COPY(KPropertyTimeEditor)
};

class KPROPERTYWIDGETS_EXPORT KPropertyTimeDelegate : public KPropertyEditorCreatorInterface,
                                                      public KPropertyValueDisplayInterface
{
public:
    KPropertyTimeDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
