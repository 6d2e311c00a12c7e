#pragma once

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/editors/IGenericEditorObject.h>
#include <orv/widgets/Export.h>

#include <QHash>
#include <QSharedPointer>

namespace orv {

/// Which object edits which kind of structured value. Applications add those of their own:
/// \code
///     OrvGenericEditorObjectManager::instance()->registerEditor(Editor::IntactOptions, new MyObject);
/// \endcode
/// GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT OrvGenericEditorObjectManager
{
public:
    Q_DISABLE_COPY_MOVE(OrvGenericEditorObjectManager)

    [[nodiscard]] static OrvGenericEditorObjectManager *instance();

    /// Owned from here, also where it replaces the object that the kind has.
    void registerEditor(PropertySetCreator::Editor editor, IGenericEditorObject *object);
    /// Null for a kind that nobody registered.
    [[nodiscard]] QSharedPointer<IGenericEditorObject>
    getGenericEditorObject(PropertySetCreator::Editor editor) const;

private:
    OrvGenericEditorObjectManager();
    ~OrvGenericEditorObjectManager();

    QHash<PropertySetCreator::Editor, QSharedPointer<IGenericEditorObject>> m_objects;
};

} // namespace orv
