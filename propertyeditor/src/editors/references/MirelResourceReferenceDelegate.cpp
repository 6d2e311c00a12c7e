#include "orv/propertyeditor/editors/MirelResourceReferenceDelegate.h"

#include <KPropertyUtils.h>
#include <orv/propertyeditor/editors/MirelResourceReferenceEditor.h>

namespace orv {

QWidget *MirelResourceReferenceDelegate::createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                                                      const QModelIndex &index) const
{
    const KProperty *property = KPropertyUtils::propertyForIndex(index);
    return property ? new MirelResourceReferenceEditor(*property, parent) : nullptr;
}

} // namespace orv
