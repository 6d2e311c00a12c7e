#include "orv/propertyeditor/validators/ObsoleteSettingsValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/ObsoleteCustomSettingsChecker.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

void ObsoleteSettingsValidator::check(CheckRun &run) const
{
    for (const ColumnSettings &found : settingsInColumns(run.content(), CellTypes::projects())) {
        const ApplicationType application = CellTypes::find(found.columnType)->expertSettings;
        if (application == ApplicationType::None || !found.item->contains(PropertyId::AdvancedConfiguration))
            continue;
        const QString text = found.item->value(PropertyId::AdvancedConfiguration).toString();
        QString message;
        if (!ObsoleteCustomSettingsChecker::hasObsoleteSettings(application, text, &message, true))
            continue;
        run.error(message, {found.item, PropertyId::AdvancedConfiguration, {}},
                  ObsoleteCustomSettingsChecker::remedy(application, text, true));
        return;
    }
}

} // namespace orv::PropertyEditor
