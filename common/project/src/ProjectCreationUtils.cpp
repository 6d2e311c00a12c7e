#include "orv/project/ProjectCreationUtils.h"

#include <QCoreApplication>

namespace orv::ProjectCreationUtils {

namespace {

struct ProjectCreationUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCreationUtils)
};

// Stored in names of folders.
const QString &momentFormat()
{
    static const QString format = QStringLiteral("yyyyMMdd'T'HHmmsszzz'Z'");
    return format;
}

QString prefixOf(const QString &name)
{
    return name + QLatin1String(".tmp-");
}

} // namespace

QString tempFolderName(const QString &name, const QDateTime &moment)
{
    return prefixOf(name) + moment.toUTC().toString(momentFormat());
}

Result<QString> createTempFolder(const QDir &dir, const QString &name)
{
    // Another process may take a name between two looks at the folder; the next millisecond has another.
    constexpr int kAttempts = 100;
    QDateTime moment = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < kAttempts; ++i, moment = moment.addMSecs(1)) {
        const QString folder = tempFolderName(name, moment);
        if (dir.mkdir(folder))
            return dir.absoluteFilePath(folder);
        if (!dir.exists(folder))
            break;
    }
    return Error(ErrorCode::CannotOpenFile,
                 ProjectCreationUtilsTr::tr("Could not create a temporary folder in: %1")
                     .arg(dir.absolutePath()))
        .addDetail(ProjectCreationUtilsTr::tr(
                       "The project is %1. Check that the folder exists, and the rights on it.")
                       .arg(name));
}

QString lastTempFolder(const QDir &dir, const QString &name)
{
    const QString prefix = prefixOf(name);
    QString last;
    // Moments in this form sort as texts. The names are no patterns for QDir: a project's may hold "[" or
    // "*".
    for (const QString &folder :
         dir.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Unsorted)) {
        if (!folder.startsWith(prefix) || folder <= last)
            continue;
        if (QDateTime::fromString(folder.mid(prefix.size()), momentFormat()).isValid())
            last = folder;
    }
    return last.isEmpty() ? QString() : dir.absoluteFilePath(last);
}

} // namespace orv::ProjectCreationUtils
