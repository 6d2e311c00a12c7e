#include "orv/propertyeditor/grid/SamplesViewItem.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/SamplesProteinsTableItem.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

namespace orv {

using namespace PropertyEditorJsonUtils;

SamplesViewItem::SamplesViewItem(GridCommunicationManager *manager)
    : SamplesViewItem(manager, new SamplesAndTracesInputWidget)
{}

SamplesViewItem::SamplesViewItem(GridCommunicationManager *manager, SamplesAndTracesInputWidget *widget)
    : GridCommunicative(manager)
    , IGridItem({PropertyId::SamplesTable})
    , m_widget(widget)
{
    connect(m_widget.get(), &SamplesAndTracesInputWidget::samplesChanged, this, &SamplesViewItem::announce);
    connect(m_widget.get(), &SamplesAndTracesInputWidget::edited, this, [this] { tellEdited(); });
}

SamplesViewItem::~SamplesViewItem() = default;

void SamplesViewItem::announce(const QList<SamplesInput::Entry> &)
{
    if (!m_widget)
        return;
    const QList<SamplesInput::Entry> samples = m_widget->samplesInput();
    const GridMessage message{this, PropertyId::SamplesTable, QVariant::fromValue(samples),
                              QVariant::fromValue(m_sent)};
    m_sent = samples;
    Q_EMIT sendMessage(message);
}

QWidget *SamplesViewItem::widget()
{
    return m_widget.get();
}

bool SamplesViewItem::validate(QStringList *warnings, QStringList *errors, QStringList *details,
                               WidgetValidationType type) const
{
    return type == WidgetValidationType::SaveWorkflow || !m_widget ||
           m_widget->validate(warnings, errors, details);
}

Error SamplesViewItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    const QJsonObject entry = getPropertyWithType(storedContent(), PropertyId::SamplesTable);
    return m_widget->setFromJsonContent(propValueObject(entry));
}

QJsonObject SamplesViewItem::content() const
{
    if (!m_widget)
        return {};
    return contentWith({{PropertyId::SamplesTable, m_widget->jsonContent()}});
}

void SamplesViewItem::messageReceived(const GridMessage &message)
{
    if (!m_widget)
        return;
    // A column of oligonucleotides doesn't ask for the samples.
    if (message.type == PropertyId::IntactProteins || message.type == PropertyId::MassTable) {
        Q_EMIT m_widget->samplesChanged(m_widget->samplesInput());
    } else if (message.type == PropertyId::SamplesProteins) {
        const auto imported = message.value.value<SamplesProteinsTableItem::InternalMessage>();
        if (imported.newSampleFiles)
            m_widget->addNewSampleFiles(*imported.newSampleFiles);
    }
}

} // namespace orv
