#include "orv/propertyeditor/grid/ProteinsItemBase.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/SamplesProteinsTableItem.h>
#include <orv/samples/SamplesInput.h>
#include <orv/widgets/ProteinInputWidgetBase.h>

namespace orv {

ProteinsItemBase::ProteinsItemBase(PropertyId id, GridCommunicationManager *manager)
    : GridCommunicative(manager)
    , IGridItem({id})
    , m_widget(new ProteinInputWidgetBase)
    , m_id(id)
{
    connect(m_widget.get(), &ProteinInputWidgetBase::edited, this, [this] { tellEdited(); });
    Q_EMIT sendMessage({this, m_id, {}, {}});
}

ProteinsItemBase::~ProteinsItemBase() = default;

QWidget *ProteinsItemBase::widget()
{
    return m_widget.get();
}

bool ProteinsItemBase::validate(QStringList *warnings, QStringList *errors, QStringList *,
                                WidgetValidationType type) const
{
    return type == WidgetValidationType::SaveWorkflow || !m_widget || m_widget->validate(warnings, errors);
}

Error ProteinsItemBase::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    const RowNode root = rowNodeForType(m_id);
    m_widget->setProteinDataSource(ProteinInputWidgetBase::proteinDataSource(root));
    m_widget->addFromRowNode(root);
    return Error::NoError;
}

QJsonObject ProteinsItemBase::content() const
{
    if (!m_widget)
        return {};
    return contentWith({{m_id, PropertyEditorJsonUtils::rowNodeToObject(m_widget->getOptionsFromUI())}});
}

void ProteinsItemBase::messageReceived(const GridMessage &message)
{
    if (!m_widget)
        return;
    if (message.type == PropertyId::SamplesTable) {
        m_widget->updateSamplesIds(message.value.value<QList<SamplesInput::Entry>>());
    } else if (message.type == PropertyId::SamplesProteins) {
        const auto imported = message.value.value<SamplesProteinsTableItem::InternalMessage>();
        if (!imported.proteins)
            return;
        m_widget->setProteinDataSource(ProteinInputWidgetBase::Csv);
        m_widget->loadFromCsv(PropertyEditorJsonUtils::objectToRowNode(*imported.proteins));
        tellEdited();
    }
}

} // namespace orv
