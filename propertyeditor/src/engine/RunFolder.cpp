#include "orv/propertyeditor/engine/RunFolder.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/FileUtils.h>
#include <orv/project/ProjectCreationStatusFile.h>
#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>
#include <orv/propertyeditor/engine/PreviewPreset.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>
#include <QSet>
#include <QTemporaryDir>

#include <memory>

namespace orv {

using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;

namespace {

struct RunFolderTr
{
    Q_DECLARE_TR_FUNCTIONS(RunFolder)
};

constexpr QLatin1String kLockName(".lock");
constexpr QLatin1String kEarlierName("earlier");

/// A file of the run that is still to be made.
struct RunFile
{
    QString name;
    std::function<Result<QByteArray>()> make;
    bool isJob = false;
};

/// What a person does about a sample or database that isn't there.
Error explained(Error &error, const QString &what)
{
    return Error(error.ecatch().code(), what)
        .addDetail(error.errorMessage())
        .addDetail(RunFolderTr::tr("No run was written. Bring the file back or choose another one."));
}

using Creator = std::shared_ptr<const KarvonPresetCreator>;

/// The check has seen the file, but it may be gone since; engines would search nothing.
Result<QString> spectraOf(const Creator &creator, const QString &sample)
{
    Result<QString> spectra = creator->spectraFileOf(sample);
    if (!spectra.hasError())
        return spectra;
    return explained(spectra.ecatch(),
                     RunFolderTr::tr("The file of the sample \"%1\" can't be had any more.").arg(sample));
}

Result<QByteArray> searchOf(const Creator &creator, const QString &sample, const QString &database)
{
    Result<QString> spectra = spectraOf(creator, sample);
    if (spectra.hasError())
        return spectra.ecatch();
    return creator->presetForSpectra(*spectra, database);
}

class RunPlan
{
public:
    explicit RunPlan(const Content &content, const QJsonObject &document)
        : m_content(content)
        , m_document(document)
        , m_samples(content.sampleNames())
    {}

    /// \a folder is where the run will be found.
    Result<QList<RunFile>> files(const QString &folder)
    {
        m_folder = folder;
        m_files = {{RunFolder::kWorkflowName, [this] { return QJsonDocument(m_document).toJson(); }}};
        addSequences();
        for (const PropertyEditor::ItemGroup *group : m_content.groups()) {
            for (const PropertyEditor::ItemSubGroup *column : group->subGroups()) {
                for (const PropertyEditor::BaseItem *cell : column->items()) {
                    if (const auto *item = qobject_cast<const KeyValueItem *>(cell))
                        addParameters(*item, column->name());
                }
            }
        }
        QSet<QString> names;
        for (const RunFile &file : std::as_const(m_files)) {
            if (names.contains(file.name.toLower())) {
                return Error(ErrorCode::InvalidContent,
                             RunFolderTr::tr("Two samples or columns would share the parameter file \"%1\". "
                                             "Give them names that differ.")
                                 .arg(file.name));
            }
            names.insert(file.name.toLower());
        }
        return m_files;
    }

private:
    void addSequences()
    {
        QByteArray fasta = PropertiesGetter(PropertyEditorContent(m_document)).fastaContent();
        if (!fasta.isEmpty()) {
            m_files.append({RunFolder::kSequencesName, [fasta] { return fasta; }});
            m_database = QDir(m_folder).filePath(RunFolder::kSequencesName);
            return;
        }
        for (const SequenceDatabaseItem &database : m_content.sequenceDatabaseItems(0)) {
            if (m_database.isEmpty())
                m_database = ResourceReferenceUtils::toString(database.fastaReference(), true);
        }
    }

    void addParameters(const KeyValueItem &item, const QString &column)
    {
        const bool isSearch = item.type() == BaseItemType::Karvon;
        const bool isPreview =
            item.type() == BaseItemType::Preview || item.type() == BaseItemType::TrenqPreview;
        if (!isSearch && !isPreview)
            return;
        const auto creator = std::make_shared<const KarvonPresetCreator>(m_content, item);
        const auto properties = PreviewPreset::MirelProperties::fromPropertiesMap(item.propertiesMap());
        for (const QString &name : std::as_const(m_samples)) {
            const QString base = FileNameUtils::nameFromText(name + u'.' + column);
            const QString database = m_database;
            if (isSearch) {
                m_files.append({base + QLatin1String(".xenoset"),
                                [creator, name, database] { return searchOf(creator, name, database); },
                                true});
                continue;
            }
            const QString results = QDir(m_folder).filePath(base);
            m_files.append({base + QLatin1String(".prv"),
                            [creator, name, database, results, properties]() -> Result<QByteArray> {
                                Result<QString> spectra = spectraOf(creator, name);
                                if (spectra.hasError())
                                    return spectra.ecatch();
                                return PreviewPreset::createPresetContentFromWorkflow(*spectra, database,
                                                                                      results, properties)
                                    .toUtf8();
                            },
                            true});
        }
    }

    const Content &m_content;
    QJsonObject m_document;
    QStringList m_samples;
    QString m_folder;
    QString m_database;
    QList<RunFile> m_files;
};

Error writeFile(const QString &path, const QByteArray &bytes)
{
    QString reason;
    if (FileUtils::writeReproducibleFile(path, bytes, &reason) == QFileDevice::NoError)
        return Error::NoError;
    return Error(ErrorCode::CannotOpenFile, RunFolderTr::tr("Could not write the file: %1").arg(path))
        .addDetail(reason);
}

Error writeStatus(const QString &folder, const QList<RunFile> &files)
{
    QList<ProjectCreationStatusFile::Job> jobs;
    for (const RunFile &file : files) {
        if (file.isJob)
            jobs.append({file.name, ProjectCreationStatusFile::JobState::Queued});
    }
    ProjectCreationStatusFile status;
    status.setJobs(jobs);
    return status.write(ProjectCreationStatusFile::statusFilePath(folder)).ecatch();
}

/// What is made in place of this many characters tells the folders of several runs to one place apart.
constexpr QLatin1String kUniquePart("XXXXXX");

/// What the folders begin with in which runs to one place are made.
QString stagingPrefix(const QString &place)
{
    return QStringLiteral(".%1-").arg(QFileInfo(place).fileName());
}

/// What was killed holds its lock no more. Where it was about to replace a run, that one comes back.
void sweep(const QString &place)
{
    const QDir parent = QFileInfo(place).dir();
    const QString prefix = stagingPrefix(place);
    const QFileInfoList folders =
        parent.entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        const QString name = folder.fileName();
        const QString lockPath = folder.filePath() + u'/' + kLockName;
        if (!name.startsWith(prefix) || name.size() != prefix.size() + kUniquePart.size() ||
            !QFileInfo::exists(lockPath))
            continue;
        QLockFile lock(lockPath);
        lock.setStaleLockTime(0);
        if (lock.tryLock(0)) {
            const QString earlier = folder.filePath() + u'/' + kEarlierName;
            const bool isStranded = QFileInfo(earlier).isDir() && !QFileInfo::exists(place);
            const bool isSafe = !isStranded || QDir().rename(earlier, place);
            lock.unlock();
            if (isSafe)
                QDir(folder.filePath()).removeRecursively();
        }
    }
}

/// Whether what stands at \a place is a run, which another one may replace.
bool isRun(const QString &place)
{
    const QFileInfo info(place);
    return info.isDir() && !info.isSymLink() && QDir(place).exists(RunFolder::kWorkflowName) &&
           QFileInfo::exists(ProjectCreationStatusFile::statusFilePath(place));
}

/// Brings \a run to \a place; an earlier run there goes into \a staging, and comes back where that fails.
/// Where it can't, because somebody has taken the place meanwhile, it stays in \a staging. Only a run makes
/// room: what else took the place while this one was written isn't ours.
Error bringInPlace(const QString &run, const QString &place, RunFolder::Existing existing,
                   QTemporaryDir *staging)
{
    const QString earlier = staging->filePath(kEarlierName);
    const bool isReplaced = existing == RunFolder::Existing::Replaced && isRun(place);
    const bool hasRoom = !isReplaced || QDir().rename(place, earlier);
    if (hasRoom && QDir().rename(run, place))
        return Error::NoError;
    Error error(ErrorCode::CannotOpenFile, RunFolderTr::tr("The folder can't be made: %1").arg(place));
    if (isReplaced && hasRoom && !QDir().rename(earlier, place)) {
        staging->setAutoRemove(false);
        error.addDetail(RunFolderTr::tr("The run that was there is kept in %1").arg(earlier));
    }
    return error;
}

/// False when it was stopped.
Result<bool> writeFiles(const QList<RunFile> &files, const QString &folder,
                        const RunFolder::Progress &progress)
{
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (progress && !progress(int(i), int(files.size()), files.at(i).name))
            return false;
        Result<QByteArray> bytes = files.at(i).make();
        if (bytes.hasError())
            return bytes.ecatch();
        ORV_RETURN_IF_ERROR(writeFile(QDir(folder).filePath(files.at(i).name), *bytes));
    }
    ORV_RETURN_IF_ERROR(writeStatus(folder, files));
    return !progress || progress(int(files.size()), int(files.size()), {});
}

} // namespace

Result<QString> RunFolder::write(const QJsonObject &document, const QString &folder, const Progress &progress,
                                 Existing existing)
{
    const QString place = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const QDir parent = QFileInfo(place).dir();
    sweep(place);
    const bool isReplaced = existing == Existing::Replaced && isRun(place);
    if (!isReplaced && (QFileInfo::exists(place) || QFileInfo(place).isSymLink())) {
        return Error(ErrorCode::InvalidContent, RunFolderTr::tr("The folder exists already: %1").arg(place))
            .addDetail(RunFolderTr::tr("Choose another name, or remove it."));
    }
    Content content;
    ORV_RETURN_IF_ERROR(content.assignFromJson(document));
    RunPlan plan(content, document);
    Result<QList<RunFile>> files = plan.files(place);
    if (files.hasError())
        return files.ecatch();
    QDir().mkpath(parent.path());
    QTemporaryDir staging(parent.filePath(stagingPrefix(place) + kUniquePart));
    QLockFile lock(staging.filePath(kLockName));
    const QString run = staging.filePath(QStringLiteral("run"));
    if (!staging.isValid() || !lock.tryLock(0) || !QDir().mkdir(run)) {
        return Error(ErrorCode::CannotOpenFile,
                     RunFolderTr::tr("Nothing can be written in the folder: %1").arg(parent.path()))
            .addDetail(staging.errorString());
    }
    Result<bool> isComplete = writeFiles(*files, run, progress);
    if (isComplete.hasError())
        return isComplete.ecatch();
    if (!*isComplete)
        return QString();
    ORV_RETURN_IF_ERROR(bringInPlace(run, place, existing, &staging));
    return place;
}

} // namespace orv
