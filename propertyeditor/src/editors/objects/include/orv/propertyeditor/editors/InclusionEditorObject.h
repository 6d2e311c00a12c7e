#pragma once

#include <orv/propertyeditor/editors/IGenericEditorObject.h>

namespace orv {

/// The precursors to which a search is limited, in the form of InclusionList.
class ORV_PROPERTY_EDITOR_EXPORT InclusionEditorObject : public IGenericEditorObject
{
public:
    [[nodiscard]] QString toString(const QJsonObject &value) const override;
    /// Of the text that toString() gives, or of JSON text.
    [[nodiscard]] QJsonObject fromString(const QString &text) const override;
    /// What can't be read is told in a box, and the dialog opens empty.
    bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const override;
};

} // namespace orv
