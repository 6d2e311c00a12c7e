#pragma once

#include <orv/widgets/Export.h>

#include <QHash>
#include <QIcon>
#include <QString>

namespace orv {

/// The pictures by which people know workflows. They are resources of the application: files below
/// ":/workflows/SIZE", in its folders "idle" for what is at rest and "hover" for what is pointed at, with
/// 128 and 48 as sizes. Static functions; GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT WorkflowIcons
{
public:
    /// By name; read once, when somebody first asks.
    [[nodiscard]] static const QHash<QString, QIcon> &availableIcons();
    /// The default icon where there is none of that name, and an empty one without a default.
    [[nodiscard]] static QIcon icon(const QString &name);
    [[nodiscard]] static QString defaultIconName();
};

} // namespace orv
