#pragma once

#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class OptionsWidgetBase;

/// A column of deconvolution options: of intact proteins in property 170, of oligonucleotides in 225. Any
/// other property gives an item without a widget.
class ORV_PROPERTY_EDITOR_EXPORT OptionsItemBase : public IGridItem
{
public:
    explicit OptionsItemBase(PropertyId id);
    ~OptionsItemBase() override;
    Q_DISABLE_COPY_MOVE(OptionsItemBase)

    using IGridItem::content;
    /// Empty without a widget. What can't be read from the widget leaves the cell as it was set.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override;

protected:
    Error setContentInternal() override;

private:
    PropertyId m_id;
    ItemWidget<OptionsWidgetBase> m_widget;
};

} // namespace orv
