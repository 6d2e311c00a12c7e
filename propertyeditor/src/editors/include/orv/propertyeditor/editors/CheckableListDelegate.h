#pragma once

#include <KPropertyWidgetsFactory.h>
#include <orv/widgets/Export.h>

namespace orv {

/// Shows checked texts in a row and makes their editors. Holds no state. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT CheckableListDelegate : public KPropertyEditorCreatorInterface,
                                                         public KPropertyValueDisplayInterface,
                                                         public KPropertyValuePainterInterface
{
public:
    CheckableListDelegate() = default;
    ~CheckableListDelegate() override;

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// Joined by the option "displaySeparator".
    QString propertyValueToString(const KProperty *property, const QLocale &locale) const override;
    QString valueToString(const QVariant &value, const QLocale &locale) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace orv
