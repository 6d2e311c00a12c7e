#pragma once

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>
#include <orv/samples/SamplesInput.h>

namespace orv {

class SamplesAndTracesInputWidget;

/// A column of samples.
class ORV_PROPERTY_EDITOR_EXPORT SamplesViewItem : public GridCommunicative, public IGridItem
{
    Q_OBJECT

public:
    explicit SamplesViewItem(GridCommunicationManager *manager);
    ~SamplesViewItem() override;
    Q_DISABLE_COPY_MOVE(SamplesViewItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override;
    void messageReceived(const GridMessage &message) override;

protected:
    /// For a widget of one's own.
    SamplesViewItem(GridCommunicationManager *manager, SamplesAndTracesInputWidget *widget);
    Error setContentInternal() override;

private:
    ItemWidget<SamplesAndTracesInputWidget> m_widget;
    void announce(const QList<SamplesInput::Entry> &samples);

    QList<SamplesInput::Entry> m_sent;
};

} // namespace orv
