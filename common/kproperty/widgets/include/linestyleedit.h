#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QComboBox>

/// A choice of pen styles, each shown as a line.
class KPROPERTYWIDGETS_EXPORT KPropertyLineStyleComboEditor : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    explicit KPropertyLineStyleComboEditor(QWidget *parent = nullptr);
    ~KPropertyLineStyleComboEditor() override;

    /// A Qt::PenStyle as number.
    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(int index);

private:
    Q_DISABLE_COPY(KPropertyLineStyleComboEditor)
};

/// For the type LineStyle.
class KPROPERTYWIDGETS_EXPORT KPropertyLineStyleComboDelegate : public KPropertyEditorCreatorInterface,
                                                                public KPropertyValuePainterInterface,
                                                                public KPropertyValueDisplayInterface
{
public:
    KPropertyLineStyleComboDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
