#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QLatin1String>
#include <QList>
#include <QString>

namespace orv {

class DocumentDatabaseHandler;

/// The option that holds the workflow of a project, as the JSON text of a document. Stored in files.
inline constexpr QLatin1String kMirelProjectCreationOptions("MirelProjectCreationOptions");

/// What a project was created with, under a key.
struct ProjectCreationOption
{
    QString key;
    QByteArray value;

    bool operator==(const ProjectCreationOption &) const = default;
};

/// Reads the creation options of an open project, which must outlive it. Every form of a project is read.
/// Belongs to the thread of the project. Errors as those of SqliteConnection; a table that lacks what every
/// form has is MalformedStructure.
class ORV_WORKFLOW_EXPORT ProjectCreationOptionsDao
{
public:
    explicit ProjectCreationOptionsDao(const DocumentDatabaseHandler &project)
        : m_project(&project)
    {}

    [[nodiscard]] Result<bool> tableExists() const;
    /// The table must exist. Case counts.
    [[nodiscard]] Result<bool> keyExists(const QString &key) const;
    /// All rows of that key: projects of the first two forms may have several. InvalidContent if they
    /// hold more than a workflow may (FileUtils::kMaxFileSize).
    [[nodiscard]] Result<QList<ProjectCreationOption>> readOption(const QString &key) const;

private:
    [[nodiscard]] Error checkColumns() const;
    [[nodiscard]] Error checkSize(const QString &key) const;

    const DocumentDatabaseHandler *m_project;
};

} // namespace orv
