#pragma once

#include <orv/propertyeditor/editors/IGenericEditorObject.h>

namespace orv {

class GridItemDialog;

/// What the kinds of values that columns of tables show have in common.
class ORV_PROPERTY_EDITOR_EXPORT GridItemEditorObject : public IGenericEditorObject
{
public:
    /// Of JSON text: nobody types tables.
    [[nodiscard]] QJsonObject fromString(const QString &text) const override;
    /// Opens above the main window, else above the window of \a parent.
    bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const override;

protected:
    /// Owned by the caller.
    [[nodiscard]] virtual GridItemDialog *createDialog(QWidget *parent) const = 0;
};

} // namespace orv
