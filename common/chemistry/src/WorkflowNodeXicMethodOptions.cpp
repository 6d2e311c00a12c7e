#include "orv/chemistry/WorkflowNodeXicMethodOptions.h"

#include <QMetaEnum>

namespace orv {

QString WorkflowNodeXicMethodOptions::modeToString(XicMode mode)
{
    return QString::fromLatin1(QMetaEnum::fromType<XicMode>().valueToKey(static_cast<int>(mode)));
}

std::optional<WorkflowNodeXicMethodOptions::XicMode>
WorkflowNodeXicMethodOptions::modeFromString(const QString &text)
{
    // The meta-enum would also take a qualified key.
    const QMetaEnum modes = QMetaEnum::fromType<XicMode>();
    for (int i = 0; i < modes.keyCount(); ++i) {
        if (text == QLatin1String(modes.key(i)))
            return static_cast<XicMode>(modes.value(i));
    }
    return std::nullopt;
}

} // namespace orv
