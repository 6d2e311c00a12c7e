#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace orv {

/// One sequence of a FASTA text.
struct FastaEntry
{
    QString name;        ///< first word behind the ">"
    QString description; ///< the rest of that line
    QString sequence;    ///< capital letters, and "[...]" for what has no letter of its own
    qsizetype line = 0;  ///< of the ">", counted from 1

    bool operator==(const FastaEntry &) const = default;
};

/// Reads FASTA text entry by entry, so that a large file never stands in memory as a whole. Real files are
/// read: lines end with LF, CR or both, or not at all; lines may be blank or long; letters may be small;
/// lines that begin with
/// ";" or "#" are comments; "*" at the end of a sequence, "-" and blanks don't count. Headers that aren't
/// UTF-8 are read as Latin-1.
class ORV_WORKFLOW_EXPORT FastaReader
{
public:
    /// What a hostile file may make this program hold at a time.
    struct Limits
    {
        qsizetype headerBytes = 1 << 16;
        qsizetype sequenceLetters = 10'000'000;
    };

    /// \a device is open for reading and outlives the reader.
    explicit FastaReader(QIODevice *device);
    FastaReader(QIODevice *device, const Limits &limits);
    ~FastaReader();
    Q_DISABLE_COPY_MOVE(FastaReader)

    /// The next entry, or nothing behind the last one. InvalidContent with line and remedy as details: text
    /// before the first ">", a character that is no letter, a "[" without "]", anything beyond the limits.
    /// CannotOpenFile: the device fails. After a failure every call gives the same one.
    ///
    /// Warnings tell of an entry without sequence, which is passed over, of a name that stands twice, and of
    /// a "*" inside a sequence, which stays. From the hundredth on they are only counted.
    [[nodiscard]] Result<std::optional<FastaEntry>> next();

private:
    class Private;
    std::unique_ptr<Private> d;
};

namespace Fasta {

/// The largest file that readFile takes: 512 MiB, twice what the reviewed proteins of all organisms need.
inline constexpr qint64 kMaxFileSize = qint64(512) * 1024 * 1024;

/// All entries of a file, with FastaReader's warnings. CannotOpenFile for a file that can't be read,
/// InvalidContent for one that FastaReader refuses, that is too large, or that has no sequence. Details name
/// the file.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<FastaEntry>> readFile(const QString &path);

/// UTF-8 text with 60 letters in a line, which readFile reads back. Line breaks in names and descriptions
/// become blanks.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray toText(const QList<FastaEntry> &entries);

/// Writes that text whole or not at all; CannotOpenFile when it can't be written.
ORV_WORKFLOW_EXPORT Error writeFile(const QString &path, const QList<FastaEntry> &entries);

} // namespace Fasta

} // namespace orv
