#include "orv/propertyeditor/grid/MassTableItem.h"

#include "MassCell.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/samples/SamplesInput.h>
#include <orv/widgets/MassTableWidget.h>

#include <QCoreApplication>
#include <QJsonArray>

namespace orv {

using namespace PropertyEditorJsonUtils;

Error showMassCell(MassTableWidget *widget, const RowNode &masses, const RowNode &tolerance,
                   const QJsonObject &cell)
{
    if (masses.data.isEmpty() || tolerance.data.isEmpty()) {
        qCDebug(propertyEditorLog) << "No properties in json content" << cell;
        return Error(
            ErrorCode::MalformedStructure,
            QCoreApplication::translate("MassTableItem", "Failed to load data into the mass table widget."));
    }
    widget->setMasses(MassUtils::deltaMassesFromRowNode(masses));
    widget->setMassTolerance(tolerance);
    return Error::NoError;
}

MassTableItem::MassTableItem(GridCommunicationManager *manager)
    : GridCommunicative(manager)
    , IGridItem({PropertyId::MassTable, PropertyId::MatchTolerance})
    , m_widget(new MassTableWidget)
{
    m_widget->hideHeader();
    connect(m_widget.get(), &MassTableWidget::edited, this, [this] { tellEdited(); });
    Q_EMIT sendMessage({this, PropertyId::MassTable, {}, {}});
}

MassTableItem::~MassTableItem() = default;

QWidget *MassTableItem::widget()
{
    return m_widget.get();
}

Error MassTableItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    return showMassCell(m_widget.get(), rowNodeForType(PropertyId::MassTable),
                        rowNodeForType(PropertyId::MatchTolerance), storedContent());
}

QJsonObject MassTableItem::content() const
{
    if (!m_widget)
        return storedContent();
    RowNode masses = MassUtils::deltaMassesToRowNode(m_widget->masses());
    // The id is for the widget alone, also where a cell has it.
    masses.removeColumn(kId);
    const QJsonObject table = rowNodeToObject(masses);
    const QJsonObject cell =
        contentWith({{PropertyId::MassTable, table},
                     {PropertyId::MatchTolerance, rowNodeToObject(m_widget->massTolerance())}});
    const QJsonObject held = propValueObject(getPropertyWithType(cell, PropertyId::MassTable));
    return held.value(PropertyEditorStringConstants::DATA).toArray().contains(kId)
               ? updatePropertyValue(cell, PropertyId::MassTable, table)
               : cell;
}

void MassTableItem::messageReceived(const GridMessage &message)
{
    if (message.type == PropertyId::SamplesTable && m_widget)
        m_widget->updateSamplesIds(message.value.value<QList<SamplesInput::Entry>>());
}

} // namespace orv
