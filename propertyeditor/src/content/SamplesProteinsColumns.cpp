#include "orv/propertyeditor/content/SamplesProteinsColumns.h"

#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/samples/CustomFieldsStringConstants.h>

#include <QJsonArray>

namespace orv::PropertyEditor::SamplesProteinsColumns {

using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kHeader("header");
constexpr qsizetype kEntries = 3;

Error malformed(const QString &message)
{
    return {ErrorCode::MalformedStructure, message};
}

Result<qsizetype> indexOf(const QString &name, const QJsonArray &entries)
{
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries.at(i).toString() == name)
            return i;
    }
    return malformed(
        QStringLiteral("Could not find the index for the name %1 in the header data list").arg(name));
}

} // namespace

Result<QStringList> columnNames(const QJsonObject &value, const QString &type)
{
    using namespace CustomFieldsStringConstants;
    Result<QJsonObject> header = JsonUtils::objectValue(value, kHeader);
    if (!header)
        return header.ecatch();
    Result<QJsonArray> entries = JsonUtils::arrayValue(*header, DATA);
    if (!entries)
        return entries.ecatch();
    if (entries->size() != kEntries)
        return malformed(QStringLiteral("The size of the header data list is incorrect."));
    Result<qsizetype> nameIndex = indexOf(ATTRIBUTES_COLUMN_NAME, *entries);
    if (!nameIndex)
        return nameIndex.ecatch();
    Result<qsizetype> typeIndex = indexOf(ATTRIBUTES_COLUMN_TYPE, *entries);
    if (!typeIndex)
        return typeIndex.ecatch();

    QStringList names;
    const QJsonArray rows = header->value(CHILDREN).toArray();
    for (const auto row : rows) {
        const QJsonArray cells = row.toObject().value(DATA).toArray();
        if (cells.size() != kEntries)
            return malformed(QStringLiteral("The size of the child data list is incorrect."));
        if (cells.at(*typeIndex).toString() == type)
            names.append(cells.at(*nameIndex).toString());
    }
    return names;
}

} // namespace orv::PropertyEditor::SamplesProteinsColumns
