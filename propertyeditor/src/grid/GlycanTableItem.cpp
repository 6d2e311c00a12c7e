#include "orv/propertyeditor/grid/GlycanTableItem.h"

#include <orv/chemistry/GlycanTable.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/GlycanTableWidget.h>

namespace orv {

using namespace PropertyEditorJsonUtils;

GlycanTableItem::GlycanTableItem(GridCommunicationManager *manager)
    : GridCommunicative(manager)
    , IGridItem({PropertyId::DetachedGlycans})
    , m_widget(new GlycanTableWidget)
{
    connect(m_widget->model(), &QAbstractItemModel::modelReset, this, [this] {
        if (!m_widget)
            return;
        const QJsonObject glycans = rowNodeToObject(m_widget->table().toRowNode());
        Q_EMIT sendMessage({this, PropertyId::DetachedGlycans, glycans, {}});
    });
    connect(m_widget.get(), &GlycanTableWidget::edited, this, [this] { tellEdited(); });
}

GlycanTableItem::~GlycanTableItem() = default;

QWidget *GlycanTableItem::widget()
{
    return m_widget.get();
}

Error GlycanTableItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    Result<GlycanTable> table = GlycanTable::fromRowNode(rowNodeForType(PropertyId::DetachedGlycans));
    if (table.hasError())
        return table.ecatch();
    m_widget->setTable(*table);
    return Error::NoError;
}

QJsonObject GlycanTableItem::content() const
{
    if (!m_widget)
        return {};
    return contentWith({{PropertyId::DetachedGlycans, rowNodeToObject(m_widget->table().toRowNode())}});
}

void GlycanTableItem::messageReceived(const GridMessage &) {}

} // namespace orv
