#include "orv/core_ms/CustomSettingsUtils.h"

#include <orv/core/Logging.h>

#include <QReadWriteLock>

namespace orv::CustomSettingsUtils {

namespace {

struct Current
{
    QReadWriteLock lock;
    CustomSettings settings;
};

Current &current()
{
    static Current instance;
    return instance;
}

} // namespace

void setCurrentCustomSettings(const CustomSettings &settings)
{
    Current &now = current();
    const QWriteLocker locker(&now.lock);
    now.settings = settings;
}

CustomSettings currentCustomSettings()
{
    Current &now = current();
    const QReadLocker locker(&now.lock);
    return now.settings;
}

void extendFromCurrentCustomSettings(msreader::MsReaderOptions *options)
{
    const CustomSettings settings = currentCustomSettings();
    if (!settings.contains(kUseIndex))
        return;
    const QString value = settings.value(kUseIndex).toString();
    const std::optional<bool> usesIndex = CustomSettings::toSwitch(value);
    if (!usesIndex)
        qCWarning(genericLog()) << "The advanced setting" << kUseIndex
                                << "is neither true nor false:" << value;
    options->usesIndex = usesIndex.value_or(options->usesIndex);
}

} // namespace orv::CustomSettingsUtils
