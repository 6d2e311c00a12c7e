#pragma once

#include <orv/propertyeditor/editors/IGenericEditorObject.h>

namespace orv {

/// A number with its unit: {"value": 10.5, "unit": "ppm"}.
class ORV_PROPERTY_EDITOR_EXPORT ValueUnitEditorObject : public IGenericEditorObject
{
public:
    /// With two decimals, as people of the default locale write them.
    [[nodiscard]] QString toString(const QJsonObject &value) const override;
    /// Number and unit apart by a blank; either decimal sign.
    [[nodiscard]] QJsonObject fromString(const QString &text) const override;
    bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const override;
};

} // namespace orv
