#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QColor>

/// A list of colours with a dialog for all others.
class KPROPERTYWIDGETS_EXPORT KPropertyColorComboEditor : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    explicit KPropertyColorComboEditor(QWidget *parent = nullptr);
    ~KPropertyColorComboEditor() override;

    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected Q_SLOTS:
    void slotValueChanged(const QColor &color);

private:
    Q_DISABLE_COPY(KPropertyColorComboEditor)
    class Private;
    const std::unique_ptr<Private> d;
};

/// Colours, painted as a swatch with the name "#rrggbb".
class KPROPERTYWIDGETS_EXPORT KPropertyColorComboDelegate : public KPropertyEditorCreatorInterface,
                                                            public KPropertyValuePainterInterface,
                                                            public KPropertyValueDisplayInterface
{
public:
    KPropertyColorComboDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
