#include "ValidatorHelpers.h"

#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

namespace orv::PropertyEditor {

QList<ColumnSettings> settingsInColumns(const Content &content, const QSet<BaseItemType> &types)
{
    QList<ColumnSettings> found;
    for (const ItemGroup *tab : content.groups()) {
        for (const ItemSubGroup *column : tab->subGroups()) {
            if (!types.contains(column->type()))
                continue;
            for (const BaseItem *item : column->items()) {
                if (const auto *settings = qobject_cast<const KeyValueItem *>(item))
                    found.append({column->type(), settings});
            }
        }
    }
    return found;
}

QString addSamplesHint()
{
    return ValidatorText::tr("Add files to the table of samples.");
}

} // namespace orv::PropertyEditor
