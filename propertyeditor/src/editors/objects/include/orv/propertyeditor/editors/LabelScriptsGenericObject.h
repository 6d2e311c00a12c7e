#pragma once

#include <orv/propertyeditor/editors/IGenericEditorObject.h>

#include <QLatin1String>

namespace orv {

/// A script that labels a plot: an object with the script under its one key.
class ORV_PROPERTY_EDITOR_EXPORT LabelScriptsGenericObject : public IGenericEditorObject
{
public:
    enum class Plot
    {
        Trace = 0,
        DeconvolvedMass = 1,
    };

    explicit LabelScriptsGenericObject(Plot plot = Plot::Trace);

    [[nodiscard]] QString toString(const QJsonObject &value) const override;
    [[nodiscard]] QJsonObject fromString(const QString &text) const override;
    /// Scripts are loaded and saved as files in the folder "labelscripts" beside the program; where that
    /// can't be made, anywhere.
    bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const override;

private:
    const QLatin1String m_key;
    const QString m_title;
};

} // namespace orv
