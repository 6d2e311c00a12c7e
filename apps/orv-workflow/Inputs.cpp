#include "Inputs.h"

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/PathUtils.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace orv::cli {

namespace {

bool isPortableFolder(const QString &path)
{
    return PathUtils::isDirectory(path) && WflwUtils::isMirelPortableWorkflow(path);
}

Result<QByteArray> readStandardInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
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
    return argument == kStandardInput ? readStandardInput() : FileUtils::readFile(workflowFileOf(argument));
}

QStringList workflowsBelow(const QString &folder)
{
    const QStringList masks = FileExtensionsNameFilter{MirelFileTypes::WFLW}.fileMasks();
    QDirIterator it(folder, masks, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    QStringList files;
    while (it.hasNext())
        files.append(it.next());
    files.sort();
    return files;
}

} // namespace

QString workflowFileOf(const QString &argument)
{
    return isPortableFolder(argument) ? WflwUtils::workflowInPortableWorkflow(QDir(argument).absolutePath())
                                      : argument;
}

QUrl folderUrlOf(const QString &argument)
{
    const QString folder =
        argument == kStandardInput ? QDir::currentPath() : QFileInfo(workflowFileOf(argument)).absolutePath();
    return QUrl::fromLocalFile(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

Outcome<FileText> readText(const QString &argument)
{
    const Result<QByteArray> bytes = readBytes(argument);
    if (bytes.hasError())
        return failureFrom(bytes.error(), BadInput);
    Result<QJsonObject> document = JsonUtils::objectFromJson(*bytes);
    if (document.hasError()) {
        Error error(document.error().code(), QStringLiteral("The file is no workflow:"));
        error.addDetail(document.error().errorMessage());
        for (const QString &detail : document.error().details())
            error.addDetail(detail);
        return failureFrom(error, BadInput);
    }
    return FileText{*bytes, *document};
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
    for (const QString &argument : arguments) {
        const auto isSame = [&argument](const BatchInput &input) { return input.file == argument; };
        if (argument == kStandardInput && std::any_of(inputs.begin(), inputs.end(), isSame)) {
            // Two threads would tear its bytes apart.
            inputs.append({argument, Failure{BadInput, 0,
                                             QStringLiteral("The standard input is named twice, and can "
                                                            "be read once.")}});
            continue;
        }
        if (argument == kStandardInput || !PathUtils::isDirectory(argument) || isPortableFolder(argument)) {
            inputs.append({argument, {}});
            continue;
        }
        const QStringList files = workflowsBelow(argument);
        for (const QString &file : files)
            inputs.append({file, {}, argument});
        if (files.isEmpty()) {
            inputs.append(
                {argument, Failure{BadInput, 0,
                                   QStringLiteral("The folder holds no *.wflw file; name a file or a "
                                                  "folder that has one.")}});
        }
    }
    return inputs;
}

} // namespace orv::cli
