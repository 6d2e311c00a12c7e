#include "orv/propertyeditor/editors/ORVPropertyFactory.h"

#include <KPropertyWidgetsPluginManager.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/editors/CheckableListDelegate.h>
#include <orv/propertyeditor/editors/MirelResourceReferenceDelegate.h>
#include <orv/propertyeditor/editors/OrvGenericDelegate.h>
#include <orv/propertyeditor/editors/TalvaneResourceReferenceDelegate.h>
#include <orv/widgets/CoreMainWindow.h>

namespace orv {

namespace {

bool worksOnTheServer()
{
    const CoreMainWindow *window = CoreMainWindow::getMainWindow();
    return window && window->appInfo().isApplication(ApplicationType::Talvane);
}

ResourceReferenceDelegateBase *newReferenceDelegate()
{
    if (worksOnTheServer())
        return new TalvaneResourceReferenceDelegate;
    return new MirelResourceReferenceDelegate;
}

} // namespace

ORVPropertyFactory::ORVPropertyFactory()
{
    addEditor(PropertiesTraits::ObjectType, new OrvGenericDelegate);
    addEditor(PropertiesTraits::ResourceReferenceType, newReferenceDelegate());
    addEditor(PropertiesTraits::CheckableListType, new CheckableListDelegate);
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
