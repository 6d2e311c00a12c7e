#include "orv/chemistry/KarvonConstants.h"

#include <orv/core/Logging.h>

#include <array>

namespace orv::KarvonConstants {

namespace {

// By machine type, whose numbers stand in files; the engine knows the texts.
constexpr std::array kMachineTypes = {
    QLatin1String("peptide:CID"),   QLatin1String("peptide:ETD"),   QLatin1String("peptide:HCD"),
    QLatin1String("peptide:EThcD"), QLatin1String("peptide:ETciD"), QLatin1String("DNA:HCD"),
    QLatin1String("peptide:UVPD"),  QLatin1String("RNA:HCD"),
};

} // namespace

QString mapMachineTypeComboboxValueToKarvonPresetValue(int machineType)
{
    if (machineType >= 0 && size_t(machineType) < kMachineTypes.size())
        return kMachineTypes[size_t(machineType)];
    qCWarning(genericLog()) << "There is no machine type" << machineType;
    return {};
}

int machineTypeForKarvonPresetValue(const QString &text)
{
    for (size_t i = 0; i < kMachineTypes.size(); ++i) {
        if (text.compare(kMachineTypes[i], Qt::CaseInsensitive) == 0)
            return int(i);
    }
    qCWarning(genericLog()) << "The search engine has no machine type" << text;
    return -1;
}

} // namespace orv::KarvonConstants
