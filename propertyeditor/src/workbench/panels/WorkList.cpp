#include "WorkList.h"

#include <orv/widgets/CheckBoxLook.h>
#include <orv/widgets/SelectionLook.h>

namespace orv {

void WorkList::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTreeView::initViewItemOption(option);
    SelectionLook::apply(*this, option);
    CheckBoxLook::apply(option);
}

} // namespace orv
