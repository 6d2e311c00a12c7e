#pragma once

#include <KPropertyStringEditor.h>
#include <orv/widgets/Export.h>

namespace orv {

/// Shows structured values as their objects tell them, and makes their editors. Holds no state. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT OrvGenericDelegate : public KPropertyStringDelegate
{
public:
    OrvGenericDelegate() = default;

    /// Null for a property that doesn't say whether it has several lines.
    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QString propertyValueToString(const KProperty *property, const QLocale &locale) const override;

    /// More lines than a cell has, for a tool tip; the last one tells that there are others.
    [[nodiscard]] static QString summary(const KProperty &property);
};

} // namespace orv
