#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QString>

#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace orv::msreader {

/// One query of an MGF text: what stands between BEGIN IONS and END IONS.
struct MgfQuery
{
    QString title;
    int msLevel = 1;
    qint64 peaks = 0;
    qsizetype line = 0; ///< of BEGIN IONS, counted from 1

    bool operator==(const MgfQuery &) const = default;
};

/// Reads MGF text query by query; peaks are counted, not kept. The level of a query is the one that it names
/// (MSLEVEL or MS_LEVEL, 1 to 99); otherwise a query with a precursor (PEPMASS, PRECURSOR_MZ or PRECURSORMZ
/// with a number) is of level 2, and one without is of level 1. Words are read in any case; lines that are
/// neither peak nor setting, and all outside of queries, are passed over.
class ORV_WORKFLOW_EXPORT MgfReader
{
public:
    /// What a hostile file may make this program hold at a time.
    struct Limits
    {
        qsizetype lineBytes = 1 << 20;
    };

    /// \a device is open for reading and outlives the reader.
    explicit MgfReader(QIODevice *device);
    MgfReader(QIODevice *device, const Limits &limits);
    ~MgfReader();
    Q_DISABLE_COPY_MOVE(MgfReader)

    /// The next query, or nothing behind the last one. InvalidContent with line and remedy as details: a
    /// query that doesn't end, or begins or ends twice, or a line beyond the limit. CannotOpenFile: the
    /// device fails. After a failure every call gives the same one.
    [[nodiscard]] Result<std::optional<MgfQuery>> next();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv::msreader
