#include "LocalResourceHandler.h"

#include "LocalPath.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

namespace orv {

QString LocalResourceHandler::path() const
{
    QString text = reference()->text();
    const QString slashed = LocalPath::withSlashes(text);
    return QFileInfo::exists(text) || !QFileInfo::exists(slashed) ? text : slashed;
}

bool LocalResourceHandler::isAvailableLocally() const
{
    return QFileInfo::exists(path());
}

Result<bool> LocalResourceHandler::exists()
{
    return isAvailableLocally();
}

Result<QString> LocalResourceHandler::grab()
{
    QString found = path();
    if (QFileInfo::exists(found))
        return found;
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
