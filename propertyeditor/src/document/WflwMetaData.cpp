#include "orv/propertyeditor/workflow/WflwMetaData.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/core/AppUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QMetaEnum>
#include <QRegularExpression>

#include <limits>
#include <optional>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

/// A number of a version, by its digits; the largest that a segment holds for what is larger.
int saturatedSegment(const QString &digits)
{
    bool fits = false;
    const int number = digits.toInt(&fits);
    return fits ? number : std::numeric_limits<int>::max();
}

/// The numbers of a text that is numbers with dots between them; none for any other text.
QList<int> exactSegmentsOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(R"(\A[0-9]+(\.[0-9]+)*\z)"));
    if (!form.match(text).hasMatch())
        return {};
    QList<int> segments;
    for (const QString &digits : text.split(QLatin1Char('.')))
        segments.append(saturatedSegment(digits));
    return segments;
}

/// As it stands; of a number all its digits, of anything that holds no version its JSON.
QString versionText(const QJsonValue &version)
{
    if (version.isString())
        return version.toString();
    if (version.isDouble())
        return QString::number(version.toDouble(), 'f', QLocale::FloatingPointShortest);
    const QByteArray array = QJsonDocument(QJsonArray{version}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

} // namespace

QString workflowAppTypeToString(WorkflowAppType type)
{
    if (type == WorkflowAppType::Talvane)
        return QStringLiteral("Mirel for Talvane");
    return QString::fromLatin1(QMetaEnum::fromType<WorkflowAppType>().valueToKey(type));
}

QVersionNumber WflwMetaData::currentWorkflowVersion()
{
    return {WORKFLOW_JSON_VERSION_MAJOR, WORKFLOW_JSON_VERSION_MINOR, WORKFLOW_JSON_VERSION_PATCH};
}

bool WflwMetaData::isNewerThanCurrent(const QVersionNumber &version)
{
    return version > currentWorkflowVersion();
}

QList<QVersionNumber> WflwMetaData::specialVersions()
{
    static const QList<QVersionNumber> versions = {QVersionNumber(3)};
    return versions;
}

QList<QVersionNumber> WflwMetaData::unsupportedVersions()
{
    return {};
}

WflwMetaData::WflwState WflwMetaData::checkWorkflowVersion(const QVersionNumber &version,
                                                           const PropertyEditorContent *content,
                                                           QStringList *messages)
{
    if (specialVersions().contains(version))
        return WflwState::NeedsUpgrade;
    if (!isSupportedVersion(version, contentMode(content->metadata()))) {
        messages->append(tr("The version of the specified workflow (%1) is deprecated and not supported")
                             .arg(version.toString()));
        return WflwState::NotSupported;
    }
    if (version.segmentCount() > 0 && version.majorVersion() > WORKFLOW_JSON_VERSION_MAJOR) {
        messages->append(tr("The workflow's version is %1, but the current software supports only workflow "
                            "versions up to %2.x.x")
                             .arg(version.toString())
                             .arg(WORKFLOW_JSON_VERSION_MAJOR));
        return WflwState::NotSupported;
    }
    return version < currentWorkflowVersion() ? WflwState::NeedsUpgrade : WflwState::UpToDate;
}

bool WflwMetaData::isSupportedVersion(const QVersionNumber &version, PropertyEditorContent::ContentMode mode)
{
    if (unsupportedVersions().contains(version))
        return false;
    return mode != PropertyEditorContent::ContentMode::TalvaneMode || version >= QVersionNumber(5, 9, 1);
}

QJsonObject WflwMetaData::metaDataObject(const QString &user)
{
    return {{USER_KEY, user.isEmpty() ? AppUtils::currentUserName() : user},
            {CREATED_KEY, QDateTime::currentDateTime().toString(Qt::ISODate)},
            {VERSION_KEY, currentWorkflowVersion().toString()}};
}

QJsonObject WflwMetaData::stamped(const QJsonObject &object, const QString &user)
{
    QJsonObject result = object;
    const QJsonObject stamp = metaDataObject(user);
    for (auto it = stamp.begin(); it != stamp.end(); ++it)
        result.insert(it.key(), it.value());
    return result;
}

QByteArray WflwMetaData::metaDataString(const KProperty &property)
{
    return restamped(property.isNull() ? QByteArray() : property.value().toByteArray());
}

QByteArray WflwMetaData::restamped(const QByteArray &json)
{
    return JsonUtils::toCompactJson(stamped(QJsonDocument::fromJson(json).object(), {}));
}

Error WflwMetaData::faultInText(const QString &text)
{
    const QByteArray json = text.toUtf8();
    if (QJsonDocument::fromJson(json).isNull())
        return Error::NoError;
    Error fault = JsonUtils::faultOf(json);
    if (!fault)
        return Error::NoError;
    return fault.addDetail(tr("It stands within the text \"%1\".").arg(META_IN_JSON_KEY)).ecatch();
}

void WflwMetaData::setPresetMetaData(KPropertySet *set)
{
    const QByteArray name(META_KEY.data(), META_KEY.size());
    if (!set->contains(name)) {
        auto *property = new KProperty(name, QVariant(), QString(), QString(), KProperty::ByteArray);
        property->setVisible(false);
        set->addProperty(property);
    }
    KProperty &property = set->property(name);
    property.setValue(metaDataString(property));
}

QString WflwMetaData::nameFromMetaDataObject(const QJsonObject &object)
{
    return object.value(NAME_KEY).toString();
}

void WflwMetaData::setNameInMetaDataObject(QJsonObject *object, const QString &name)
{
    object->insert(NAME_KEY, name);
}

QString WflwMetaData::descriptionFromMetaDataObject(const QJsonObject &object)
{
    return object.value(DESCRIPTION_KEY).toString();
}

void WflwMetaData::setDescriptionInMetaDataObject(QJsonObject *object, const QString &text)
{
    object->insert(DESCRIPTION_KEY, text);
}

QString WflwMetaData::iconNameFromMetaDataObject(const QJsonObject &object)
{
    return object.value(ICON_KEY).toString();
}

void WflwMetaData::setIconNameInMetaDataObject(QJsonObject *object, const QString &name)
{
    object->insert(ICON_KEY, name);
}

QString WflwMetaData::versionFromMetaDataObject(const QJsonObject &object)
{
    const QJsonValue version = object.value(VERSION_KEY);
    return version.isString() ? version.toString() : QString::number(version.toInt());
}

QVersionNumber WflwMetaData::versionNumberFromMetaDataObject(const QJsonObject &object)
{
    return QVersionNumber::fromString(versionFromMetaDataObject(object));
}

Result<QVersionNumber> WflwMetaData::exactVersion(const QJsonObject &object)
{
    const QJsonValue version = object.value(VERSION_KEY);
    if (version.isUndefined() || version.isNull())
        return QVersionNumber(0);
    const QString text = versionText(version);
    // As a number 5.4 may have been 5.40.
    const bool isFraction = version.isDouble() && text.contains(QLatin1Char('.'));
    const QList<int> segments = exactSegmentsOf(text);
    if (!segments.isEmpty() && !isFraction)
        return QVersionNumber(segments);
    return Error(ErrorCode::InvalidContent, tr("The document's version \"%1\" is no version.").arg(text))
        .addDetail(tr("It stands as \"%1\" in the text \"%2\".").arg(VERSION_KEY, META_IN_JSON_KEY))
        .addDetail(tr("A version is numbers with dots between them, such as %1; write there which one the "
                      "document has.")
                       .arg(currentWorkflowVersion().toString()));
}

PropertyEditorContent::ContentMode WflwMetaData::contentMode(const QJsonObject &object)
{
    return PropertyEditorContent::ContentMode(object.value(CONTENT_MODE_KEY).toInt());
}

void WflwMetaData::setContentMode(QJsonObject *object, PropertyEditorContent::ContentMode mode)
{
    object->insert(CONTENT_MODE_KEY, int(mode));
}

WorkflowType WflwMetaData::workflowType(const QJsonObject &object)
{
    const QJsonValue type = object.value(WORKFLOW_TYPE_KEY);
    return type.isString() ? workflowTypeFromString(type.toString()) : WorkflowType::Unknown;
}

void WflwMetaData::setWorkflowType(WorkflowType type, QJsonObject *object)
{
    object->insert(WORKFLOW_TYPE_KEY, workflowTypeToString(type));
}

} // namespace orv
