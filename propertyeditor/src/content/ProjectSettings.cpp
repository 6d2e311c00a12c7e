#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

namespace orv {

QVariant PropertyEditorUtils::getValueFromProject(const PropertyEditor::KeyValueItem *item, PropertyId id,
                                                  const QVariant &defaultValue)
{
    const QString key = PropertiesNames::internalNameForType(id);
    return item->contains(key) ? item->value(key) : defaultValue;
}

std::unique_ptr<CustomSettings>
PropertyEditorUtils::getAdvancedConfigurationFromProject(const PropertyEditor::KeyValueItem *item)
{
    auto settings = std::make_unique<CustomSettings>();
    const QString text = getValueFromProject(item, PropertyId::AdvancedConfiguration, {}).toString();
    if (!text.isEmpty()) {
        for (const QString &warning : settings->setupValues(text, CustomSettings::Format::Sections))
            qCWarning(propertyEditorLog).noquote() << warning;
    }
    return settings;
}

} // namespace orv
