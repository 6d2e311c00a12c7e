#include "orv/widgets/DefaultWidgetCreator.h"

#include <orv/widgets/ORVFileDialog.h>

#include <QCoreApplication>
#include <QMap>

namespace orv::DefaultWidgetCreator {

namespace {

struct FileAccessorTr
{
    Q_DECLARE_TR_FUNCTIONS(FileAccessor)
};

class LocalFileAccessor : public IFileAccessor
{
public:
    QString getOpenFileName(QWidget *parent, const QString &title, const QString &startPath,
                            const FileExtensionsNameFilter &filter,
                            const FileSystemSettings::DirectoryLocation &location) override
    {
        return ORVFileDialog::getOpenFileName(parent, title, startPath, filter, location);
    }

    DestinationFileLocation getSaveFileName(QWidget *parent, const QString &title, const QString &startPath,
                                            const FileExtensionsNameFilter &filter,
                                            const FileSystemSettings::DirectoryLocation &location) override
    {
        const QString path = ORVFileDialog::getSaveFileName(parent, title, startPath, filter, location);
        if (path.isEmpty())
            return {};
        Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(path);
        if (!reference.hasError())
            return DestinationFileLocation(*reference);
        reference.ecatch();
        return {};
    }

    Error saveFile(const DestinationFileLocation &destination,
                   const std::function<Error(const QString &localPath)> &write) override
    {
        const bool isLocal = !destination.isCanceled() &&
                             destination.reference()->isScheme(ResourceReference::Scheme::LocalFile);
        if (!isLocal) {
            Error error(ErrorCode::CannotOpenFile, FileAccessorTr::tr("The file can't be saved there."));
            return error.addDetail(FileAccessorTr::tr("Choose a file on this computer."));
        }
        ORV_RETURN_IF_ERROR(write(destination.reference()->text()));
        return Error::NoError;
    }
};

QMap<FileAccessorType, FileAccessorCreator> &accessorCreators()
{
    static QMap<FileAccessorType, FileAccessorCreator> creators;
    return creators;
}

} // namespace

std::unique_ptr<IFileAccessor> fileAccessor(FileAccessorType type)
{
    const FileAccessorCreator create = accessorCreators().value(type);
    std::unique_ptr<IFileAccessor> accessor = create ? create() : nullptr;
    return accessor ? std::move(accessor) : std::make_unique<LocalFileAccessor>();
}

void setFileAccessorCreator(FileAccessorType type, const FileAccessorCreator &create)
{
    accessorCreators().insert(type, create);
}

} // namespace orv::DefaultWidgetCreator

namespace orv {

IFileAccessor::~IFileAccessor() = default;

} // namespace orv
