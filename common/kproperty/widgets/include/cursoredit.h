#pragma once

#include "KPropertyWidgetsFactory.h"
#include "combobox.h"
#include "kpropertywidgets_export.h"

#include <QCursor>

/// A choice of cursor shapes.
class KPROPERTYWIDGETS_EXPORT KPropertyCursorEditor : public KPropertyComboBoxEditor
{
    Q_OBJECT
    Q_PROPERTY(QCursor value READ cursorValue WRITE setCursorValue USER true)

public:
    explicit KPropertyCursorEditor(QWidget *parent = nullptr);
    ~KPropertyCursorEditor() override;

    virtual QCursor cursorValue() const;

public Q_SLOTS:
    virtual void setCursorValue(const QCursor &value);

private:
    Q_DISABLE_COPY(KPropertyCursorEditor)
};

class KPROPERTYWIDGETS_EXPORT KPropertyCursorDelegate : public KPropertyEditorCreatorInterface,
                                                        public KPropertyValuePainterInterface,
                                                        public KPropertyValueDisplayInterface
{
public:
    KPropertyCursorDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
