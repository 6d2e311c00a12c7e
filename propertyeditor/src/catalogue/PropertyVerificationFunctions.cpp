#include "orv/propertyeditor/PropertyVerificationFunctions.h"

#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/core/DriveType.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/LocalResourceReference.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/table/RowNode.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

namespace orv::PropertyVerificationFunctions {

using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kCustomModificationsMarker("% Custom modification text below");

struct BuiltinRulesTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyVerificationBuiltin)
};

QString captionOf(PropertyId id)
{
    return PropertiesNames::displayNameForType(id);
}

bool isReference(PropertyId id, QList<QString> *errors)
{
    if (int(PropertiesNames::valueTypeOfPropertyType(id)) == PropertiesTraits::ResourceReferenceType)
        return true;
    errors->append(BuiltinRulesTr::tr("\"%1\" is not a URL").arg(captionOf(id)));
    return false;
}

bool isEmpty(PropertyId id, const ResourceReferenceSPtr &reference)
{
    if (reference)
        return false;
    qCDebug(propertyEditorLog) << "URL in property" << captionOf(id) << "is empty thus considered valid";
    return true;
}

bool verifyGlycanFile(PropertyId id, const QString &file, ContentMode mode, QList<QString> *errors,
                      QList<QString> *warnings)
{
    // Paths that begin with a slash are the server's own.
    if (file.startsWith(QLatin1Char('/')))
        return true;
    // What isn't a file of this machine has no name here, and can't be looked for.
    const auto reference = ResourceReference::fromString(file);
    if (reference && !file.isEmpty() && !verifyLocalUrlPrivate(id, *reference, errors, warnings))
        return false;
    if (mode != ContentMode::TalvaneMode)
        return true;
    const QString bundle = QDir(QCoreApplication::applicationDirPath()).absolutePath();
    if (QDir::fromNativeSeparators(file).startsWith(bundle))
        return true;
    errors->append(
        BuiltinRulesTr::tr("\"%1\" specifies a file that does not come from the application bundle \"%3\"")
            .arg(captionOf(id), QDir::toNativeSeparators(file)));
    return false;
}

} // namespace

bool verifyLocalUrlPrivate(PropertyId id, const ResourceReferenceSPtr &reference, QList<QString> *errors,
                           QList<QString> *warnings)
{
    if (isEmpty(id, reference))
        return true;
    const QString text = reference->text();
    if (!LocalResourceReference::isLocalReference(text)) {
        errors->append(
            BuiltinRulesTr::tr("\"%1\" specifies a non-local file \"%3\"").arg(captionOf(id), text));
        return false;
    }
    if (driveType(text) == DriveType::Network) {
        warnings->append(
            BuiltinRulesTr::tr("\"%1\" specifies a file on a network drive: \"%3\". The project creation "
                               "process may work unstable")
                .arg(captionOf(id), text));
    }
    if (QFile::exists(text))
        return true;
    errors->append(BuiltinRulesTr::tr("\"%1\" specifies a non-existent file \"%3\"")
                       .arg(captionOf(id), QDir::toNativeSeparators(text)));
    return false;
}

bool verifyTalvaneUrl(PropertyId id, const ResourceReferenceSPtr &reference, QList<QString> *errors,
                      QList<QString> *warnings)
{
    Q_UNUSED(warnings)
    if (isEmpty(id, reference) || ResourceHandlerUtils::validateReference(reference))
        return true;
    errors->append(BuiltinRulesTr::tr("\"%1\" specifies an invalid reference to a file on the Talvane server")
                       .arg(captionOf(id)));
    return false;
}

bool verifyLocalUrl(PropertyId id, const QVariant &value, ContentMode mode, QList<QString> *errors,
                    QList<QString> *warnings)
{
    Q_UNUSED(mode)
    return isReference(id, errors) &&
           verifyLocalUrlPrivate(id, value.value<ResourceReferenceSPtr>(), errors, warnings);
}

bool verifyLocalOrTalvaneUrl(PropertyId id, const QVariant &value, ContentMode mode, QList<QString> *errors,
                             QList<QString> *warnings)
{
    if (!isReference(id, errors))
        return false;
    const auto reference = value.value<ResourceReferenceSPtr>();
    return mode == ContentMode::TalvaneMode ? verifyTalvaneUrl(id, reference, errors, warnings)
                                            : verifyLocalUrlPrivate(id, reference, errors, warnings);
}

bool verifyModifications(PropertyId id, const QVariant &value, ContentMode mode, QList<QString> *errors,
                         QList<QString> *warnings)
{
    Q_UNUSED(mode)
    Q_UNUSED(warnings)
    const QString text = PropertyEditorJsonUtils::variantToObject(value).value(MODS_KEY).toString();
    if (text.count(kCustomModificationsMarker, Qt::CaseInsensitive) < 2)
        return true;
    errors->append(BuiltinRulesTr::tr("\"%1\" must not contain more than one \"%2\" substring")
                       .arg(captionOf(id), kCustomModificationsMarker));
    return false;
}

bool verifyGlycans(PropertyId id, const QVariant &value, ContentMode mode, QList<QString> *errors,
                   QList<QString> *warnings)
{
    static const QRegularExpression bracketed(QStringLiteral("\\[(.*?)\\]"));
    const QJsonObject object = PropertyEditorJsonUtils::variantToObject(value);
    const QString text = PropertyEditorJsonUtils::storedSerializedGlycans(object);
    bool passed = true;
    for (auto matches = bracketed.globalMatch(text); matches.hasNext();) {
        const QString file = QUrl::fromUserInput(matches.next().captured(1), {}).toLocalFile();
        passed = verifyGlycanFile(id, file, mode, errors, warnings) && passed;
    }
    return passed;
}

bool verifyIsotope(PropertyId id, const QVariant &value, ContentMode mode, QList<QString> *errors,
                   QList<QString> *warnings)
{
    Q_UNUSED(mode)
    Q_UNUSED(warnings)
    const QJsonObject object = PropertyEditorJsonUtils::variantToObject(value);
    if (!object.isEmpty() && PropertyEditorJsonUtils::objectToRowNode(object).getChildListSize() > 0)
        return true;
    errors->append(BuiltinRulesTr::tr("\"%1\" must specify at least one isotope").arg(captionOf(id)));
    return false;
}

bool verifyDigestion(PropertyId id, const QVariant &value, ContentMode mode, QList<QString> *errors,
                     QList<QString> *warnings)
{
    Q_UNUSED(id)
    Q_UNUSED(mode)
    Q_UNUSED(errors)
    Q_UNUSED(warnings)
    return ProteinDigestionItem::validate(value.toString());
}

} // namespace orv::PropertyVerificationFunctions
