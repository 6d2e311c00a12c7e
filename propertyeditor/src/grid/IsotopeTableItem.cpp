#include "orv/propertyeditor/grid/IsotopeTableItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/widgets/IsotopeTableWidget.h>

namespace orv {

IsotopeTableItem::IsotopeTableItem()
    : IGridItem({PropertyId::Isotope})
    , m_widget(new IsotopeTableWidget)
{
    QObject::connect(m_widget.get(), &IsotopeTableWidget::edited, edits(), [this] { tellEdited(); });
}

IsotopeTableItem::~IsotopeTableItem() = default;

QWidget *IsotopeTableItem::widget()
{
    return m_widget.get();
}

Error IsotopeTableItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    m_widget->setIsotopeList(rowNodeForType(PropertyId::Isotope));
    return Error::NoError;
}

QJsonObject IsotopeTableItem::content() const
{
    if (!m_widget)
        return {};
    return contentWith(
        {{PropertyId::Isotope, PropertyEditorJsonUtils::rowNodeToObject(m_widget->isotopeList())}});
}

} // namespace orv
