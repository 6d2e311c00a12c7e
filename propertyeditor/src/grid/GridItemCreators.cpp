#include "orv/propertyeditor/grid/GridItemCreators.h"

namespace orv {

IGridItem *TalkingItemCreator::createGridItem() const
{
    return createGridItemOn(GridItemManager::instance()->communicationManager());
}

IGridItem *ProteinsItemCreatorBase::createGridItemOn(GridCommunicationManager *bus) const
{
    if (m_id == PropertyId::OligoMolecules)
        return new OligoProteinsItem(bus);
    return new IntactProteinsItem(bus);
}

IGridItem *OptionsItemBaseCreator::createGridItem() const
{
    return new OptionsItemBase(m_id);
}

void GridItemManager::registerCreators()
{
    registerCreator(BaseItemType::Samples, new SamplesViewItemCreator);
    registerCreator(BaseItemType::Proteins, new ProteinsTableItemCreator);
    registerCreator(BaseItemType::Isotope, new IsotopeTableItemCreator);
    registerCreator(BaseItemType::Disulfide, new DisulfideItemCreator);
    registerCreator(BaseItemType::DetachedGlycans, new GlycanTableItemCreator);
    registerCreator(BaseItemType::GlycanOptions, new GlycanOptionsItemCreator);
    registerCreator(BaseItemType::Masses, new MassTableItemCreator);
    registerCreator(BaseItemType::IntactProteins, new IntactProteinsItemCreator);
    registerCreator(BaseItemType::OligoMolecules, new OligoProteinsItemCreator);
    registerCreator(BaseItemType::OligoMasses, new OligoMassTableItemCreator);
    registerCreator(BaseItemType::Database, new SequenceDatabasesViewItemCreator);
}

} // namespace orv
