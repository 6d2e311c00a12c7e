#include <orv/core/Logging.h>
#include <orv/project/ProjectCreationStatusFile.h>
#include <orv/project/ProjectCreationUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QFileInfo>
#include <QJsonDocument>
#include <QUrl>

namespace orv::PropertyEditorJsonUtils {

using PropertyEditor::Content;

namespace {

void warn(const char *what, const Error &error)
{
    qCWarning(propertyEditorLog).noquote()
        << what << (error.errorMessages() + error.details()).join(QLatin1Char(' '));
}

/// Loads a workflow whose relative files count from its folder.
Error load(const QString &path, Content *content)
{
    ORV_RETURN_IF_ERROR(content->assignFromFile(path));
    content->setBaseUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath() + QLatin1Char('/')));
    return Error::NoError;
}

QJsonObject withAbsolutePaths(const Content &content)
{
    const QByteArray json = content.toJson(PropertyEditor::PropertyConversionFlag::AbsolutePaths);
    return QJsonDocument::fromJson(json).object();
}

/// Whether the attempt in that folder was made with this workflow.
bool isOfWorkflow(const QString &failedFolder, const Content &content)
{
    Content attempted;
    const QString path = QDir(failedFolder).filePath(PropertyEditorStringConstants::WFLW_DEFAULT_NAME);
    if (const Error error = load(path, &attempted))
        warn("Cannot read the workflow of a failed project:", error);
    return compareWorkflows(withAbsolutePaths(attempted), withAbsolutePaths(content), false);
}

bool hasStartedProcessing(const QString &tempFolder)
{
    const auto status =
        ProjectCreationStatusFile::read(ProjectCreationStatusFile::statusFilePath(tempFolder));
    if (!status)
        warn("Cannot read the status of a failed project:", status.error());
    return status && status->hasStartedProcessing();
}

} // namespace

bool projectFailedBefore(const QDir &dir, const QString &name, const Content &content)
{
    const QString path = QStringLiteral("%1/%2.%3").arg(dir.absolutePath(), name, QStringLiteral("presets"));
    const QString failed = path + QLatin1String(".FAILED");
    if (!QFileInfo(failed).isDir() || QFileInfo(path).isDir() || !isOfWorkflow(failed, content))
        return false;
    const QString tempFolder = ProjectCreationUtils::lastTempFolder(dir, name);
    return !tempFolder.isEmpty() && hasStartedProcessing(tempFolder);
}

bool projectFailedBefore(const QDir &dir, const QString &name, const QString &wflwFile)
{
    Content content;
    if (const Error error = load(wflwFile, &content))
        warn("Cannot read a workflow:", error);
    return projectFailedBefore(dir, name, content);
}

} // namespace orv::PropertyEditorJsonUtils
