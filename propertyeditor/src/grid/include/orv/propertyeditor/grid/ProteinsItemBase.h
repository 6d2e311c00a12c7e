#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class ProteinInputWidgetBase;

/// A column of proteins or oligonucleotides that are built from chains.
class ORV_PROPERTY_EDITOR_EXPORT ProteinsItemBase : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    /// The table stands in the property \a id.
    ProteinsItemBase(PropertyId id, GridCommunicationManager *manager);
    ~ProteinsItemBase() override;
    Q_DISABLE_COPY_MOVE(ProteinsItemBase)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override;
    void messageReceived(const GridMessage &message) override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<ProteinInputWidgetBase> m_widget;
    PropertyId m_id;
};

} // namespace orv
