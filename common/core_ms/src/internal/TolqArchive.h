#pragma once

#include <orv/core/Result.h>

#include <QByteArray>
#include <QString>

#include <memory>

namespace orv::internal {

/// A zip archive from outside, which may be made to do harm.
class TolqArchive
{
public:
    static constexpr int kMostEntries = 100'000;
    static constexpr qint64 kMostMetadataBytes = qint64(16) << 20;
    /// Spectra pack to a tenth; beyond this much, an archive may unpack to a hundred times its size.
    static constexpr qint64 kFreeBytes = qint64(64) << 20;
    static constexpr qint64 kMostRatio = 100;

    explicit TolqArchive(const QString &path);
    ~TolqArchive();
    Q_DISABLE_COPY_MOVE(TolqArchive)

    [[nodiscard]] Error open();
    [[nodiscard]] Result<QByteArray> readEntry(const QString &name);
    /// Unpacks the file \a name, or all below the folder \a name, into \a directory.
    [[nodiscard]] Error extract(const QString &name, const QString &directory);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv::internal
