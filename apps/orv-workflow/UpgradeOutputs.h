#pragma once

#include "Failure.h"
#include "Inputs.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv::cli {

/// Where the documents of a batch go.
struct UpgradeTarget
{
    enum class Kind
    {
        None,    ///< nothing is written
        InPlace, ///< each document replaces itself
        Output,  ///< a file, or a folder for several documents
    };

    Kind kind = Kind::None;
    QString output;
    bool keepsBackup = false;
};

/// An output for each input, in order; an empty text where nothing is written. A call that would write one
/// output twice fails, and nothing may be written then.
struct UpgradeOutputs
{
    QStringList outputs;
    std::optional<Failure> failure;
    QString failedFile;
};

/// \a arguments are what the user named, \a inputs the documents that they mean.
[[nodiscard]] UpgradeOutputs upgradeOutputs(const QStringList &arguments, const QList<BatchInput> &inputs,
                                            const UpgradeTarget &target);

/// Writes a document whole or not at all, with the folders that it needs.
[[nodiscard]] Outcome<void> writeUpgraded(const QString &output, const QByteArray &bytes);

/// Keeps \a bytes beside \a file under a name that is free, and reads them back; the name, or why not.
[[nodiscard]] Outcome<QString> keepBackup(const QString &file, const QByteArray &bytes);

} // namespace orv::cli
