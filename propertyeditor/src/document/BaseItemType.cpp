#include "orv/propertyeditor/content/BaseItemType.h"

#include <orv/core/Logging.h>

#include <QMetaEnum>

namespace orv {

BaseItemType baseItemTypeFromString(const QString &text)
{
    if (text.isEmpty())
        return BaseItemType::Unknown;
    bool ok = false;
    const int value = QMetaEnum::fromType<BaseItemType>().keyToValue(text.toUtf8().constData(), &ok);
    if (ok)
        return BaseItemType(value);
    qCWarning(propertyEditorLog) << "Can't find type" << text;
    return BaseItemType::Unknown;
}

QString baseItemTypeToString(BaseItemType type)
{
    return QString::fromLatin1(QMetaEnum::fromType<BaseItemType>().valueToKey(type));
}

} // namespace orv
