#include "orv/widgets/FileChooserDialogManager.h"

#include <orv/widgets/ORVFileDialog.h>

#include <QCoreApplication>

namespace orv::FileChooserDialogManager {

namespace {

struct FileChooserTr
{
    Q_DECLARE_TR_FUNCTIONS(FileChooserDialogManager)
};

Chooser &hostChooser()
{
    static Chooser chooser;
    return chooser;
}

} // namespace

ResourceReferenceSPtr showFileChooser(const FileChooserDialogOptions &options, QWidget *parent, int page,
                                      const FileSystemSettings::DirectoryLocation &location)
{
    if (hostChooser())
        return hostChooser()(options, parent, page);
    const bool isLocal = options.start && options.start->isScheme(ResourceReference::Scheme::LocalFile);
    const QString title = options.title.isEmpty() ? FileChooserTr::tr("Choose a File") : options.title;
    const QString path = ORVFileDialog::getOpenFileName(
        parent, title, isLocal ? options.start->text() : QString(), options.filter.types, location);
    if (path.isEmpty())
        return {};
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(path);
    return reference.hasError() ? ResourceReferenceSPtr() : reference.value();
}

void setChooser(Chooser chooser)
{
    hostChooser() = std::move(chooser);
}

} // namespace orv::FileChooserDialogManager
