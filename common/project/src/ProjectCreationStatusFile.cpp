#include "orv/project/ProjectCreationStatusFile.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>

#include <QCoreApplication>

#include <array>

namespace orv {

namespace {

using JobState = ProjectCreationStatusFile::JobState;

struct ProjectCreationStatusFileTr
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCreationStatusFile)
};

// Stored in files.
constexpr QLatin1String kFileName("creation_status.json");
constexpr QLatin1String kJobsKey("jobs");
constexpr QLatin1String kNameKey("name");
constexpr QLatin1String kStateKey("state");
constexpr QLatin1String kStartedKey("processingStarted");
constexpr QLatin1String kProgressKey("progressPercent");

struct StateRow
{
    JobState state;
    QLatin1String text;
};
constexpr std::array kStates = {
    StateRow{JobState::Queued, QLatin1String("queued")},
    StateRow{JobState::Running, QLatin1String("running")},
    StateRow{JobState::Done, QLatin1String("done")},
    StateRow{JobState::Failed, QLatin1String("failed")},
};

Error malformed(const QString &member, const QString &expected)
{
    return Error(ErrorCode::InvalidContent,
                 ProjectCreationStatusFileTr::tr("The file is no status of a project's creation."))
        .addDetail(ProjectCreationStatusFileTr::tr("\"%1\" must be %2. Create the project anew.")
                       .arg(member, expected));
}

Result<ProjectCreationStatusFile::Job> readJob(const QJsonValue &json)
{
    const QJsonObject object = json.toObject();
    const QString text = object.value(kStateKey).toString();
    const auto *const row =
        std::ranges::find_if(kStates, [&text](const StateRow &state) { return state.text == text; });
    if (row == kStates.end())
        return malformed(kStateKey, ProjectCreationStatusFileTr::tr("queued, running, done or failed"));
    if (!object.value(kNameKey).isString())
        return malformed(kNameKey, ProjectCreationStatusFileTr::tr("a string"));
    return ProjectCreationStatusFile::Job{object.value(kNameKey).toString(), row->state};
}

Result<QList<ProjectCreationStatusFile::Job>> readJobs(const QJsonValue &json)
{
    if (!json.isArray() && !json.isUndefined())
        return malformed(kJobsKey, ProjectCreationStatusFileTr::tr("an array"));
    QList<ProjectCreationStatusFile::Job> jobs;
    for (const auto element : json.toArray()) {
        auto job = readJob(element);
        if (!job)
            return job.ecatch();
        jobs.append(*job);
    }
    return jobs;
}

Result<QDateTime> readMoment(const QJsonValue &json)
{
    if (json.isUndefined())
        return QDateTime();
    const QDateTime moment = QDateTime::fromString(json.toString(), Qt::ISODateWithMs);
    if (!moment.isValid())
        return malformed(kStartedKey,
                         ProjectCreationStatusFileTr::tr("a moment such as 2024-01-31T10:20:30Z"));
    return moment;
}

Result<int> readProgress(const QJsonValue &json)
{
    const int percent = json.isUndefined() ? 0 : json.toInt(-1);
    if (percent < 0 || percent > 100)
        return malformed(kProgressKey, ProjectCreationStatusFileTr::tr("a whole number from 0 to 100"));
    return percent;
}

Result<ProjectCreationStatusFile> fromJson(const QJsonObject &object)
{
    auto jobs = readJobs(object.value(kJobsKey));
    if (!jobs)
        return jobs.ecatch();
    auto started = readMoment(object.value(kStartedKey));
    if (!started)
        return started.ecatch();
    auto progress = readProgress(object.value(kProgressKey));
    if (!progress)
        return progress.ecatch();
    ProjectCreationStatusFile status;
    status.setJobs(*jobs);
    status.setProcessingStarted(*started);
    status.setProgressPercent(*progress);
    return status;
}

} // namespace

QString ProjectCreationStatusFile::statusFilePath(const QString &folder)
{
    return folder + QLatin1Char('/') + kFileName;
}

Result<ProjectCreationStatusFile> ProjectCreationStatusFile::read(const QString &path)
{
    auto bytes = FileUtils::readFile(path);
    if (!bytes)
        return bytes.ecatch();
    auto object = JsonUtils::objectFromJson(*bytes);
    if (!object)
        return Error(object.error())
            .addDetail(ProjectCreationStatusFileTr::tr("The file is %1.").arg(path))
            .ecatch();
    auto status = fromJson(*object);
    if (!status)
        return Error(status.error())
            .addDetail(ProjectCreationStatusFileTr::tr("The file is %1.").arg(path))
            .ecatch();
    return status;
}

Error ProjectCreationStatusFile::write(const QString &path) const
{
    QJsonArray jobs;
    for (const Job &job : m_jobs) {
        const auto *const row = std::ranges::find(kStates, job.state, &StateRow::state);
        jobs.append(QJsonObject{{kNameKey, job.name}, {kStateKey, row->text}});
    }
    QJsonObject object{{kJobsKey, jobs}, {kProgressKey, m_progressPercent}};
    if (m_processingStarted.isValid())
        object.insert(kStartedKey, m_processingStarted.toUTC().toString(Qt::ISODateWithMs));
    QString reason;
    if (FileUtils::writeToFile(path, QJsonDocument(object).toJson(), &reason) == QFileDevice::NoError)
        return Error::NoError;
    return Error(ErrorCode::CannotOpenFile,
                 ProjectCreationStatusFileTr::tr("Could not write the file: %1").arg(path))
        .addDetail(reason);
}

bool ProjectCreationStatusFile::hasStartedProcessing() const
{
    return !m_jobs.isEmpty() || m_processingStarted.isValid() || m_progressPercent > 0;
}

} // namespace orv
