#include "orv/propertyeditor/validators/BuiltinValidator.h"

#include "ValidatorText.h"

#include <KPropertySet>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

namespace {

QString hintFor(PropertyId id, const KeyValueItem &item, const QString &key)
{
    return ValidatorText::tr("Enter %1.")
        .arg(PropertyText::legalValues(id, item.propertySet()->property(key.toUtf8())));
}

/// Tells what the rule of a setting says of its value.
void checkSetting(CheckRun &run, const KeyValueItem &item, const QString &key, PropertyId id,
                  const VerificationFunction &rule)
{
    const QVariant value = item.value(key);
    qCDebug(propertyEditorLog) << "Calling builtin validator for" << int(id) << value;
    QList<QString> errors;
    QList<QString> warnings;
    rule(id, value, run.content().contentMode(), &errors, &warnings);
    if (errors.isEmpty() && warnings.isEmpty())
        return;
    Finding finding{Finding::Level::Error,
                    PropertiesCsvReader::instance().verificationFunction(id).trimmed().toLower(),
                    {},
                    {&item, id, {}},
                    hintFor(id, item, key)};
    for (const QString &error : std::as_const(errors)) {
        finding.message = error;
        run.add(finding);
    }
    finding.level = Finding::Level::Warning;
    for (const QString &warning : std::as_const(warnings)) {
        finding.message = warning;
        run.add(finding);
    }
}

void checkKeyValueItem(CheckRun &run, const KeyValueItem &item)
{
    const QMap<PropertyId, PropertyFeatures> &catalogue = *PropertiesNames::names();
    for (const QString &key : item.keys()) {
        const auto features = catalogue.constFind(PropertiesNames::findPropertyForName(key));
        if (features != catalogue.cend() && features->verification)
            checkSetting(run, item, key, features.key(), features->verification);
    }
}

} // namespace

void BuiltinValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    for (const BaseItem *item : content.findAllItems(content.allItems())) {
        if (const auto *settings = qobject_cast<const KeyValueItem *>(item))
            checkKeyValueItem(run, *settings);
    }
}

} // namespace orv::PropertyEditor
