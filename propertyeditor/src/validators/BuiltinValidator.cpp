#include "ValidatorText.h"

#include <KPropertySet>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/BuiltinValidator.h>
#include <orv/propertyeditor/validators/Finding.h>

namespace orv::PropertyEditor {

namespace {

QString hintFor(PropertyId id, const KeyValueItem &item, const QString &key)
{
    return validatorText("Enter %1.")
        .arg(PropertyText::legalValues(id, item.propertySet()->property(key.toUtf8())));
}

void noteAll(const QList<QString> &messages, PropertyId id, const KeyValueItem &item, const QString &key)
{
    const QString rule = PropertiesCsvReader::instance().verificationFunction(id).trimmed().toLower();
    for (const QString &message : messages)
        Findings::note(message, {&item, id, {}}, hintFor(id, item, key), rule);
}

} // namespace

bool BuiltinValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                                QList<QString> *warnings, QList<QString> *errors) const
{
    bool isGood = true;
    for (const BaseItem *item : content.findAllItems(content.allItems())) {
        if (const auto *settings = qobject_cast<const KeyValueItem *>(item))
            isGood = checkKeyValueItem(settings, content.contentMode(), warnings, errors) && isGood;
    }
    return isGood;
}

bool BuiltinValidator::checkKeyValueItem(const KeyValueItem *item, PropertyEditorContent::ContentMode mode,
                                         QList<QString> *warnings, QList<QString> *errors) const
{
    const qsizetype errorsBefore = errors->size();
    const QMap<PropertyId, PropertyFeatures> &catalogue = *PropertiesNames::names();
    for (const QString &key : item->keys()) {
        const auto features = catalogue.constFind(PropertiesNames::findPropertyForName(key));
        if (features == catalogue.cend() || !features->verification)
            continue;
        const PropertyId id = features.key();
        const QVariant value = item->value(key);
        qCDebug(propertyEditorLog) << "Calling builtin validator for" << int(id) << value;
        const qsizetype errorsOfOthers = errors->size();
        const qsizetype warningsOfOthers = warnings->size();
        features->verification(id, value, mode, errors, warnings);
        noteAll(errors->mid(errorsOfOthers) + warnings->mid(warningsOfOthers), id, *item, key);
    }
    return errors->size() == errorsBefore;
}

} // namespace orv::PropertyEditor
