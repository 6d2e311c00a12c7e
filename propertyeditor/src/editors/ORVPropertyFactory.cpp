#include "orv/propertyeditor/editors/ORVPropertyFactory.h"

#include <KPropertyWidgetsPluginManager.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/editors/OrvGenericDelegate.h>

namespace orv {

ORVPropertyFactory::ORVPropertyFactory()
{
    addEditor(PropertiesTraits::ObjectType, new OrvGenericDelegate);
}

ORVPropertyFactory::~ORVPropertyFactory() = default;

void ORVPropertyFactory::init()
{
    static bool isRegistered = false;
    if (isRegistered)
        return;
    isRegistered = true;
    KPropertyWidgetsPluginManager::self()->registerFactory(new ORVPropertyFactory);
}

} // namespace orv
