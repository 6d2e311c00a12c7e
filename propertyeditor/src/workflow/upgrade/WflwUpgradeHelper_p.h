#pragma once

#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>

#include <QMap>

namespace orv {

class UpgradeRun;

class WflwUpgradeHelper::Private
{
public:
    QMap<int, QString> notes;
    QUrl baseUrl;
    UpgradeRun *run = nullptr; ///< that the steps belong to; none for steps that are called by themselves
};

} // namespace orv
