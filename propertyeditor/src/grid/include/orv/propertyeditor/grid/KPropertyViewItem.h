#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class GridPropertyEditorView;

/// A column of settings. Follows renamed and removed samples in the choice of samples that a step works on,
/// and the tables that the theoretical peptides are made of.
class ORV_PROPERTY_EDITOR_EXPORT KPropertyViewItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    explicit KPropertyViewItem(GridCommunicationManager *manager);
    ~KPropertyViewItem() override;
    Q_DISABLE_COPY_MOVE(KPropertyViewItem)

    using IGridItem::content;
    /// From the set alone: what the set doesn't know isn't kept. Empty without a view.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override;

    void messageReceived(const GridMessage &message) override;

protected:
    /// For a view of one's own, which others own; null makes one.
    KPropertyViewItem(GridCommunicationManager *manager, GridPropertyEditorView *view);
    Error setContentInternal() override;

private:
    void followSamples(const GridMessage &message);
    void followTable(const GridMessage &message);

    ItemWidget<GridPropertyEditorView> m_view;
};

class ORV_PROPERTY_EDITOR_EXPORT KPropertyItemCreator : public TalkingItemCreator
{
public:
    [[nodiscard]] IGridItem *createGridItemOn(GridCommunicationManager *bus) const override;
};

} // namespace orv
