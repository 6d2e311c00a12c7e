#pragma once

#include <QTreeView>

namespace orv {

/// A list or tree of a panel, which shows by its selection whether the keys go there.
class WorkList : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;

protected:
    void initViewItemOption(QStyleOptionViewItem *option) const override;
};

} // namespace orv
