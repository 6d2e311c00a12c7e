#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

#include <QSet>

namespace orv {

using namespace PropertyEditor;

namespace {

void removeItems(ItemSubGroup *column, const QSet<BaseItemType> &kept)
{
    for (int i = column->count() - 1; i >= 0; --i) {
        if (!kept.contains(column->item(i)->type()))
            column->removeItem(i);
    }
}

void removeItems(ItemGroup *tab, const QSet<BaseItemType> &kept)
{
    for (int i = tab->count() - 1; i >= 0; --i) {
        removeItems(tab->subGroup(i), kept);
        if (tab->subGroup(i)->isEmpty())
            tab->removeSubGroup(i);
    }
}

void removeItems(Content *content, const QSet<BaseItemType> &kept)
{
    for (int i = content->count() - 1; i >= 0; --i) {
        removeItems(content->group(i), kept);
        if (content->group(i)->isEmpty())
            content->removeGroup(i);
    }
}

Error load(const PropertyEditorContent &document, Content *content)
{
    Result<QJsonObject> json = JsonUtils::objectFromJson(document.toJson());
    if (!json)
        return json.ecatch();
    ORV_RETURN_IF_ERROR(content->assignFromJson(*json));
    return Error::NoError;
}

} // namespace

PropertyEditorContent PropertyEditorUtils::adjustContentToApplication(const PropertyEditorContent &content,
                                                                      ApplicationType app)
{
    if (app == ApplicationType::Mirel || app == ApplicationType::Talvane)
        return content;
    Content tree;
    if (const Error error = load(content, &tree)) {
        qCWarning(propertyEditorLog).noquote()
            << "Cannot adjust the workflow to an application:"
            << (error.errorMessages() + error.details()).join(QLatin1Char(' '));
        return {};
    }
    removeItems(&tree, CellTypes::keptBy(app));
    return PropertyEditorContent(tree.toJson(PropertyConversionFlag::KeepPaths));
}

} // namespace orv
