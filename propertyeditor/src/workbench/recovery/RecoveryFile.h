#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/workbench/RecoveryEntry.h>

#include <QByteArray>
#include <QJsonObject>

/// The form of a journal: one line of JSON that says whose it is and what changed, and behind it the document
/// as compact JSON, whose size and checksum the line holds.
namespace orv::RecoveryFile {

inline constexpr QLatin1String kSuffix(".journal");
inline constexpr QLatin1String kLockSuffix(".lock");
/// Of the first line.
inline constexpr qint64 kMostHeaderBytes = qint64(1024) * 1024;

enum class Fault
{
    None,
    Damaged,
    Foreign, ///< of another program or a later form
    Unreadable,
};

struct Header
{
    RecoveryEntry entry;
    qsizetype documentOffset = 0;
    qint64 documentBytes = 0;
    QByteArray documentChecksum;
    Fault fault = Fault::None;
};

[[nodiscard]] QByteArray toBytes(const RecoveryEntry &entry, const QByteArray &document);

/// Reads no more than the first line, and compares the sizes.
[[nodiscard]] Header readHeader(const QString &path);

struct Document
{
    QJsonObject object;
    Fault fault = Fault::None;
};

[[nodiscard]] Document readDocument(const Header &header);

/// SHA-256 in hex digits; empty for what can't be read.
[[nodiscard]] QByteArray checksumOf(const QByteArray &bytes);
[[nodiscard]] QByteArray checksumOfFile(const QString &path);

} // namespace orv::RecoveryFile
