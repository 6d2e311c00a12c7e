#include "orv/core/Logging.h"

namespace orv {

const QLoggingCategory &propertyEditorLog()
{
    static const QLoggingCategory category("orv.property_editor", QtWarningMsg);
    return category;
}

const QLoggingCategory &genericLog()
{
    static const QLoggingCategory category("orv.generic", QtWarningMsg);
    return category;
}

} // namespace orv
