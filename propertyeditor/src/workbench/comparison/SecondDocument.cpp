#include "SecondDocument.h"

#include <orv/propertyeditor/content/CellStamps.h>
#include <orv/propertyeditor/validators/WorkflowFile.h>
#include <orv/propertyeditor/workflow/WorkflowReferences.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QUrl>

namespace orv {

using PropertyEditor::WorkflowFile;

namespace {

struct SecondDocumentTr
{
    Q_DECLARE_TR_FUNCTIONS(SecondDocument)
};

/// As columns give their cells back.
QByteArray cellText(const QVariant &cell)
{
    QByteArray bytes = cell.toByteArray();
    const QJsonDocument parsed = QJsonDocument::fromJson(bytes);
    if (!parsed.isObject())
        return bytes;
    return QJsonDocument(CellStamps::without(parsed.object())).toJson(QJsonDocument::Compact);
}

DocumentState stateOf(const PropertyEditorContent &content)
{
    DocumentState state;
    for (const auto &[title, columnsAndCells] : content.tabsAndContent()) {
        DocumentState::Tab tab{title, columnsAndCells.first, {}};
        for (const QVariant &cell : columnsAndCells.second)
            tab.cells.append(cellText(cell));
        state.tabs.append(tab);
    }
    state.metadata = content.metadata();
    return state;
}

Error invalid(const QString &text, const QString &path)
{
    return {ErrorCode::InvalidContent,
            SecondDocumentTr::tr("%1: %2").arg(QDir::toNativeSeparators(path), text)};
}

void upgrade(WorkflowFile *file, SecondDocument *second)
{
    const QString from = file->version().toString();
    const bool needsUpgrade = file->state() == WflwMetaData::WflwState::NeedsUpgrade;
    const WorkflowUpgradeReport report = file->upgrade();
    if (report.error.hasError()) {
        second->error = invalid(SecondDocumentTr::tr("The workflow can't be upgraded: %1")
                                    .arg(report.error.errorMessages().join(u' ')),
                                file->path());
    } else if (needsUpgrade && report.isChanged) {
        second->note =
            SecondDocumentTr::tr("%1 was upgraded from %2 for this comparison; its file stays as it is.")
                .arg(second->name, from);
    }
}

void judge(const WorkflowFile &file, SecondDocument *second)
{
    QStringList reasons;
    if (file.isNewer()) {
        second->note = SecondDocumentTr::tr("%1 comes from a newer version of the software (%2).")
                           .arg(second->name, file.version().toString());
        second->refusal =
            SecondDocumentTr::tr("Nothing can be taken over from a workflow of a newer version of the "
                                 "software: it may mean something else there.");
    } else if (file.state(&reasons) == WflwMetaData::WflwState::NotSupported) {
        second->error = invalid(reasons.join(u' '), file.path());
    }
}

/// What is taken over is to name the same files.
/// Empty for a document without a file.
QUrl folderOf(const QString &file)
{
    return file.isEmpty() ? QUrl() : QUrl::fromLocalFile(QFileInfo(file).absolutePath() + u'/');
}

void addNote(SecondDocument *second, const QString &text)
{
    second->note += (second->note.isEmpty() ? QString() : QStringLiteral("\n")) + text;
}

QJsonObject inFolder(const WorkflowFile &file, const QUrl &folder, SecondDocument *second)
{
    if (file.folderUrl() == folder)
        return file.document();
    QJsonObject absolute = WorkflowReferences::withAbsolutePaths(file.document(), file.folderUrl());
    if (absolute != file.document()) {
        addNote(second, SecondDocumentTr::tr("Files that it names from its own folder are shown with their "
                                             "whole paths."));
    }
    return absolute;
}

} // namespace

SecondDocument SecondDocument::read(const QString &path, const QString &own,
                                    const std::atomic_bool &isCancelled)
{
    SecondDocument second;
    second.path = path;
    second.name = QFileInfo(QDir::cleanPath(path)).fileName();
    Result<WorkflowFile> file = WorkflowFile::open(path);
    if (file.hasError()) {
        second.error = file.error();
        return second;
    }
    judge(*file, &second);
    if (!isCancelled && !second.error.hasError() && second.refusal.isEmpty())
        upgrade(&*file, &second);
    if (isCancelled)
        return second;
    if (!second.error.hasError())
        second.state = stateOf(PropertyEditorContent(inFolder(*file, folderOf(own), &second)));
    if (!second.error.hasError() && second.state.tabs.isEmpty())
        second.error = invalid(SecondDocumentTr::tr("There are no tabs in this workflow."), file->path());
    second.isOwnFile =
        !own.isEmpty() && QFileInfo(WorkflowFile::fileAt(path)) == QFileInfo(WorkflowFile::fileAt(own));
    if (second.isOwnFile)
        addNote(&second,
                SecondDocumentTr::tr("This is the file of this workflow: what differs isn't saved yet."));
    return second;
}

} // namespace orv
