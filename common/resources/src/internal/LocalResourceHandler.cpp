#include "LocalResourceHandler.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

namespace orv {

bool LocalResourceHandler::isAvailableLocally() const
{
    return QFileInfo::exists(reference()->text());
}

Result<bool> LocalResourceHandler::exists()
{
    return isAvailableLocally();
}

Result<QString> LocalResourceHandler::grab()
{
    if (isAvailableLocally())
        return reference()->text();
    const auto tr = [](const char *text) { return QCoreApplication::translate("ResourceHandler", text); };
    return Error(ErrorCode::CannotOpenFile,
                 tr(QT_TRANSLATE_NOOP("ResourceHandler", "The file \"%1\" does not exist."))
                     .arg(reference()->readableText()))
        .addDetail(tr(QT_TRANSLATE_NOOP("ResourceHandler", "Restore the file, or refer to another one.")));
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
