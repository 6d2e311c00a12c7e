#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class GlycanTableWidget;

/// A column of released glycans. Follows nobody.
class ORV_PROPERTY_EDITOR_EXPORT GlycanTableItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    explicit GlycanTableItem(GridCommunicationManager *manager);
    ~GlycanTableItem() override;
    Q_DISABLE_COPY_MOVE(GlycanTableItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    void messageReceived(const GridMessage &message) override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<GlycanTableWidget> m_widget;
};

} // namespace orv
