#include "orv/propertyeditor/editors/OrvGenericEditorObjectManager.h"

#include <orv/propertyeditor/editors/DefaultEditorObjects.h>

namespace orv {

IGenericEditorObject::~IGenericEditorObject() = default;

OrvGenericEditorObjectManager::OrvGenericEditorObjectManager()
{
    registerDefaultEditorObjects(this);
}

OrvGenericEditorObjectManager::~OrvGenericEditorObjectManager() = default;

OrvGenericEditorObjectManager *OrvGenericEditorObjectManager::instance()
{
    static OrvGenericEditorObjectManager manager;
    return &manager;
}

void OrvGenericEditorObjectManager::registerEditor(PropertySetCreator::Editor editor,
                                                   IGenericEditorObject *object)
{
    m_objects.insert(editor, QSharedPointer<IGenericEditorObject>(object));
}

QSharedPointer<IGenericEditorObject>
OrvGenericEditorObjectManager::getGenericEditorObject(PropertySetCreator::Editor editor) const
{
    return m_objects.value(editor);
}

} // namespace orv
