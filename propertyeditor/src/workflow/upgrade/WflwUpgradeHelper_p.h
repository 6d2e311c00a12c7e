#pragma once

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/remote/SilentServers.h>

#include <QMap>

namespace orv {

class UpgradeRun;

class WflwUpgradeHelper::Private
{
public:
    QMap<int, QString> notes;
    QUrl baseUrl;
    SilentServers ownSilentServers;
    SilentServers *silentServers = &ownSilentServers; ///< those of the run
    UpgradeRun *run = nullptr; ///< that the steps belong to; none for steps that are called by themselves
};

} // namespace orv
