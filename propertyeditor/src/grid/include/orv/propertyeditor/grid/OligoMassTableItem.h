#pragma once

#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class OligoMassTableWidget;

/// A column of masses of oligonucleotides, with tolerances and impurities.
class ORV_PROPERTY_EDITOR_EXPORT OligoMassTableItem : public IGridItem
{
public:
    OligoMassTableItem();
    ~OligoMassTableItem() override;
    Q_DISABLE_COPY_MOVE(OligoMassTableItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<OligoMassTableWidget> m_widget;
};

} // namespace orv
