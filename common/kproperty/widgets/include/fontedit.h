#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

/// Fonts, chosen in a dialog.
class KPROPERTYWIDGETS_EXPORT KPropertyFontDelegate : public KPropertyEditorCreatorInterface,
                                                      public KPropertyValuePainterInterface,
                                                      public KPropertyValueDisplayInterface
{
public:
    KPropertyFontDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
