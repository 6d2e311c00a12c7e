#include "OwnProperties.h"

#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QCoreApplication>

#include <array>

namespace orv {

namespace {

QString workflowTypeText(const QJsonObject &metadata)
{
    const WorkflowType type = WflwMetaData::workflowType(metadata);
    return type == WorkflowType::Unknown ? QString() : workflowTypeToString(type);
}

void takeName(QJsonObject *metadata, const QJsonObject &from)
{
    WflwMetaData::setNameInMetaDataObject(metadata, WflwMetaData::nameFromMetaDataObject(from));
}

void takeDescription(QJsonObject *metadata, const QJsonObject &from)
{
    WflwMetaData::setDescriptionInMetaDataObject(metadata, WflwMetaData::descriptionFromMetaDataObject(from));
}

void takeIcon(QJsonObject *metadata, const QJsonObject &from)
{
    WflwMetaData::setIconNameInMetaDataObject(metadata, WflwMetaData::iconNameFromMetaDataObject(from));
}

void takeType(QJsonObject *metadata, const QJsonObject &from)
{
    WflwMetaData::setWorkflowType(WflwMetaData::workflowType(from), metadata);
}

// Recovery told them first; their texts stay in its context.
constexpr std::array kOwnProperties = {
    OwnProperty{QT_TRANSLATE_NOOP("RecoveryChanges", "Name of the workflow"),
                &WflwMetaData::nameFromMetaDataObject, &takeName},
    OwnProperty{QT_TRANSLATE_NOOP("RecoveryChanges", "Description of the workflow"),
                &WflwMetaData::descriptionFromMetaDataObject, &takeDescription},
    OwnProperty{QT_TRANSLATE_NOOP("RecoveryChanges", "Icon of the workflow"),
                &WflwMetaData::iconNameFromMetaDataObject, &takeIcon},
    OwnProperty{QT_TRANSLATE_NOOP("RecoveryChanges", "Type of the workflow"), &workflowTypeText, &takeType},
};

} // namespace

std::span<const OwnProperty> OwnProperties::all()
{
    return kOwnProperties;
}

QString OwnProperties::caption(const OwnProperty &property)
{
    return QCoreApplication::translate("RecoveryChanges", property.name);
}

} // namespace orv
