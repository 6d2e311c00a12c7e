#include "orv/propertyeditor/validators/WorkflowFile.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/PathUtils.h>
#include <orv/propertyeditor/content/DocumentSaving.h>
#include <orv/propertyeditor/content/DocumentStructure.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <utility>

namespace orv::PropertyEditor {

namespace {

struct WorkflowFileTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowFile)
};

Result<QVersionNumber> versionOf(const QJsonObject &document)
{
    return WflwMetaData::exactVersion(PropertyEditorContent(document).metadata());
}

/// Why text is no workflow, behind \a message.
Error noWorkflow(const QString &message, const Error &reason)
{
    Error error(reason.code(), message);
    for (const QString &text : reason.errorMessages() + reason.details())
        error.addDetail(text);
    return error;
}

/// With a slash at its end, so that relative files are taken from inside.
QUrl folderOf(const QString &file)
{
    const QString folder = QFileInfo(file).absolutePath();
    return QUrl::fromLocalFile(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

bool isSameFile(const QString &left, const QString &right)
{
    const QString file = QFileInfo(left).canonicalFilePath();
    return !file.isEmpty() && file == QFileInfo(right).canonicalFilePath();
}

} // namespace

WorkflowFile::WorkflowFile(const WorkflowSource &source, const QUrl &folderUrl)
    : m_source(source)
    , m_folderUrl(folderUrl)
{}

Result<WorkflowFile> WorkflowFile::open(const QString &path)
{
    const QString file = fileAt(path);
    Result<QByteArray> text = FileUtils::readFile(file);
    if (text.hasError())
        return text.ecatch();
    const Result<QJsonObject> document = JsonUtils::objectFromJson(*text);
    if (document.hasError())
        return noWorkflow(WorkflowFileTr::tr("The file is no workflow: %1").arg(file), document.error());
    WorkflowFile result({*document, *text}, folderOf(file));
    result.m_path = file;
    return result;
}

Result<WorkflowFile> WorkflowFile::fromText(const QByteArray &text, const QUrl &folderUrl)
{
    const Result<QJsonObject> document = JsonUtils::objectFromJson(text);
    if (document.hasError())
        return noWorkflow(WorkflowFileTr::tr("The text is no workflow."), document.error());
    return WorkflowFile({*document, text}, folderUrl);
}

QString WorkflowFile::fileAt(const QString &path)
{
    return PathUtils::isDirectory(path) && WflwUtils::isMirelPortableWorkflow(path)
               ? WflwUtils::workflowInPortableWorkflow(QDir(path).absolutePath())
               : path;
}

QVersionNumber WorkflowFile::version() const
{
    return versionOf(m_source.document).valueOr(QVersionNumber());
}

WflwMetaData::WflwState WorkflowFile::state(QStringList *reasons) const
{
    const PropertyEditorContent content(m_source.document);
    QStringList unheard;
    if (!reasons)
        reasons = &unheard;
    const Result<QVersionNumber> version = WflwMetaData::exactVersion(content.metadata());
    if (version.hasError()) {
        *reasons += version.error().errorMessages() + version.error().details();
        return WflwMetaData::WflwState::NotSupported;
    }
    return WflwMetaData::checkWorkflowVersion(*version, &content, reasons);
}

bool WorkflowFile::isNewer() const
{
    return WflwMetaData::isNewerThanCurrent(version());
}

Error WorkflowFile::fault() const
{
    const QString metadata =
        m_source.document.value(PropertyEditorStringConstants::META_IN_JSON_KEY).toString();
    ORV_RETURN_IF_ERROR(WflwMetaData::faultInText(metadata));
    if (Result<QVersionNumber> version = versionOf(m_source.document); version.hasError())
        return version.ecatch();
    return DocumentStructure::check(m_source.document);
}

Result<LoadedContent> WorkflowFile::load(ValidationOptions options) const
{
    LoadedContent loaded{std::make_unique<Content>(), {}};
    LossCollector losses;
    loaded.content->setLossObserver(&losses);
    Error error = loaded.content->assignFromJson(m_source.document, options);
    loaded.content->setLossObserver(nullptr);
    if (error)
        return error.ecatch();
    if (!m_folderUrl.isEmpty())
        loaded.content->setBaseUrl(m_folderUrl);
    loaded.lost = losses.losses();
    return loaded;
}

Error WorkflowFile::assign(const Content &content, const QList<Loss> &lost)
{
    ORV_RETURN_IF_ERROR(content.checkWritable());
    m_source.document = content.toJsonObject(PropertyConversionFlag::KeepPaths);
    m_source.text = content.toJson(PropertyConversionFlag::KeepPaths);
    m_lost += lost;
    return Error::NoError;
}

WorkflowUpgradeReport WorkflowFile::upgrade(WorkflowUpgradeOptions options)
{
    if (options.baseUrl.isEmpty())
        options.baseUrl = m_folderUrl;
    WorkflowUpgradeReport report = WorkflowUpgrade::run(m_source.document, options);
    if (report.error || !report.isChanged)
        return report;
    const Result<QJsonObject> document = JsonUtils::objectFromJson(report.upgraded);
    if (document.hasError()) {
        report.error = document.error();
        return report;
    }
    m_source = {*document, report.upgraded};
    m_lost += report.lost;
    if (report.malformed)
        m_mended = report.malformed;
    return report;
}

Result<WorkflowCheckReport> WorkflowFile::check(const QStringList &validators) const
{
    return WorkflowCheck(validators).run(m_source, m_folderUrl);
}

Error WorkflowFile::save(const QString &path, Losses losses) const
{
    const QString file = fileAt(path);
    ORV_RETURN_IF_ERROR(checkNewer(file));
    if (losses == Losses::Refused && isSameFile(file, m_path))
        ORV_RETURN_IF_ERROR(checkOnlyCopy(file));
    const bool hasText = !m_source.text.isEmpty();
    return DocumentSaving::write(file, hasText ? m_source.text : QJsonDocument(m_source.document).toJson())
        .ecatch();
}

Error WorkflowFile::checkNewer(const QString &file) const
{
    if (!QFileInfo::exists(file))
        return Error::NoError;
    Result<QByteArray> text = FileUtils::readFile(file);
    if (text.hasError())
        return text.ecatch();
    // Whatever else stands there, and however odd it is, the host has chosen to replace it.
    const Result<JsonUtils::DoubtfulObject> there = JsonUtils::doubtfulObjectFromJson(*text);
    if (there.hasError())
        return Error::NoError;
    Result<QVersionNumber> version = versionOf(there->object);
    if (version.hasError())
        return version.ecatch();
    if (!WflwMetaData::isNewerThanCurrent(*version))
        return Error::NoError;
    return Error(ErrorCode::InvalidContent,
                 WorkflowFileTr::tr("The workflow has the newer version %1 and is not written over: %2")
                     .arg(version->toString(), file))
        .addDetail(WorkflowFileTr::tr("Save to another file, or use the software that wrote it."));
}

Error WorkflowFile::checkOnlyCopy(const QString &file) const
{
    const QString remedy = WorkflowFileTr::tr("Save to another file, or accept the losses.");
    const QString message = WorkflowFileTr::tr("Something of the workflow would be lost: %1").arg(file);
    if (m_mended) {
        Error error = m_mended;
        return error.addMessage(message).addDetail(remedy);
    }
    if (m_lost.isEmpty())
        return Error::NoError;
    Error error(ErrorCode::InvalidContent, message);
    for (const Loss &loss : m_lost)
        error.addDetail(QStringLiteral("%1: %2: %3").arg(loss.path, loss.what, loss.why));
    return error.addDetail(remedy);
}

} // namespace orv::PropertyEditor
