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
    if (const Chooser chooser = hostChooser())
        return chooser(options, parent, page, location);
    const bool isLocal = options.start && options.start->isScheme(ResourceReference::Scheme::LocalFile);
    const QString title = options.title.isEmpty() ? FileChooserTr::tr("Choose a File") : options.title;
    const QString path = ORVFileDialog::getOpenFileName(
        parent, title, isLocal ? options.start->text() : QString(), options.filter.types, location);
    if (path.isEmpty())
        return {};
    Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(path);
    if (!reference.hasError())
        return *reference;
    reference.ecatch();
    return {};
}

void setChooser(Chooser chooser)
{
    hostChooser() = std::move(chooser);
}

} // namespace orv::FileChooserDialogManager
