// How columns of tables are made. Applications register the three that GridItemManager::registerCreators()
// leaves out: SamplesProteinsTableItemCreator, IntactOptionsItemCreator and OligoOptionsItemCreator.
#pragma once

#include <orv/propertyeditor/grid/DisulfideItem.h>
#include <orv/propertyeditor/grid/GlycanOptionsItem.h>
#include <orv/propertyeditor/grid/GlycanTableItem.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/IsotopeTableItem.h>
#include <orv/propertyeditor/grid/MassTableItem.h>
#include <orv/propertyeditor/grid/OligoMassTableItem.h>
#include <orv/propertyeditor/grid/ProteinsTableItem.h>
#include <orv/propertyeditor/grid/SamplesProteinsTableItem.h>
#include <orv/propertyeditor/grid/SamplesViewItem.h>
#include <orv/propertyeditor/grid/SequenceDatabasesViewItem.h>
#include <orv/propertyeditor/grid/TableItems.h>

namespace orv {

template<class Item>
class BusItemCreator : public TalkingItemCreator
{
public:
    [[nodiscard]] IGridItem *createGridItemOn(GridCommunicationManager *bus) const override
    {
        return new Item(bus);
    }
};

/// Makes items that neither speak nor hear.
template<class Item>
class PlainItemCreator : public IGridItemCreator
{
public:
    [[nodiscard]] IGridItem *createGridItem() const override { return new Item; }
};

/// Makes columns of chains whose table stands in a property.
class ORV_PROPERTY_EDITOR_EXPORT ProteinsItemCreatorBase : public TalkingItemCreator
{
public:
    explicit ProteinsItemCreatorBase(PropertyId id)
        : m_id(id)
    {}
    [[nodiscard]] IGridItem *createGridItemOn(GridCommunicationManager *bus) const override;

private:
    PropertyId m_id;
};

/// Makes columns of options whose table stands in a property.
class ORV_PROPERTY_EDITOR_EXPORT OptionsItemBaseCreator : public IGridItemCreator
{
public:
    explicit OptionsItemBaseCreator(PropertyId id)
        : m_id(id)
    {}
    [[nodiscard]] IGridItem *createGridItem() const override;

private:
    PropertyId m_id;
};

/// Makes columns of one of the two.
template<class Base, PropertyId Id>
class PropertyItemCreator : public Base
{
public:
    PropertyItemCreator()
        : Base(Id)
    {}
};

using DisulfideItemCreator = BusItemCreator<DisulfideItem>;
using GlycanOptionsItemCreator = PlainItemCreator<GlycanOptionsItem>;
using GlycanTableItemCreator = BusItemCreator<GlycanTableItem>;
using IntactOptionsItemCreator = PropertyItemCreator<OptionsItemBaseCreator, PropertyId::IntactOptions>;
using IntactProteinsItemCreator = PropertyItemCreator<ProteinsItemCreatorBase, PropertyId::IntactProteins>;
using IsotopeTableItemCreator = PlainItemCreator<IsotopeTableItem>;
using MassTableItemCreator = BusItemCreator<MassTableItem>;
using OligoMassTableItemCreator = PlainItemCreator<OligoMassTableItem>;
using OligoOptionsItemCreator = PropertyItemCreator<OptionsItemBaseCreator, PropertyId::OligoOptions>;
using OligoProteinsItemCreator = PropertyItemCreator<ProteinsItemCreatorBase, PropertyId::OligoMolecules>;
using ProteinsTableItemCreator = BusItemCreator<ProteinsTableItem>;
using SamplesProteinsTableItemCreator = BusItemCreator<SamplesProteinsTableItem>;
using SamplesViewItemCreator = BusItemCreator<SamplesViewItem>;
using SequenceDatabasesViewItemCreator = PlainItemCreator<SequenceDatabasesViewItem>;

} // namespace orv
