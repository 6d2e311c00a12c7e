#include "orv/propertyeditor/grid/GridItemManager.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/grid/GridCommunicationManager.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
#include <orv/propertyeditor/grid/KPropertyViewItem.h>

#include <map>

namespace orv {

namespace {

/// Columns of settings, in the order in which they register.
constexpr BaseItemType kSettingsTypes[] = {
    BaseItemType::Unknown, BaseItemType::Senthia,        BaseItemType::Dravik, BaseItemType::Karvon,
    BaseItemType::Preview, BaseItemType::TrenqPreview,   BaseItemType::Intact, BaseItemType::Oligo,
    BaseItemType::Ostrale, BaseItemType::MultiDocReport, BaseItemType::Trenq,  BaseItemType::CaldrinDIA,
};

GridItemManager *&customManager()
{
    static GridItemManager *manager = nullptr;
    return manager;
}

} // namespace

class GridItemManager::Private
{
public:
    std::map<BaseItemType, QSharedPointer<IGridItemCreator>> creators;
    GridCommunicationManager communication;
};

IGridItemCreator::~IGridItemCreator() = default;

IGridItem *IGridItemCreator::createGridItemOn(GridCommunicationManager *) const
{
    return createGridItem();
}

GridItemManager::GridItemManager()
    : d(new Private)
{
    for (BaseItemType type : kSettingsTypes)
        registerCreator(type, new KPropertyItemCreator);
}

GridItemManager::~GridItemManager() = default;

GridItemManager *GridItemManager::instance()
{
    if (customManager())
        return customManager();
    static GridItemManager manager;
    return &manager;
}

void GridItemManager::setCustomManager(GridItemManager *manager)
{
    customManager() = manager;
}

void GridItemManager::registerCreator(BaseItemType type, IGridItemCreator *creator)
{
    d->creators[type] = QSharedPointer<IGridItemCreator>(creator);
}

IGridItem *GridItemManager::createItem(BaseItemType type, GridCommunicationManager *bus) const
{
    const auto create = [bus](const IGridItemCreator &creator) {
        return bus ? creator.createGridItemOn(bus) : creator.createGridItem();
    };
    const auto row = d->creators.find(type);
    if (row == d->creators.end() || !row->second) {
        qCDebug(propertyEditorLog) << "Creator not registered for type " << int(type);
        const auto settings = d->creators.find(BaseItemType::Unknown);
        return settings == d->creators.end() || !settings->second ? nullptr : create(*settings->second);
    }
    IGridItem *item = create(*row->second);
    if (item)
        item->setType(type);
    return item;
}

GridCommunicationManager *GridItemManager::communicationManager() const
{
    return &d->communication;
}

} // namespace orv
