#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>

class QSqlQuery;

namespace orv::ulvar2 {

/// The key under which a file that was merged from others has the value "true".
inline constexpr QLatin1String kIsCreatedByOrvMergeFilesKey{"IsCreatedByOrvMergeFiles"};

/// A record of what is known of a file.
struct InfoRecord
{
    QString key;
    QString value;

    bool operator==(const InfoRecord &) const = default;
};

/// Reads .ulvar2 files, which are SQLite databases (docs/formats.md). Never writes to them. Needs an
/// application object, as Qt finds the driver through it. On any thread, but on the one that opened it.
class ORV_WORKFLOW_EXPORT Ulvar2Dao
{
public:
    /// What a hostile file may make this program hold.
    static constexpr int kMostInfos = 100'000;
    static constexpr int kMostCharacters = 65'536; ///< of a key or a value

    Ulvar2Dao();
    ~Ulvar2Dao();
    Q_DISABLE_COPY_MOVE(Ulvar2Dao)

    /// Closes what was open. CannotOpenFile for what is missing or unreadable, InvalidContent for what is no
    /// SQLite database; details name the reason.
    [[nodiscard]] Error open(const QString &path);

    /// The information records, in the file's order. InvalidContent for a database without their table or
    /// with one that computes them, a damaged one, and one beyond the bounds.
    [[nodiscard]] Result<QList<InfoRecord>> readInfos() const;

private:
    void close();
    [[nodiscard]] Error checkTable(QSqlQuery &query) const;

    QString m_path;
    QString m_connection; ///< empty while nothing is open
};

} // namespace orv::ulvar2
