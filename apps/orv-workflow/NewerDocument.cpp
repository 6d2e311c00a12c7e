#include "NewerDocument.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

namespace orv::cli {

Outcome<void> refuseNewer(const QJsonObject &document, const QString &what)
{
    const PropertyEditorContent content(document);
    const Result<QVersionNumber> version = WflwMetaData::exactVersion(content.metadata());
    if (version.hasError()) {
        Failure failure = failureFrom(version.error(), Negative);
        failure.message += QStringLiteral(" Until then it %1.").arg(what);
        return failure;
    }
    if (!WflwMetaData::isNewerThanCurrent(*version))
        return {};
    return Failure{Negative, 0,
                   QStringLiteral("The document has the newer version %1 and %2.")
                       .arg(WflwMetaData::versionFromMetaDataObject(content.metadata()), what)};
}

} // namespace orv::cli
