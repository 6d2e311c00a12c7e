#include "ValueUnitEditorObject.h"

#include <orv/propertyeditor/editors/DefaultEditorObjects.h>
#include <orv/propertyeditor/editors/OrvGenericEditorObjectManager.h>

namespace orv {

void registerDefaultEditorObjects(OrvGenericEditorObjectManager *manager)
{
    using Editor = PropertySetCreator::Editor;
    manager->registerEditor(Editor::ValueUnit, new ValueUnitEditorObject);
}

} // namespace orv
