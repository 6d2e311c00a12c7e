#pragma once

#include "Outcome.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace orv::cli {

/// The path of standard input.
inline constexpr QLatin1String kStandardInput("-");

/// Whether \a argument is read once and from where it stands: standard input by either name, or the end of a
/// pipe that a shell names "/dev/fd/63".
[[nodiscard]] bool isStream(const QString &argument);

/// The file that a FILE argument means: the inner file of a portable workflow folder, else the argument.
[[nodiscard]] QString workflowFileOf(const QString &argument);

/// The folder that relative references of an input count from, that of the working directory for standard
/// input; ends with a slash, so that a relative path is taken from inside the folder.
[[nodiscard]] QUrl folderUrlOf(const QString &argument);

/// The bytes of a workflow and what they mean.
struct FileText
{
    QByteArray bytes;
    QJsonObject document;
};

/// As readDocument, for those who tell places in the text.
[[nodiscard]] Outcome<FileText> readText(const QString &argument);

/// A workflow for those who show it and write nothing: read on behind a key that stands twice and an escape
/// that JSON doesn't know.
struct DoubtfulText
{
    QJsonObject document;
    std::optional<Failure> fault; ///< why others refuse it, with the place
};

[[nodiscard]] Outcome<DoubtfulText> readDoubtful(const QString &argument);

/// The JSON object of a workflow: from a file, a portable folder or standard input.
[[nodiscard]] Outcome<QJsonObject> readDocument(const QString &argument);

/// One input of a batch, or an argument that names none.
struct BatchInput
{
    QString file;
    std::optional<Failure> failure;
    QString root = {}; ///< the folder that was searched; empty for a file that was named itself
};

/// The workflows that the arguments of a batch mean, in order, each once: files and portable folders as they
/// are, other folders by all their *.wflw files, sorted by path, links to folders not followed. What can't be
/// opened or looked into is among them with its failure.
[[nodiscard]] QList<BatchInput> batchInputs(const QStringList &arguments);

} // namespace orv::cli
