#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

#include <QJsonDocument>

namespace orv {

using PropertyEditor::BaseItem;
using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;

void PropertyEditorUtils::updateGlycanDatabasesToAbsolute(KeyValueItem *item, const QUrl &baseUrl)
{
    if (!item)
        return;
    for (const PropertyId id : propertiesWithGlycanDatabases()) {
        if (!item->contains(id))
            continue;
        QJsonObject object = PropertyEditorJsonUtils::variantToObject(item->value(id));
        updateGlycanDatabaseToAbsolute(baseUrl, &object);
        item->setValue(id, QJsonDocument(object).toJson());
    }
}

void PropertyEditorUtils::updateGlycanDatabasesToAbsolute(Content *content, const QUrl &baseUrl)
{
    if (!content)
        return;
    for (BaseItem *item : content->findAllItems(content->allItems())) {
        if (auto *settings = qobject_cast<KeyValueItem *>(item))
            updateGlycanDatabasesToAbsolute(settings, baseUrl);
    }
}

} // namespace orv
