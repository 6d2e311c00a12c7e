#include "orv/core/AppUtils.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>

#include <array>
#endif

namespace orv::AppUtils {

namespace {

QString nameFromSystem()
{
#ifdef Q_OS_UNIX
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd *found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->pw_name);
#endif
    return {};
}

QString nameFromEnvironment()
{
    for (const char *variable : {"USER", "LOGNAME", "USERNAME"}) {
        QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
    return {};
}

QString lookUpUserName()
{
    QString name = nameFromSystem();
    if (name.isEmpty())
        name = nameFromEnvironment();
#ifdef Q_OS_UNIX
    if (name.isEmpty())
        name = QString::number(geteuid());
#endif
    return name.isEmpty() ? QStringLiteral("unknown") : name;
}

} // namespace

QString currentUserName()
{
    // Every stamp of every cell asks, and the name service may be a server.
    static const QString name = lookUpUserName();
    return name;
}

} // namespace orv::AppUtils
