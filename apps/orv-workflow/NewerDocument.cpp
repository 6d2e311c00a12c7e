#include "NewerDocument.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

namespace orv::cli {

Outcome<void> refuseNewer(const QJsonObject &document, const QString &what)
{
    const PropertyEditorContent content(document);
    const QVersionNumber version = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    if (!WflwMetaData::isNewerThanCurrent(version))
        return {};
    return Failure{
        Negative, 0,
        QStringLiteral("The document has the newer version %1 and %2.").arg(version.toString(), what)};
}

} // namespace orv::cli
