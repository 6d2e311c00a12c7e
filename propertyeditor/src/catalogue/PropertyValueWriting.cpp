#include "GuiValues.h"
#include "PropertyValueForms.h"

#include <KProperty>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QUrl>

#include <array>
#include <memory>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

QJsonValue writeBool(const QVariant &value)
{
    return value.isNull() ? QString() : value.toString();
}

QJsonValue writeInt(const QVariant &value)
{
    return value.toInt();
}

QJsonValue writeLongLong(const QVariant &value)
{
    return value.toLongLong();
}

QJsonValue writeDouble(const QVariant &value)
{
    constexpr int kSignificantDigits = 6;
    return QString::number(value.toDouble(), 'g', kSignificantDigits);
}

QJsonValue writeMap(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    return QJsonObject::fromVariantMap(value.toMap());
}

bool isReference(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<ResourceReferenceSPtr>();
}

// A value that no text stands for would come back as nothing.
QJsonValue writeText(const QVariant &value)
{
    if (isReference(value)) {
        const ResourceReferenceSPtr reference = value.value<ResourceReferenceSPtr>();
        return reference ? reference->text() : QString();
    }
    if (value.isValid() && !value.canConvert<QString>())
        return QJsonValue::Undefined;
    return value.toString();
}

QJsonValue writeObject(const QVariant &value)
{
    return PropertyEditorJsonUtils::variantToObject(value);
}

QJsonValue writeCheckedTexts(const QVariant &value)
{
    return PropertyEditorJsonUtils::stringListToJsonArray(value.toStringList());
}

QJsonValue writeRect(const QVariant &value)
{
    const QRect rect = value.toRect();
    return QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonValue writeRectF(const QVariant &value)
{
    const QRectF rect = value.toRectF();
    return QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonValue writeSize(const QVariant &value)
{
    const QSize size = value.toSize();
    return QJsonArray{size.width(), size.height()};
}

QJsonValue writeSizeF(const QVariant &value)
{
    const QSizeF size = value.toSizeF();
    return QJsonArray{size.width(), size.height()};
}

QJsonValue writePoint(const QVariant &value)
{
    const QPoint point = value.toPoint();
    return QJsonArray{point.x(), point.y()};
}

QJsonValue writePointF(const QVariant &value)
{
    const QPointF point = value.toPointF();
    return QJsonArray{point.x(), point.y()};
}

QJsonValue writeFont(const QVariant &value)
{
    if (!guiValues())
        return QJsonValue::Undefined;
    const GuiValues::Font font = guiValues()->fontOf(value);
    const QString size = QString::number(font.size) + (font.isInPixels ? kPixelSuffix : kPointSuffix);
    return QJsonObject{{kFontFamily, font.family},         {kFontBold, font.isBold},
                       {kFontItalic, font.isItalic},       {kFontStrikeOut, font.isStrikeOut},
                       {kFontUnderline, font.isUnderline}, {kFontSize, size}};
}

QJsonValue writePixmap(const QVariant &value)
{
    const QByteArray png = guiValues() ? guiValues()->pngOf(value) : QByteArray();
    return png.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QString::fromLatin1(png.toBase64());
}

struct TypeWriter
{
    int type;
    QJsonValue (*write)(const QVariant &value);
};

constexpr std::array kWriters = {
    TypeWriter{KProperty::Bool, &writeBool},
    TypeWriter{KProperty::Int, &writeInt},
    TypeWriter{KProperty::LongLong, &writeLongLong},
    TypeWriter{KProperty::Double, &writeDouble},
    TypeWriter{KProperty::Map, &writeMap},
    TypeWriter{KProperty::String, &writeText},
    TypeWriter{KProperty::Rect, &writeRect},
    TypeWriter{KProperty::RectF, &writeRectF},
    TypeWriter{KProperty::Size, &writeSize},
    TypeWriter{KProperty::SizeF, &writeSizeF},
    TypeWriter{KProperty::Point, &writePoint},
    TypeWriter{KProperty::PointF, &writePointF},
    TypeWriter{KProperty::LineStyle, &writeInt},
    TypeWriter{PropertiesTraits::ObjectType, &writeObject},
    TypeWriter{PropertiesTraits::CheckableListType, &writeCheckedTexts},
    TypeWriter{KProperty::Font, &writeFont},
    TypeWriter{KProperty::Pixmap, &writePixmap},
};

QJsonValue writeListValue(const KProperty &property)
{
    using Lists = UserVisibleListConverter;
    const QString text = property.value().toString();
    const PropertyId id = PropertiesNames::findPropertyForName(QString::fromUtf8(property.name()));
    if (PropertySetCreator::isStringSerializableList(id))
        return text;
    if (const auto texts = Lists::listItemsMap().constFind(id); texts != Lists::listItemsMap().cend())
        return texts->indexOf(text);
    if (Lists::associativeListItemsMap().contains(id))
        return text.toInt();
    return text;
}

QString absolutePathOf(const QString &path, const QUrl &baseUrl)
{
    return QDir::cleanPath(QStringLiteral("%1/%2").arg(baseUrl.toLocalFile(), path));
}

QJsonValue writeReference(const KProperty &property, PropertyEditor::PropertyConversionFlag flag)
{
    const ResourceReferenceSPtr reference = ResourceReferenceUtils::fromVariant(property.value());
    if (!reference)
        return property.value().toString();
    const QUrl baseUrl = property.option(kbaseUrl).toUrl();
    const bool resolves = flag == PropertyEditor::PropertyConversionFlag::AbsolutePaths &&
                          baseUrl.isValid() && ResourceReferenceUtils::isRelative(reference);
    return resolves ? absolutePathOf(reference->text(), baseUrl) : reference->text();
}

bool isStorableObject(const QVariant &value)
{
    if (value.typeId() == QMetaType::QJsonObject)
        return true;
    const QByteArray text = value.toByteArray().trimmed();
    return value.canConvert<QByteArray>() && (text.isEmpty() || QJsonDocument::fromJson(text).isObject());
}

bool isStorableReference(const QVariant &value)
{
    return isReference(value) || value.canConvert<QString>();
}

bool isStorableTextList(const QVariant &value)
{
    return value.canConvert<QStringList>();
}

bool isStorableText(const QVariant &value)
{
    return value.canConvert<QString>();
}

struct StorableType
{
    int type;
    bool (*isStorable)(const QVariant &value);
};

constexpr std::array kStorableTypes = {
    StorableType{KProperty::ValueFromList, &isStorableText},
    StorableType{PropertiesTraits::ObjectType, &isStorableObject},
    StorableType{PropertiesTraits::ResourceReferenceType, &isStorableReference},
    StorableType{PropertiesTraits::CheckableListType, &isStorableTextList},
};

} // namespace

bool PropertySetCreator::canStore(const KProperty &property)
{
    const QVariant value = property.value();
    if (!value.isValid())
        return true;
    if (property.name().startsWith(':'))
        return isStorableText(value);
    const auto *const row = std::ranges::find(kStorableTypes, property.type(), &StorableType::type);
    if (row != kStorableTypes.end())
        return row->isStorable(value);
    const bool isText = property.type() == KProperty::String && isReference(value);
    if (property.type() < KProperty::UserDefined && !isText && !value.canConvert(QMetaType(property.type())))
        return false;
    return !valueToJson(property, PropertyEditor::PropertyConversionFlag::KeepPaths).isUndefined();
}

QJsonValue PropertySetCreator::storedDefault(PropertyId id)
{
    const std::unique_ptr<KProperty> property(createDefaultProperty(id, Priority::Unset));
    if (!property)
        return QJsonValue::Undefined;
    if (property->type() != KProperty::ValueFromList)
        property->setValue(PropertiesNames::defaultValueInFileUnit(id), KProperty::ValueOption::IgnoreOld);
    return valueToJson(*property, PropertyEditor::PropertyConversionFlag::KeepPaths);
}

QJsonValue PropertySetCreator::valueToJson(const KProperty &property,
                                           PropertyEditor::PropertyConversionFlag flag)
{
    if (property.type() == KProperty::ValueFromList)
        return writeListValue(property);
    if (property.type() == PropertiesTraits::ResourceReferenceType)
        return writeReference(property, flag);
    const auto *const writer = std::ranges::find(kWriters, property.type(), &TypeWriter::type);
    return writer == kWriters.end() ? writeText(property.value()) : writer->write(property.value());
}

} // namespace orv
