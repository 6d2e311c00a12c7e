#pragma once

#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class IsotopeTableWidget;

/// A column of enriched isotopes.
class ORV_PROPERTY_EDITOR_EXPORT IsotopeTableItem : public IGridItem
{
public:
    IsotopeTableItem();
    ~IsotopeTableItem() override;
    Q_DISABLE_COPY_MOVE(IsotopeTableItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<IsotopeTableWidget> m_widget;
};

} // namespace orv
