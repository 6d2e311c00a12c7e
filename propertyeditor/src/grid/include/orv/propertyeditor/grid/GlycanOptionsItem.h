#pragma once

#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class GlycanOptionsWidget;

/// A column of the pieces that glycans are made of.
class ORV_PROPERTY_EDITOR_EXPORT GlycanOptionsItem : public IGridItem
{
public:
    GlycanOptionsItem();
    ~GlycanOptionsItem() override;
    Q_DISABLE_COPY_MOVE(GlycanOptionsItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<GlycanOptionsWidget> m_widget;
};

} // namespace orv
