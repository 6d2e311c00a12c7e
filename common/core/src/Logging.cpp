#include "orv/core/Logging.h"

namespace orv {

const QLoggingCategory &propertyEditorLog()
{
    static const QLoggingCategory category("orv.property_editor");
    return category;
}

const QLoggingCategory &genericLog()
{
    static const QLoggingCategory category("orv.generic");
    return category;
}

} // namespace orv
