#include "LocalResourceHandler.h"

#include "LocalPath.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

namespace orv {

std::optional<QString> LocalResourceHandler::path() const
{
    const QString text = reference()->text();
    if (QFileInfo::exists(text))
        return text;
    const QString slashed = LocalPath::withSlashes(text);
    if (slashed != text && QFileInfo::exists(slashed))
        return slashed;
    return {};
}

bool LocalResourceHandler::isAvailableLocally() const
{
    return path().has_value();
}

Result<bool> LocalResourceHandler::exists()
{
    return isAvailableLocally();
}

Result<QString> LocalResourceHandler::grab()
{
    if (std::optional<QString> found = path())
        return *std::move(found);
    return Error(ErrorCode::CannotOpenFile,
                 QCoreApplication::translate("ResourceHandler", "The file \"%1\" does not exist.")
                     .arg(reference()->readableText()))
        .addDetail(
            QCoreApplication::translate("ResourceHandler", "Restore the file, or refer to another one."));
}

Result<QJsonObject> LocalResourceHandler::metadata()
{
    Result<QString> path = grab();
    if (path.hasError())
        return path.ecatch();
    const QFileInfo info(*path);
    QJsonObject metadata{
        {QStringLiteral("name"), reference()->name()},
        {QStringLiteral("path"), info.absoluteFilePath()},
        {QStringLiteral("modified"), info.lastModified().toUTC().toString(Qt::ISODateWithMs)}};
    if (info.isFile())
        metadata.insert(QStringLiteral("size"), info.size());
    return metadata;
}

} // namespace orv
