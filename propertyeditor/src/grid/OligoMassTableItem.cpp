#include "orv/propertyeditor/grid/OligoMassTableItem.h"

#include "MassCell.h"

#include <orv/chemistry/MassTolerances.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/chemistry/OligoImpurities.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/widgets/OligoMassTableWidget.h>
#include <orv/widgets/TolerancesWidget.h>

namespace orv {

using namespace PropertyEditorJsonUtils;

OligoMassTableItem::OligoMassTableItem()
    : IGridItem({PropertyId::MassTable, PropertyId::MatchTolerance, PropertyId::Tolerances,
                 PropertyId::OligoImpurities})
    , m_widget(new OligoMassTableWidget)
{
    m_widget->hideHeader();
    const auto tell = [this] { tellEdited(); };
    QObject::connect(m_widget.get(), &OligoMassTableWidget::edited, edits(), tell);
    QObject::connect(m_widget->tolerancesWidget(), &TolerancesWidget::edited, edits(), tell);
}

OligoMassTableItem::~OligoMassTableItem() = default;

QWidget *OligoMassTableItem::widget()
{
    return m_widget.get();
}

Error OligoMassTableItem::setContentInternal()
{
    if (!m_widget)
        return notInitialized();
    const auto valueOf = [this](PropertyId id) {
        return propValueObject(getPropertyWithType(storedContent(), id));
    };
    Result<MassTolerances> tolerances = MassTolerances::fromJson(valueOf(PropertyId::Tolerances));
    if (tolerances.hasError())
        return tolerances.ecatch();
    Result<OligoImpurities> impurities = OligoImpurities::fromJson(valueOf(PropertyId::OligoImpurities));
    if (impurities.hasError())
        return impurities.ecatch();
    ORV_RETURN_IF_ERROR(showMassCell(m_widget.get(), rowNodeForType(PropertyId::MassTable),
                                     rowNodeForType(PropertyId::MatchTolerance), storedContent()));
    m_widget->tolerancesWidget()->setData(*tolerances);
    m_widget->setOligoImpurities(*impurities);
    return Error::NoError;
}

QJsonObject OligoMassTableItem::content() const
{
    if (!m_widget)
        return {};
    // Unlike a column of masses, this one keeps the ids.
    return contentWith(
        {{PropertyId::MassTable, rowNodeToObject(MassUtils::deltaMassesToRowNode(m_widget->masses()))},
         {PropertyId::MatchTolerance, rowNodeToObject(m_widget->massTolerance())},
         {PropertyId::Tolerances, m_widget->tolerancesWidget()->data().toJson()},
         {PropertyId::OligoImpurities, m_widget->oligoImpurities().toJson()}});
}

} // namespace orv
