#include "orv/propertyeditor/window/PropertyEditorWindowJsonFile.h"

#include <KProperty.h>
#include <orv/core/FileUtilsGeneric.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/CellStamps.h>
#include <orv/propertyeditor/content/DocumentSaving.h>
#include <orv/propertyeditor/content/DocumentStructure.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/validators/WorkflowFile.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::WorkflowFile;

PropertyEditorWindowJsonFile::PropertyEditorWindowJsonFile(const QString &path)
    : m_path(std::make_unique<const QString>(path))
{}

PropertyEditorWindowJsonFile::~PropertyEditorWindowJsonFile() = default;

bool PropertyEditorWindowJsonFile::read(QJsonObject *object)
{
    m_error = Error::NoError;
    QStringList reasons;
    if (FileUtilsGeneric::readJsonObjectFromFile(*m_path, object, &reasons))
        return true;
    for (const QString &reason : std::as_const(reasons))
        qCCritical(propertyEditorLog).noquote() << reason;
    m_error = Error(ErrorCode::CannotOpenFile, reasons);
    return false;
}

bool PropertyEditorWindowJsonFile::written(const Error &error)
{
    m_error = error;
    if (!error.hasError())
        return true;
    qCWarning(propertyEditorLog).noquote() << "Can't write JSON to file" << *m_path << ":"
                                           << (error.errorMessages() + error.details()).join(u' ');
    return false;
}

bool PropertyEditorWindowJsonFile::loadTabsFromJson(PropertyEditorContent *content)
{
    QJsonObject object;
    if (!read(&object))
        return false;
    m_losses = lossesOf(object);
    *content = PropertyEditorContent(object);
    return true;
}

QList<Loss> PropertyEditorWindowJsonFile::lossesOf(const QJsonObject &document)
{
    LossCollector collector;
    DocumentStructure::reportLosses(document, &collector);
    CellStamps::reportLosses(document, &collector);
    return collector.losses();
}

bool PropertyEditorWindowJsonFile::saveTabsToJson(const PropertyEditorContent &content)
{
    const WorkflowFile file({{}, content.toJson()});
    return written(file.save(*m_path, WorkflowFile::Losses::Accepted));
}

bool PropertyEditorWindowJsonFile::loadTabFromJson(PropertyEditorContent *content)
{
    QJsonObject object;
    if (!read(&object))
        return false;
    if (!object[COLUMNS_KEY].isArray() || !object[CELLS_KEY].isArray()) {
        m_error = Error(ErrorCode::InvalidContent, tr("The file is no tab preset: %1").arg(*m_path));
        qCCritical(propertyEditorLog).noquote() << m_error.errorMessage();
        return false;
    }
    const QStringList columns = PropertyEditorJsonUtils::jsonArrayToStringList(object[COLUMNS_KEY].toArray());
    const VariantItems cells = PropertyEditorJsonUtils::jsonArrayToVariantItems(object[CELLS_KEY].toArray());
    *content = PropertyEditorContent({{object[NAME_KEY].toString(), {columns, cells}}});
    return true;
}

bool PropertyEditorWindowJsonFile::saveTabToJson(const PropertyEditorContent &content)
{
    const PropertyEditorContent::Tabs tabs = content.tabsAndContent();
    if (tabs.isEmpty()) {
        qCWarning(propertyEditorLog) << "There is no content";
        m_error = Error(ErrorCode::InvalidContent, tr("There is no content"));
        return false;
    }
    const auto &[name, columnsAndCells] = tabs.first();
    const QJsonObject preset{
        {META_IN_JSON_KEY, QString::fromUtf8(WflwMetaData::metaDataString(KProperty()))},
        {NAME_KEY, name},
        {COLUMNS_KEY, PropertyEditorJsonUtils::stringListToJsonArray(columnsAndCells.first)},
        {CELLS_KEY, PropertyEditorJsonUtils::variantItemsToJsonArray(columnsAndCells.second)}};
    return written(DocumentSaving::write(*m_path, QJsonDocument(preset).toJson()));
}

} // namespace orv
