#include "orv/chemistry/WorkflowNodeUpgradeUtils.h"

#include <orv/table/CustomSettings.h>

#include <QCoreApplication>
#include <QSet>

#include <array>
#include <cmath>
#include <optional>

namespace orv::WorkflowNodeUpgradeUtils {

namespace {

using XicMode = WorkflowNodeXicMethodOptions::XicMode;
using ToleranceDetermination = WorkflowNodeInsilicoAlign::ToleranceDetermination;

struct WorkflowNodeUpgradeUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowNodeUpgradeUtils)
};

template<typename T>
struct Word
{
    QLatin1String text;
    T value;
};

constexpr std::array kModes = {
    Word<XicMode>{QLatin1String("standard"), XicMode::Standard},
    Word<XicMode>{QLatin1String("fast"), XicMode::Fast},
};

constexpr std::array kDeterminations = {
    Word<ToleranceDetermination>{QLatin1String("automatic"), ToleranceDetermination::Automatic},
    Word<ToleranceDetermination>{QLatin1String("0"), ToleranceDetermination::Automatic},
    Word<ToleranceDetermination>{QLatin1String("byhand"), ToleranceDetermination::ByHand},
    Word<ToleranceDetermination>{QLatin1String("1"), ToleranceDetermination::ByHand},
};

template<const auto &Words>
auto wordValue(const QString &text)
{
    std::optional<decltype(Words[0].value)> value;
    for (const auto &word : Words) {
        if (text.compare(word.text, Qt::CaseInsensitive) == 0)
            value = word.value;
    }
    return value;
}

std::optional<int> countValue(const QString &text)
{
    bool ok = false;
    const int count = text.toInt(&ok);
    return ok && count > 0 ? std::optional(count) : std::nullopt;
}

std::optional<double> minutesValue(const QString &text)
{
    bool ok = false;
    const double minutes = text.toDouble(&ok);
    return ok && std::isfinite(minutes) && minutes >= 0 ? std::optional(minutes) : std::nullopt;
}

/// Takes settings one by one, and remembers which of them leave the text.
class SettingsTaker
{
public:
    explicit SettingsTaker(const QVariantMap &values)
        : m_values(values)
    {}

    template<typename T, typename Read>
    void take(QLatin1String key, T *target, Read read)
    {
        if (!m_values.contains(key))
            return;
        const QString text = m_values.value(key).toString().trimmed();
        if (const auto value = read(text)) {
            *target = *value;
            m_taken.insert(key);
        } else {
            m_warnings.append(
                WorkflowNodeUpgradeUtilsTr::tr(
                    "The advanced setting \"%1\" has the value \"%2\", which can't be read. It stays in "
                    "the advanced configuration without effect; enter its value in the form.")
                    .arg(key, text));
        }
    }

    [[nodiscard]] QString rest(const QString &text) const
    {
        return CustomSettings::withoutSettings(text, CustomSettings::Format::Sections, m_taken);
    }
    [[nodiscard]] const Warnings &warnings() const { return m_warnings; }

private:
    const QVariantMap &m_values;
    QSet<QString> m_taken;
    Warnings m_warnings;
};

} // namespace

FastXicUpgrade fastXicBackwardsCompatibility(const QString &text, const QVariantMap &values)
{
    WorkflowNodeXicMethodOptions options;
    SettingsTaker settings(values);
    settings.take(kXicMode, &options.mode, wordValue<kModes>);
    settings.take(kXicBlockScans, &options.fastXicOptions.scansPerBlock, countValue);
    settings.take(kXicCacheSize, &options.fastXicOptions.cacheMegabytes, countValue);
    settings.take(kXicMzBins, &options.fastXicOptions.mzBins, countValue);
    return {settings.rest(text), options, settings.warnings()};
}

InsilicoAlignUpgrade inSilicoAlignSettingsBackwardsCompatibility(const QString &text)
{
    CustomSettings read;
    // Lines that are no settings stay as they are.
    const Warnings ignored = read.setupValues(text, CustomSettings::Format::Sections);
    const QVariantMap values = read.values();
    WorkflowNodeInsilicoAlign options;
    SettingsTaker settings(values);
    settings.take(kAlignEnabled, &options.isInsilicoAlignmentEnabled, CustomSettings::toSwitch);
    settings.take(kAlignToleranceDetermination, &options.toleranceDetermination, wordValue<kDeterminations>);
    settings.take(kAlignTolerance, &options.alignmentTolerance, minutesValue);
    return {settings.rest(text), options, settings.warnings()};
}

} // namespace orv::WorkflowNodeUpgradeUtils
