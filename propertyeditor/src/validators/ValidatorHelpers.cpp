#include "ValidatorHelpers.h"

#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

namespace orv::PropertyEditor {

void report(QList<QString> *list, const QString &text, const FindingPlace &place, const QString &hint)
{
    Findings::note(text, place, hint);
    list->append(text);
}

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
    return validatorText("Add files to the table of samples.");
}

} // namespace orv::PropertyEditor
