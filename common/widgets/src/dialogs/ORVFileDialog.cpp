#include "orv/widgets/ORVFileDialog.h"

#include <orv/widgets/DialogService.h>
#include <orv/widgets/ORVStyle.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>

#include <functional>

namespace orv {

namespace {

struct FileQuestion
{
    DialogRequest::Kind kind;
    QString title;
    QString start;
    QStringList filters; ///< lines of the dialog, before that for all files
    FileSystemSettings::DirectoryLocation location;
};

QString startOf(const QString &path, const FileSystemSettings::DirectoryLocation &location)
{
    if (!path.isEmpty() && QFileInfo(path).isAbsolute())
        return path;
    return QDir(FileSystemSettings::folder(location)).filePath(path);
}

/// A dialog that closes before its completions do leaves no window active on X11, and nothing speaks of the
/// focus.
void hideCompletionsOnReturn(const QFileDialog &dialog)
{
    auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit")); // not in native dialogs
    if (!name)
        return;
    QObject::connect(name, &QLineEdit::returnPressed, name, [name] {
        if (name->completer())
            name->completer()->popup()->hide();
    });
}

void prepare(QFileDialog &dialog, const FileQuestion &question)
{
    dialog.setWindowTitle(question.title);
    const QFileInfo info(question.start);
    dialog.setDirectory(info.isDir() ? question.start : info.absolutePath());
    if (!info.isDir())
        dialog.selectFile(info.fileName());
    hideCompletionsOnReturn(dialog);
    if (!question.filters.isEmpty())
        dialog.setNameFilters(QStringList(question.filters) << QFileDialog::tr("All Files (*)"));
}

/// A dialog that goes together with the question whether to replace a file is gone before window managers
/// have given it the focus, and some give it to nobody then.
void goBackTo(const QPointer<QWidget> &parent)
{
    if (parent && parent->window()->isVisible())
        parent->activateWindow();
}

QStringList pathsFromPerson(const QPointer<QWidget> &parent, const FileQuestion &question,
                            const std::function<void(QFileDialog &)> &setUp)
{
    // The parent may go while the dialog waits, and takes it along.
    const QPointer<QFileDialog> dialog = new QFileDialog(parent);
    prepare(*dialog, question);
    setUp(*dialog);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    QStringList paths = dialog && isAccepted ? dialog->selectedFiles() : QStringList();
    delete dialog;
    goBackTo(parent);
    return paths;
}

QStringList askForPaths(QWidget *parent, const FileQuestion &question,
                        const std::function<void(QFileDialog &)> &setUp)
{
    DialogRequest request;
    request.kind = question.kind;
    request.title = question.title;
    request.text = question.filters.join(u'\n');
    request.startPath = question.start;
    const std::optional<DialogAnswer> answer = DialogService::answerWithoutPerson(request);
    QStringList paths =
        answer ? answer->path.split(u'\n', Qt::SkipEmptyParts) : pathsFromPerson(parent, question, setUp);
    if (paths.isEmpty())
        return {};
    FileSystemSettings::rememberChosen(question.location, paths.constFirst());
    for (QString &path : paths)
        path = QDir::fromNativeSeparators(QFileInfo(path).absoluteFilePath());
    return paths;
}

QString askForPath(QWidget *parent, const FileQuestion &question,
                   const std::function<void(QFileDialog &)> &setUp)
{
    return askForPaths(parent, question, setUp).value(0);
}

bool mayReplace(QWidget *parent, const QString &title, const QString &path)
{
    if (!QFileInfo::exists(path))
        return true;
    const QString text =
        QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(QDir::toNativeSeparators(path));
    return ORVStyle::warning(parent, title, text, QMessageBox::Yes | QMessageBox::No, {}, QMessageBox::No) ==
           QMessageBox::Yes;
}

/// What most people look for first: one line for all of it.
QStringList sampleFilters()
{
    QStringList masks;
    for (const QString &suffix : FileTypes::msDataSuffixes())
        masks.append(QStringLiteral("*.") + suffix);
    const QList<FileType> projects(std::begin(MirelFileTypes::MULTIDOCALLOWEDFILES),
                                   std::end(MirelFileTypes::MULTIDOCALLOWEDFILES));
    const FileExtensionsNameFilter ofProjects(projects);
    const auto line = [](const QString &words, const QStringList &of) {
        return QStringLiteral("%1 (%2)").arg(words, of.join(u' '));
    };
    return QStringList{line(QFileDialog::tr("Samples"), masks + ofProjects.fileMasks()),
                       line(QFileDialog::tr("Mass spectra"), masks)} +
           ofProjects.nameFilters().mid(1);
}

QString firstSuffix(const FileExtensionsNameFilter &filter)
{
    return filter.isEmpty() ? QString() : FileTypes::suffixes(filter.types().constFirst()).value(0);
}

} // namespace

QString ORVFileDialog::getOpenFileName(QWidget *parent, const QString &title, const QString &startPath,
                                       const FileExtensionsNameFilter &filter,
                                       const FileSystemSettings::DirectoryLocation &location)
{
    const FileQuestion question = {DialogRequest::Kind::OpenFile, title, startOf(startPath, location),
                                   filter.nameFilters(), location};
    return askForPath(parent, question,
                      [](QFileDialog &dialog) { dialog.setFileMode(QFileDialog::ExistingFile); });
}

QStringList ORVFileDialog::getSampleFileNames(QWidget *parent, const QString &title,
                                              const FileSystemSettings::DirectoryLocation &location)
{
    const FileQuestion question = {DialogRequest::Kind::OpenFile, title, startOf({}, location),
                                   sampleFilters(), location};
    return askForPaths(parent, question,
                       [](QFileDialog &dialog) { dialog.setFileMode(QFileDialog::ExistingFiles); });
}

QStringList ORVFileDialog::getOpenFileNames(QWidget *parent, const QString &title, const QString &startPath,
                                            const FileExtensionsNameFilter &filter,
                                            const FileSystemSettings::DirectoryLocation &location)
{
    const FileQuestion question = {DialogRequest::Kind::OpenFile, title, startOf(startPath, location),
                                   filter.nameFilters(), location};
    return askForPaths(parent, question,
                       [](QFileDialog &dialog) { dialog.setFileMode(QFileDialog::ExistingFiles); });
}

QString ORVFileDialog::getSaveFileName(QWidget *parent, const QString &title, const QString &startPath,
                                       const FileExtensionsNameFilter &filter,
                                       const FileSystemSettings::DirectoryLocation &location,
                                       OverwritePrompt prompt)
{
    const FileQuestion question = {DialogRequest::Kind::SaveFile, title, startOf(startPath, location),
                                   filter.nameFilters(), location};
    QString path = askForPath(parent, question, [&](QFileDialog &dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite, prompt == OverwritePrompt::Off);
        // It asks about the name that will be written, so it has to know the suffix.
        dialog.setDefaultSuffix(firstSuffix(filter));
    });
    if (path.isEmpty() || filter.isEmpty() || filter.matches(path))
        return path;
    // The dialog takes what follows a dot in the name for a suffix, and so has asked about another file.
    const QString whole = path + u'.' + firstSuffix(filter);
    return prompt == OverwritePrompt::Off || mayReplace(parent, title, whole) ? whole : QString();
}

QString ORVFileDialog::getExistingDirectory(QWidget *parent, const QString &title, const QString &startPath,
                                            FolderContent content,
                                            const FileSystemSettings::DirectoryLocation &location)
{
    const FileQuestion question = {
        DialogRequest::Kind::ChooseFolder, title, startOf(startPath, location), {}, location};
    return askForPath(parent, question, [content](QFileDialog &dialog) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly, content == FolderContent::ShowDirsOnly);
    });
}

} // namespace orv
