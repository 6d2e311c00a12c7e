#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/ObsoleteCustomSettingsChecker.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/propertyeditor/validators/ObsoleteSettingsValidator.h>

#include <QMap>

namespace orv::PropertyEditor {

namespace {

const QMap<BaseItemType, ApplicationType> &applications()
{
    static const QMap<BaseItemType, ApplicationType> types{
        {BaseItemType::Dravik, ApplicationType::Dravik},
        {BaseItemType::Intact, ApplicationType::Intact},
        {BaseItemType::Oligo, ApplicationType::Oligo},
        {BaseItemType::Senthia, ApplicationType::Senthia},
        {BaseItemType::Trenq, ApplicationType::Trenq},
        {BaseItemType::Ostrale, ApplicationType::Ostrale},
        {BaseItemType::Karvon, ApplicationType::KarvonSearch},
        {BaseItemType::Preview, ApplicationType::Preview},
        {BaseItemType::TrenqPreview, ApplicationType::Preview},
    };
    return types;
}

} // namespace

void ObsoleteSettingsValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    const QList<BaseItemType> types = applications().keys();
    for (const ColumnSettings &found :
         settingsInColumns(content, QSet<BaseItemType>(types.begin(), types.end()))) {
        if (!found.item->contains(PropertyId::AdvancedConfiguration))
            continue;
        const ApplicationType application = applications().value(found.columnType);
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
