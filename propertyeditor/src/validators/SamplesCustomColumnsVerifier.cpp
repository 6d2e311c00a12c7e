#include "orv/propertyeditor/validators/SamplesCustomColumnsVerifier.h"

#include "ValidatorText.h"

#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/SamplesProteinsColumns.h>
#include <orv/samples/CustomFieldsStringConstants.h>

#include <QSet>

namespace orv::PropertyEditor {

namespace {

Result<QStringList> columnsOf(const BaseItem &item)
{
    const QJsonObject entry = PropertyEditorJsonUtils::getPropertyWithType(
        item.toJson(PropertyConversionFlag::KeepPaths), PropertyId::SamplesProteins);
    Result<QJsonObject> value = JsonUtils::objectValue(entry, PropertyEditorStringConstants::VALUE_KEY);
    if (!value)
        return value.ecatch();
    return SamplesProteinsColumns::columnNames(*value, CustomFieldsStringConstants::SAMPLE_TYPE);
}

QStringList columnsOfTables(const Content &content)
{
    QStringList names;
    for (const BaseItem *item : content.findAllItems(BaseItemType::SamplesProteins)) {
        Result<QStringList> columns = columnsOf(*item);
        if (columns)
            names += *columns;
        else
            qCWarning(propertyEditorLog).noquote()
                << "Cannot read the columns of samples and proteins:" << columns.ecatch().errorMessage();
    }
    return names;
}

/// Those that stand more than once, each once.
QStringList repeated(const QStringList &names)
{
    QSet<QString> seen;
    QStringList found;
    for (const QString &name : names) {
        if (seen.contains(name))
            found.append(name);
        seen.insert(name);
    }
    found.removeDuplicates();
    return found;
}

} // namespace

Error SamplesCustomColumnsVerifier::verifyCustomColumns(Content *content)
{
    if (!content)
        return {ErrorCode::InvalidContent, ValidatorText::tr("Content is empty")};
    const QStringList names =
        repeated(content->extendedMetadataInfo().columnNames() + columnsOfTables(*content));
    if (names.isEmpty())
        return Error::NoError;
    return Error(ErrorCode::MalformedStructure,
                 ValidatorText::tr(
                     "Metadata mappings and Samples-Proteins table contain %1: %2. This may lead to "
                     "project creation failure.")
                     .arg(names.size() == 1 ? ValidatorText::tr("a duplicate column name")
                                            : ValidatorText::tr("duplicate column names"),
                          names.join(QLatin1Char(','))))
        .addDetail(ValidatorText::tr("Give each mapped attribute and each column a name of its own."));
}

} // namespace orv::PropertyEditor
