#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class MassTableWidget;

/// A column of masses with the tolerance within which they match.
class ORV_PROPERTY_EDITOR_EXPORT MassTableItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    explicit MassTableItem(GridCommunicationManager *manager);
    ~MassTableItem() override;
    Q_DISABLE_COPY_MOVE(MassTableItem)

    using IGridItem::content;
    /// Without a widget the cell as it was set.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    void messageReceived(const GridMessage &message) override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<MassTableWidget> m_widget;
};

} // namespace orv
