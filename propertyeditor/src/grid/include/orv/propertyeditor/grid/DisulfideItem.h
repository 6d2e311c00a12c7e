#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class DisulfideWidget;

/// A column of disulfide bonds between the proteins of another column.
class ORV_PROPERTY_EDITOR_EXPORT DisulfideItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    explicit DisulfideItem(GridCommunicationManager *manager);
    ~DisulfideItem() override;
    Q_DISABLE_COPY_MOVE(DisulfideItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override;
    void beginPresetLoading() override;
    void endPresetLoading() override;
    void messageReceived(const GridMessage &message) override;
    /// The proteins between which bonds are, as the JSON form of their table.
    void setProteinsContent(const QJsonObject &proteins);

protected:
    Error setContentInternal() override;

private:
    ItemWidget<DisulfideWidget> m_widget;
};

} // namespace orv
