#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class ProteinOptionsWidget;

/// A column of the proteins of a search, with annotations. Follows nobody.
class ORV_PROPERTY_EDITOR_EXPORT ProteinsTableItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    explicit ProteinsTableItem(GridCommunicationManager *manager);
    ~ProteinsTableItem() override;
    Q_DISABLE_COPY_MOVE(ProteinsTableItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    void messageReceived(const GridMessage &message) override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<ProteinOptionsWidget> m_widget;
};

} // namespace orv
