#include "WorkList.h"

#include <orv/widgets/SelectionLook.h>

namespace orv {

void WorkList::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTreeView::initViewItemOption(option);
    SelectionLook::apply(*this, option);
}

} // namespace orv
