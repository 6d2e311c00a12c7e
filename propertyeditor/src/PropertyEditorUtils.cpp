#include "GlycanDatabasePaths.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>

namespace orv {

void PropertyEditorUtils::updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json)
{
    orv::updateGlycanDatabaseToAbsolute(baseUrl, json);
}

void PropertyEditorUtils::updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl)
{
    orv::updateGlycanPropertyWithAbsolutePath(property, baseUrl);
}

QString PropertyEditorUtils::resolveGlycansStringsFromWflw(const QString &text, const KProperty *property)
{
    return orv::resolveGlycansStringsFromWflw(text, property);
}

} // namespace orv
