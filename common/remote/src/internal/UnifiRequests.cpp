#include "UnifiRequests.h"

#include <orv/remote/UnifiSettings.h>

#include <QCoreApplication>

namespace orv::UnifiRequests {

namespace {

struct UnifiRequestsTr
{
    Q_DECLARE_TR_FUNCTIONS(Servers)
};

Result<HttpRequest> request(const QString &path, const QString &id)
{
    const UnifiSettings settings = UnifiSettings::load();
    if (!settings.isEnabled())
        return Error(ErrorCode::InvalidContent, UnifiRequestsTr::tr("UNIFI is not switched on."))
            .addDetail(
                UnifiRequestsTr::tr(
                    "Set \"%1\" to the address of the server, and don't set \"UNIFI/Enabled\" to false.")
                    .arg(settings.server().addressKey()));
    if (id.isEmpty())
        return Error(ErrorCode::InvalidContent,
                     UnifiRequestsTr::tr("A UNIFI item without an identifier can't be asked for."))
            .addDetail(UnifiRequestsTr::tr("Choose the sample's file again."));
    return HttpRequest{.server = settings.server(), .path = path, .query = {{QStringLiteral("id"), id}}};
}

} // namespace

Result<HttpRequest> item(const QString &id)
{
    return request(QStringLiteral("api/1/items"), id);
}

Result<HttpRequest> itemFolder(const QString &id)
{
    return request(QStringLiteral("api/1/items/folder"), id);
}

Result<HttpRequest> itemContent(const QString &id)
{
    return request(QStringLiteral("api/1/items/content"), id);
}

} // namespace orv::UnifiRequests
