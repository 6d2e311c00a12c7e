#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QDateTime>
#include <QList>
#include <QString>

namespace orv {

/// How far the creation of a project has come: the status file in its temporary folder, a JSON object
/// (docs/formats.md). A plain value.
class ORV_WORKFLOW_EXPORT ProjectCreationStatusFile
{
public:
    enum class JobState
    {
        Queued,
        Running,
        Done,
        Failed,
    };

    /// One piece of the processing, such as the search of one sample.
    struct Job
    {
        QString name;
        JobState state = JobState::Queued;

        bool operator==(const Job &) const = default;
    };

    /// Where the status file of a temporary folder lies.
    [[nodiscard]] static QString statusFilePath(const QString &folder);

    /// CannotOpenFile if there is no such file, InvalidContent if it is no status file; details name the
    /// member.
    [[nodiscard]] static Result<ProjectCreationStatusFile> read(const QString &path);
    /// Replaces the file, whole or not at all.
    Error write(const QString &path) const;

    [[nodiscard]] const QList<Job> &jobs() const { return m_jobs; }
    void setJobs(const QList<Job> &jobs) { m_jobs = jobs; }

    /// When processing began; invalid while it hasn't.
    [[nodiscard]] const QDateTime &processingStarted() const { return m_processingStarted; }
    void setProcessingStarted(const QDateTime &moment) { m_processingStarted = moment; }

    /// Of all work, from 0 to 100.
    [[nodiscard]] int progressPercent() const { return m_progressPercent; }
    void setProgressPercent(int percent) { m_progressPercent = percent; }

    /// Whether anything here tells that processing has begun: a job, a moment, or progress.
    [[nodiscard]] bool hasStartedProcessing() const;

    bool operator==(const ProjectCreationStatusFile &) const = default;

private:
    QList<Job> m_jobs;
    QDateTime m_processingStarted;
    int m_progressPercent = 0;
};

} // namespace orv
