#pragma once

#include "Arguments.h"
#include "Inputs.h"
#include "Outcome.h"

#include <orv/core/LossObserver.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv::cli {

/// An output for each input of a batch, in order; an empty text where nothing is written. A call that would
/// write over another of its inputs, or one output twice, fails, and nothing may be written then.
struct DocumentOutputs
{
    QStringList outputs;
    std::optional<Failure> failure;
    QString failedFile;
};

/// What became of one document, before anything is written.
struct ChangedDocument
{
    QString file; ///< the input
    QByteArray original;
    QByteArray bytes; ///< the original where nothing is changed
    bool isChanged = false;
    QList<Loss> lost;
    Error malformed = {}; ///< of a document that was mended on the way
};

/// Where a document went; empty texts where nothing was written.
struct WrittenDocument
{
    QString output;
    QString backup;
};

/// Where the commands that change documents write: -o, --in-place or --dry-run, and --backup.
class DocumentTarget
{
public:
    void declare(Arguments &arguments);

    /// Wrong usage unless it is said where to write, once.
    [[nodiscard]] Outcome<void> check() const;

    /// \a arguments are what the user named, \a inputs the documents that they mean.
    [[nodiscard]] DocumentOutputs outputsOf(const QStringList &arguments,
                                            const QList<BatchInput> &inputs) const;

    /// Writes whole or not at all, with the folders that \a output needs. In place, what is unchanged is left
    /// alone, and what would be lost needs consent.
    [[nodiscard]] Outcome<WrittenDocument> write(const ChangedDocument &document,
                                                 const QString &output) const;

private:
    enum class Kind
    {
        None,    ///< nothing is written
        InPlace, ///< each document replaces itself
        Output,  ///< a file, or a folder for several documents
    };

    [[nodiscard]] Kind kind() const;
    /// Whether \a document may take the place of what stands at \a output.
    [[nodiscard]] Outcome<void> checkPlace(const ChangedDocument &document, const QString &output) const;
    [[nodiscard]] QString outputOf(const BatchInput &input, bool isFolder) const;

    QString m_output;
    bool m_inPlace = false;
    bool m_dryRun = false;
    bool m_keepsBackup = false;
    bool m_acceptsLosses = false;
};

} // namespace orv::cli
