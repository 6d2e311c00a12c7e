#pragma once

#include <orv/chemistry/TurboXicSettings.h>
#include <orv/core/Export.h>

#include <QObject>
#include <QString>

#include <optional>

namespace orv {

/// How ion chromatograms are extracted. A plain value.
class ORV_WORKFLOW_EXPORT WorkflowNodeXicMethodOptions
{
    Q_GADGET

public:
    /// Keys are stored in files, never rename or renumber.
    enum class XicMode : int
    {
        Standard = 0, ///< scan by scan
        Fast = 1,     ///< from sorted blocks of scans
    };
    Q_ENUM(XicMode)

    XicMode mode = XicMode::Standard;
    TurboXicSettings fastXicOptions = TurboXicSettingsCreator::createHighCapacity();

    /// The enumerator's key.
    [[nodiscard]] static QString modeToString(XicMode mode);
    /// The enumerator of exactly that key, or nothing.
    [[nodiscard]] static std::optional<XicMode> modeFromString(const QString &text);

    bool operator==(const WorkflowNodeXicMethodOptions &) const = default;
};

} // namespace orv
