#include "orv/propertyeditor/grid/DisulfideItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/widgets/DisulfideWidget.h>

namespace orv {

using namespace PropertyEditorJsonUtils;

DisulfideItem::DisulfideItem(GridCommunicationManager *manager)
    : GridCommunicative(manager)
    , IGridItem({PropertyId::Disulfide})
    , m_widget(new DisulfideWidget)
{
    connect(m_widget.get(), &DisulfideWidget::disulfideDataChanged, this, [this] {
        if (m_widget)
            Q_EMIT sendMessage(
                {this, PropertyId::Disulfide, rowNodeToObject(m_widget->getOptionsFromUI()), {}});
    });
    connect(m_widget.get(), &DisulfideWidget::edited, this, [this] { tellEdited(); });
}

DisulfideItem::~DisulfideItem() = default;

QWidget *DisulfideItem::widget()
{
    return m_widget.get();
}

bool DisulfideItem::validate(QStringList *warnings, QStringList *, QStringList *, WidgetValidationType) const
{
    return !m_widget || m_widget->validate(warnings);
}

void DisulfideItem::beginPresetLoading()
{
    if (m_widget)
        m_widget->beginPresetLoading();
}

void DisulfideItem::endPresetLoading()
{
    if (m_widget)
        m_widget->endPresetLoading();
}

void DisulfideItem::setProteinsContent(const QJsonObject &proteins)
{
    if (m_widget)
        m_widget->setProteinData(objectToRowNode(proteins));
}

Error DisulfideItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    m_widget->setOptionsToUI(rowNodeForType(PropertyId::Disulfide));
    return Error::NoError;
}

QJsonObject DisulfideItem::content() const
{
    if (!m_widget)
        return {};
    return contentWith({{PropertyId::Disulfide, rowNodeToObject(m_widget->getOptionsFromUI())}});
}

void DisulfideItem::messageReceived(const GridMessage &message)
{
    if (message.type == PropertyId::Proteins)
        setProteinsContent(message.value.toJsonObject());
}

} // namespace orv
