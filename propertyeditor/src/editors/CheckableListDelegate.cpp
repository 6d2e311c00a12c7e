#include "orv/propertyeditor/editors/CheckableListDelegate.h"

#include <KProperty.h>
#include <orv/propertyeditor/editors/CheckableListWidget.h>

namespace orv {

CheckableListDelegate::~CheckableListDelegate() = default;

QWidget *CheckableListDelegate::createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                                             const QModelIndex &index) const
{
    const KProperty *property = KPropertyUtils::propertyForIndex(index);
    return property ? new CheckableListWidget(*property, parent) : nullptr;
}

QString CheckableListDelegate::propertyValueToString(const KProperty *property, const QLocale &) const
{
    return property->value().toStringList().join(property->option("displaySeparator").toString());
}

QString CheckableListDelegate::valueToString(const QVariant &value, const QLocale &) const
{
    return value.toStringList().join(u' ');
}

void CheckableListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    KPropertyValuePainterInterface::paint(this, painter, option, index);
}

} // namespace orv
