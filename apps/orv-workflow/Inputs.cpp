#include "Inputs.h"

#include "NativeNames.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/PathUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

namespace orv::cli {

namespace {

bool isPortableFolder(const QString &path)
{
    return PathUtils::isDirectory(path) && WflwUtils::isMirelPortableWorkflow(path);
}

/// All that comes from a stream, as far as a workflow may be large.
Result<QByteArray> readStream(const QString &argument)
{
    QFile input(argument);
    const bool isOpen = argument == kStandardInput ? input.open(stdin, QIODevice::ReadOnly)
                                                   : input.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (!isOpen)
        return Error(ErrorCode::CannotOpenFile, QStringLiteral("Could not read the standard input."));
    QByteArray bytes;
    while (bytes.size() <= FileUtils::kMaxFileSize) {
        const QByteArray chunk = input.read(1 << 20);
        if (chunk.isEmpty())
            return bytes;
        bytes += chunk;
    }
    return Error(ErrorCode::InvalidContent,
                 QStringLiteral("The standard input is too large; at most 128 MiB are read."));
}

Result<QByteArray> readBytes(const QString &argument)
{
    return isStream(argument) ? readStream(argument) : FileUtils::readFile(workflowFileOf(argument));
}

Failure noWorkflow(const Error &reason)
{
    Error error(reason.code(), QStringLiteral("The file is no workflow:"));
    error.addDetail(reason.errorMessage());
    for (const QString &detail : reason.details())
        error.addDetail(detail);
    return failureFrom(error, BadInput);
}

/// What a search of a folder found, in any order: its workflows, and what couldn't be looked into.
class FolderSearch
{
public:
    explicit FolderSearch(const QString &folder)
        : m_root(folder)
    {
        look(QFile::encodeName(folder).toStdString());
        std::sort(m_inputs.begin(), m_inputs.end(),
                  [](const BatchInput &a, const BatchInput &b) { return a.file < b.file; });
    }

    [[nodiscard]] const QList<BatchInput> &inputs() const { return m_inputs; }

private:
    void look(const std::filesystem::path &root)
    {
        std::vector<std::filesystem::path> folders{root};
        while (!folders.empty()) {
            const std::filesystem::path folder = folders.back();
            folders.pop_back();
            std::error_code error;
            for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end;
                 it.increment(error)) {
                std::error_code unknown; // of a link that leads nowhere
                if (!it->is_directory(unknown))
                    addIfWorkflow(it->path());
                else if (!it->is_symlink(unknown))
                    folders.push_back(it->path());
            }
            if (error)
                addUnreadable(folder, error);
        }
    }

    void addIfWorkflow(const std::filesystem::path &path)
    {
        const QString name = nameFromBytes(path.c_str());
        if (PathUtils::hasExtension(name, QStringLiteral("wflw")))
            m_inputs.append({withEscapedBytes(name), checkName(name, BadInput).failureIfAny(), m_root});
    }

    void addUnreadable(const std::filesystem::path &path, const std::error_code &error)
    {
        const QString reason = QString::fromLocal8Bit(error.message().c_str());
        m_inputs.append({withEscapedBytes(nameFromBytes(path.c_str())),
                         Failure{BadInput, 0,
                                 QStringLiteral("The folder can't be read, so that workflows in it may be "
                                                "missing: %1")
                                     .arg(reason)},
                         m_root});
    }

    QString m_root;
    QList<BatchInput> m_inputs;
};

/// What an input that was named before has in common with it. Standard input counts by its name.
QString identityOf(const QString &file)
{
    return file == kStandardInput ? file : QFileInfo(workflowFileOf(file)).canonicalFilePath();
}

} // namespace

bool isStream(const QString &argument)
{
    return argument == kStandardInput || argument == QLatin1String("/dev/stdin") ||
           argument.startsWith(QLatin1String("/dev/fd/")) ||
           argument.startsWith(QLatin1String("/proc/self/fd/"));
}

QString workflowFileOf(const QString &argument)
{
    return isPortableFolder(argument) ? WflwUtils::workflowInPortableWorkflow(QDir(argument).absolutePath())
                                      : argument;
}

QUrl folderUrlOf(const QString &argument)
{
    const QString folder =
        isStream(argument) ? QDir::currentPath() : QFileInfo(workflowFileOf(argument)).absolutePath();
    return QUrl::fromLocalFile(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

Outcome<FileText> readText(const QString &argument)
{
    const Result<QByteArray> bytes = readBytes(argument);
    if (bytes.hasError())
        return failureFrom(bytes.error(), BadInput);
    const Result<QJsonObject> document = JsonUtils::objectFromJson(*bytes);
    if (document.hasError())
        return noWorkflow(document.error());
    const QString metadata = document->value(PropertyEditorStringConstants::META_IN_JSON_KEY).toString();
    if (const Error fault = WflwMetaData::faultInText(metadata))
        return noWorkflow(fault);
    return FileText{*bytes, *document};
}

Outcome<DoubtfulText> readDoubtful(const QString &argument)
{
    const Result<QByteArray> bytes = readBytes(argument);
    if (bytes.hasError())
        return failureFrom(bytes.error(), BadInput);
    const Result<JsonUtils::DoubtfulObject> read = JsonUtils::doubtfulObjectFromJson(*bytes);
    if (read.hasError())
        return noWorkflow(read.error());
    DoubtfulText text{read->object, {}};
    const QString metadata = read->object.value(PropertyEditorStringConstants::META_IN_JSON_KEY).toString();
    if (read->fault)
        text.fault = failureFrom(read->fault, Done);
    else if (const Error fault = WflwMetaData::faultInText(metadata))
        text.fault = failureFrom(fault, Done);
    return text;
}

Outcome<QJsonObject> readDocument(const QString &argument)
{
    const Outcome<FileText> text = readText(argument);
    if (text.hasFailed())
        return text.failure();
    return text->document;
}

QList<BatchInput> batchInputs(const QStringList &arguments)
{
    QList<BatchInput> inputs;
    QSet<QString> known;
    const auto add = [&inputs, &known](const BatchInput &input) {
        const QString identity = input.failure ? QString() : identityOf(input.file);
        if (!identity.isEmpty() && known.contains(identity))
            return; // named twice, done once
        known.insert(identity);
        inputs.append(input);
    };
    for (const QString &argument : arguments) {
        if (const Outcome<void> name = checkName(argument, BadInput); name.hasFailed()) {
            add({withEscapedBytes(argument), name.failure()});
            continue;
        }
        if (isStream(argument) || !PathUtils::isDirectory(argument) || isPortableFolder(argument)) {
            add({argument, {}});
            continue;
        }
        const FolderSearch search(argument);
        for (const BatchInput &input : search.inputs())
            add(input);
        if (search.inputs().isEmpty()) {
            add({argument, Failure{BadInput, 0,
                                   QStringLiteral("The folder holds no *.wflw file; name a file or a "
                                                  "folder that has one.")}});
        }
    }
    return inputs;
}

} // namespace orv::cli
