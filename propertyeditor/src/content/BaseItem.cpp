#include "orv/propertyeditor/content/BaseItem.h"

#include "Announce.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QMetaEnum>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

void insertUnlessEmpty(QJsonObject &json, QLatin1String key, const QString &text)
{
    if (!text.isEmpty())
        json.insert(key, text);
}

QMap<BaseItemType, QString> buildTypeNameMap()
{
    QMap<BaseItemType, QString> names;
    const QMetaEnum metaEnum = QMetaEnum::fromType<BaseItemType>();
    for (int i = 0; i < metaEnum.keyCount(); ++i) {
        const char *key = metaEnum.key(i);
        bool ok = false;
        const int value = metaEnum.keyToValue(key, &ok);
        if (ok)
            names.insert(BaseItemType(value), QString::fromLatin1(key));
        else
            qCWarning(propertyEditorLog) << "Cannot retrieve enum value for a key" << key;
    }
    return names;
}

} // namespace

BaseItem::BaseItem(BaseItemType type)
    : m_type(type)
{}

BaseItem::~BaseItem() = default;

QJsonObject BaseItem::toJson(PropertyConversionFlag flag) const
{
    Q_UNUSED(flag)
    QJsonObject json;
    insertUnlessEmpty(json, META_IN_JSON_KEY, m_metadata);
    json.insert(TYPE_KEY, typeString());
    insertUnlessEmpty(json, NAME_KEY, m_name);
    insertUnlessEmpty(json, TITLE_KEY, m_title);
    return json;
}

Error BaseItem::assignFromJson(const QJsonObject &json, ValidationOptions options)
{
    Q_UNUSED(options)
    m_metadata = json.value(META_IN_JSON_KEY).toString();
    m_type = typeFromString(json.value(TYPE_KEY).toString());
    m_name = json.value(NAME_KEY).toString();
    m_title = json.value(TITLE_KEY).toString();
    if (!announce(this, [this] { Q_EMIT changed(); }))
        return removedWhileLoading();
    return Error::NoError;
}

Error BaseItem::load(const QJsonObject &json, ValidationOptions options, const LoadContext &context)
{
    Q_UNUSED(context)
    ORV_RETURN_IF_ERROR(assignFromJson(json, options));
    return Error::NoError;
}

Error BaseItem::checkWritable() const
{
    return Error::NoError;
}

Result<std::unique_ptr<BaseItem>> BaseItem::copied(PropertyConversionFlag flag) const
{
    const QJsonObject json = toJson(flag);
    const CellType *row = CellTypes::find(m_type);
    if (json.isEmpty() || !row)
        return Error(ErrorCode::MalformedStructure);
    std::unique_ptr<BaseItem> copy = row->create(m_type);
    ORV_RETURN_IF_ERROR(copy->load(json, ValidationOption::SkipTypeValidation, {}));
    return copy;
}

void BaseItem::setBaseUrl(const QUrl &url)
{
    Q_UNUSED(url)
}

BaseItemType BaseItem::typeFromString(const QString &text)
{
    return baseItemTypeFromString(text);
}

QString BaseItem::typeToString(BaseItemType type)
{
    return baseItemTypeToString(type);
}

QMap<BaseItemType, QString> BaseItem::typeNameMap()
{
    static const QMap<BaseItemType, QString> names = buildTypeNameMap();
    return names;
}

QStringList BaseItem::typeNames()
{
    static const QStringList names = typeNameMap().values();
    return names;
}

} // namespace orv::PropertyEditor
