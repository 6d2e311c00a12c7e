#include "orv/propertyeditor/content/BaseItemType.h"

#include <orv/core/Logging.h>

#include <QHash>
#include <QMetaEnum>

namespace orv {

std::optional<BaseItemType> findBaseItemType(const QString &text)
{
    // QMetaEnum::keyToValue also takes qualified names, and stops at a zero byte.
    static const QHash<QString, BaseItemType> types = [] {
        const QMetaEnum metaEnum = QMetaEnum::fromType<BaseItemType>();
        QHash<QString, BaseItemType> found;
        for (int i = 0; i < metaEnum.keyCount(); ++i)
            found.insert(QString::fromLatin1(metaEnum.key(i)), BaseItemType(metaEnum.value(i)));
        return found;
    }();
    const auto type = types.constFind(text);
    return type == types.cend() ? std::nullopt : std::optional(*type);
}

BaseItemType baseItemTypeFromString(const QString &text)
{
    if (text.isEmpty())
        return BaseItemType::Unknown;
    if (const std::optional<BaseItemType> type = findBaseItemType(text))
        return *type;
    qCWarning(propertyEditorLog) << "Can't find type" << text;
    return BaseItemType::Unknown;
}

QString baseItemTypeToString(BaseItemType type)
{
    return QString::fromLatin1(QMetaEnum::fromType<BaseItemType>().valueToKey(type));
}

} // namespace orv
