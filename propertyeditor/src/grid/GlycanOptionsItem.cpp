#include "orv/propertyeditor/grid/GlycanOptionsItem.h"

#include <orv/chemistry/GlycanOptions.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/widgets/GlycanOptionsWidget.h>

namespace orv {

GlycanOptionsItem::GlycanOptionsItem()
    : IGridItem({PropertyId::GlycanOptions})
    , m_widget(new GlycanOptionsWidget)
{
    QObject::connect(m_widget.get(), &GlycanOptionsWidget::edited, edits(), [this] { tellEdited(); });
}

GlycanOptionsItem::~GlycanOptionsItem() = default;

QWidget *GlycanOptionsItem::widget()
{
    return m_widget.get();
}

Error GlycanOptionsItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    Result<GlycanOptions> options = GlycanOptions::fromRowNode(rowNodeForType(PropertyId::GlycanOptions));
    if (options.hasError())
        return options.ecatch();
    m_widget->setOptions(*options);
    return Error::NoError;
}

QJsonObject GlycanOptionsItem::content() const
{
    if (!m_widget)
        return {};
    return contentWith({{PropertyId::GlycanOptions,
                         PropertyEditorJsonUtils::rowNodeToObject(m_widget->options().toRowNode())}});
}

} // namespace orv
