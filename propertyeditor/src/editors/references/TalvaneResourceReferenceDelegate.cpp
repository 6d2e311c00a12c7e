#include "orv/propertyeditor/editors/TalvaneResourceReferenceDelegate.h"

#include <KPropertyUtils.h>
#include <orv/propertyeditor/editors/TalvaneResourceReferenceEditor.h>

namespace orv {

QWidget *TalvaneResourceReferenceDelegate::createEditor(int, QWidget *parent, const QStyleOptionViewItem &,
                                                        const QModelIndex &index) const
{
    const KProperty *property = KPropertyUtils::propertyForIndex(index);
    return property ? new TalvaneResourceReferenceEditor(*property, parent) : nullptr;
}

} // namespace orv
