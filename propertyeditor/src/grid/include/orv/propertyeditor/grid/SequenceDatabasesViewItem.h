#pragma once

#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/ItemWidget.h>

namespace orv {

class SequenceDatabasesWidget;

/// A column of sequence databases.
class ORV_PROPERTY_EDITOR_EXPORT SequenceDatabasesViewItem : public IGridItem
{
public:
    /// Null makes a widget.
    explicit SequenceDatabasesViewItem(SequenceDatabasesWidget *widget = nullptr);
    ~SequenceDatabasesViewItem() override;
    Q_DISABLE_COPY_MOVE(SequenceDatabasesViewItem)

    using IGridItem::content;
    /// Empty without a widget.
    [[nodiscard]] QJsonObject content() const override;
    [[nodiscard]] QWidget *widget() override;
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const override;

protected:
    Error setContentInternal() override;

private:
    ItemWidget<SequenceDatabasesWidget> m_widget;
    QJsonObject m_shown; ///< what the widget gave right after the load
};

} // namespace orv
