#include "ReferredFiles.h"

#include "FileIdentity.h"
#include "Inputs.h"

#include <orv/propertyeditor/workflow/WorkflowReferences.h>

#include <QFileInfo>
#include <QHash>

namespace orv::cli {

Outcome<void> refuseReferred(const QJsonObject &document, const QString &argument, const QStringList &outputs)
{
    QHash<QString, QString> present;
    for (const QString &output : outputs) {
        if (output != kStandardInput && QFileInfo(output).isFile())
            present.insert(fileIdentity(output), output);
    }
    if (present.isEmpty())
        return {};
    for (const QString &path : WorkflowReferences::localPaths(document, folderUrlOf(argument))) {
        if (!QFileInfo(path).isFile())
            continue;
        const auto clash = present.constFind(fileIdentity(path));
        if (clash != present.cend()) {
            return Failure{
                WrongUsage, 0,
                QStringLiteral("\"%1\" would be written over \"%2\", which the workflow refers to. "
                               "Nothing was written; name another output.")
                    .arg(*clash, path)};
        }
    }
    return {};
}

} // namespace orv::cli
