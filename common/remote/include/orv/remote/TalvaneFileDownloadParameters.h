#pragma once

#include <orv/core/Export.h>

#include <QString>

namespace orv {

/// Which file of the Talvane server is asked for, and how. A plain value.
class ORV_WORKFLOW_EXPORT TalvaneFileDownloadParameters
{
public:
    /// \a path is where the file lies: a folder of the server ("/projects/17"), "eds:/SOURCE/FOLDER" or
    /// "managed:/ID". \a version is that of the server's interface, counted from 1.
    TalvaneFileDownloadParameters(QString path, QString fileName, int version);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] const QString &fileName() const { return m_fileName; }
    [[nodiscard]] int version() const { return m_version; }

private:
    QString m_path;
    QString m_fileName;
    int m_version;
};

} // namespace orv
