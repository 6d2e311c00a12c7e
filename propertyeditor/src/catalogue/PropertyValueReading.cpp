#include "GuiValues.h"
#include "PropertyKinds.h"
#include "PropertyValueForms.h"

#include <KProperty>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

// A null value is legal in files: the outer optional tells whether the stored value could be read.
using ReadValue = std::optional<QVariant>;

template<typename Number>
bool fits(double value)
{
    constexpr double kRelativeTolerance = 1e-12;
    constexpr auto kLowest = double(std::numeric_limits<Number>::lowest());
    constexpr auto kHighest = double(std::numeric_limits<Number>::max());
    return value >= kLowest - std::abs(kLowest) * kRelativeTolerance &&
           value <= kHighest + kHighest * kRelativeTolerance;
}

/// Without undefined behaviour for what a file may hold: the nearest number that the type has.
template<typename Integer>
Integer castTo(double value)
{
    constexpr auto kLowest = std::numeric_limits<Integer>::lowest();
    constexpr auto kHighest = std::numeric_limits<Integer>::max();
    if (!(value > double(kLowest)))
        return kLowest;
    return value >= double(kHighest) ? kHighest : Integer(value);
}

std::optional<double> readDouble(const QJsonValue &value)
{
    if (value.isNull() || value.isUndefined())
        return 0.0;
    if (value.isDouble())
        return fits<double>(value.toDouble()) ? std::optional(value.toDouble()) : std::nullopt;
    bool ok = false;
    const double number = value.toString().toDouble(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

std::optional<int> readInt(const QJsonValue &value)
{
    if (value.isNull() || value.isUndefined())
        return 0;
    if (value.isDouble())
        return fits<int>(value.toDouble()) ? std::optional(castTo<int>(value.toDouble())) : std::nullopt;
    bool ok = false;
    const int number = value.toString().toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

bool readBool(const QJsonValue &value)
{
    if (value.isDouble())
        return value.toDouble() != 0.0;
    if (!value.isString())
        return value.toBool();
    const QString text = value.toString().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("yes") || text == QLatin1String("ok"))
        return true;
    return text.toInt() != 0;
}

ReadValue readSwitch(const QJsonValue &value, const KProperty &property)
{
    if (!property.option(kThreeStateOption).toBool())
        return readBool(value);
    const QString text = value.toString().toLower();
    if (text.isEmpty() || text == QLatin1String("none"))
        return QVariant();
    return text == QLatin1String("true") || text == QLatin1String("1");
}

template<typename Integer>
ReadValue readInteger(const QJsonValue &value)
{
    return QVariant::fromValue(castTo<Integer>(value.toDouble()));
}

template<typename Number>
std::optional<Number> readNumber(const QJsonValue &value)
{
    if constexpr (std::is_same_v<Number, int>)
        return readInt(value);
    else
        return readDouble(value);
}

/// An array of exactly as many numbers as the value type is made of.
template<typename Value, typename Number, size_t... Index>
ReadValue readNumbers(const QJsonValue &value, std::index_sequence<Index...>)
{
    const QJsonArray array = value.toArray();
    if (array.size() != sizeof...(Index))
        return {};
    const std::array numbers = {readNumber<Number>(array.at(Index))...};
    if (!(numbers[Index] && ...))
        return {};
    return QVariant::fromValue(Value(*numbers[Index]...));
}

template<typename Value, typename Number, size_t Count>
ReadValue readNumbers(const QJsonValue &value)
{
    return readNumbers<Value, Number>(value, std::make_index_sequence<Count>());
}

ReadValue readText(const QJsonValue &value)
{
    return value.toString();
}

ReadValue readTextOrNull(const QJsonValue &value)
{
    const QString text = value.toString();
    return text.isEmpty() ? QVariant() : text;
}

ReadValue readUrl(const QJsonValue &value)
{
    const QString path = value.toString();
    return path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path);
}

ReadValue readEnumerator(const QJsonValue &value, int highest)
{
    const std::optional<int> number = readInt(value);
    return number && *number >= 0 && *number <= highest ? ReadValue(*number) : std::nullopt;
}

ReadValue readLineStyle(const QJsonValue &value)
{
    return readEnumerator(value, Qt::CustomDashLine);
}

bool readFontSize(const QString &text, GuiValues::Font *font)
{
    font->isInPixels = text.endsWith(kPixelSuffix);
    const bool hasSuffix = font->isInPixels || text.endsWith(kPointSuffix);
    bool ok = false;
    font->size = QStringView(text).chopped(hasSuffix ? kPixelSuffix.size() : 0).toDouble(&ok);
    return ok && font->size > 0 && fits<int>(font->size);
}

/// None for an invalid value.
ReadValue madeOf(const QVariant &value)
{
    return value.isValid() ? ReadValue(value) : std::nullopt;
}

ReadValue readFont(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    GuiValues::Font font;
    if (!value.isObject() || !readFontSize(object.value(kFontSize).toVariant().toString(), &font))
        return {};
    font.family = object.value(kFontFamily).toString();
    font.isBold = readBool(object.value(kFontBold));
    font.isItalic = readBool(object.value(kFontItalic));
    font.isStrikeOut = readBool(object.value(kFontStrikeOut));
    font.isUnderline = readBool(object.value(kFontUnderline));
    return guiValues() ? madeOf(guiValues()->font(font)) : std::nullopt;
}

ReadValue readPixmap(const QJsonValue &value)
{
    const QByteArray bytes = QByteArray::fromBase64(value.toString().toLatin1());
    return guiValues() ? madeOf(guiValues()->pixmap(bytes)) : std::nullopt;
}

ReadValue readColor(const QJsonValue &value)
{
    const QString name = value.toString();
    if (name.isEmpty())
        return QVariant();
    return guiValues() ? madeOf(guiValues()->color(name)) : std::nullopt;
}

ReadValue readCursor(const QJsonValue &value)
{
    constexpr int kHighestShape = 25;
    const ReadValue shape = readEnumerator(value, kHighestShape);
    return shape && guiValues() ? madeOf(guiValues()->cursor(shape->toInt())) : std::nullopt;
}

ReadValue readAny(const QJsonValue &value)
{
    return value.toVariant();
}

std::optional<QJsonObject> payloadOf(const QJsonValue &value)
{
    if (!value.isString())
        return value.toObject();
    // Some documents hold the object as its text.
    const QByteArray text = value.toString().toUtf8();
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    return object.isEmpty() || !nestsTooDeeply(text) ? std::optional(object) : std::nullopt;
}

ReadValue readObject(PropertyId id, const QJsonValue &value)
{
    const std::optional<QJsonObject> payload = payloadOf(value);
    if (!payload)
        return {};
    const QJsonObject &object = *payload;
    const PropertySetCreator::Editor editor = PropertySetCreator::editorForProperty(id);
    if (editor == PropertySetCreator::Editor::Unset) {
        if (object.isEmpty())
            return value.toString();
        return QJsonDocument(object).toJson(QJsonDocument::Indented);
    }
    const QJsonValue inner = object.value(DATA);
    return QJsonDocument(inner.isObject() ? inner.toObject() : object).toJson(QJsonDocument::Indented);
}

ReadValue readReference(const QJsonValue &value)
{
    const ResourceReferenceSPtr reference = ResourceReferenceUtils::fromString(value.toString());
    return reference ? QVariant::fromValue(reference) : QVariant();
}

ReadValue readListValue(PropertyId id, const QJsonValue &value)
{
    bool ok = false;
    const QString text = listText(id, value.toVariant(), &ok);
    return ok ? ReadValue(text) : std::nullopt;
}

ReadValue readCheckedTexts(const QJsonValue &value)
{
    return PropertyEditorJsonUtils::jsonArrayToStringList(value.toArray());
}

struct TypeReader
{
    int type;
    ReadValue (*read)(const QJsonValue &value);
};

constexpr std::array kReaders = {
    TypeReader{KProperty::Int, &readInteger<int>},
    TypeReader{KProperty::UInt, &readInteger<uint>},
    TypeReader{KProperty::LongLong, &readInteger<qlonglong>},
    TypeReader{KProperty::ULongLong, &readInteger<qulonglong>},
    TypeReader{KProperty::Double,
               [](const QJsonValue &value) {
                   const std::optional<double> number = readDouble(value);
                   return number ? ReadValue(*number) : std::nullopt;
               }},
    TypeReader{KProperty::Map, &readTextOrNull},
    TypeReader{KProperty::String, &readText},
    TypeReader{KProperty::Url, &readUrl},
    TypeReader{KProperty::Rect, &readNumbers<QRect, int, 4>},
    TypeReader{KProperty::RectF, &readNumbers<QRectF, double, 4>},
    TypeReader{KProperty::Size, &readNumbers<QSize, int, 2>},
    TypeReader{KProperty::SizeF, &readNumbers<QSizeF, double, 2>},
    TypeReader{KProperty::Point, &readNumbers<QPoint, int, 2>},
    TypeReader{KProperty::PointF, &readNumbers<QPointF, double, 2>},
    TypeReader{KProperty::LineStyle, &readLineStyle},
    TypeReader{PropertiesTraits::ResourceReferenceType, &readReference},
    TypeReader{KProperty::Font, &readFont},
    TypeReader{KProperty::Pixmap, &readPixmap},
    TypeReader{KProperty::Color, &readColor},
    TypeReader{KProperty::Cursor, &readCursor},
};

ReadValue readValue(PropertyId id, const QJsonValue &value, const KProperty &property)
{
    switch (property.type()) {
    case KProperty::Bool:
        return readSwitch(value, property);
    case KProperty::ValueFromList:
        return readListValue(id, value);
    case PropertiesTraits::ObjectType:
        return readObject(id, value);
    case PropertiesTraits::CheckableListType:
        return readCheckedTexts(value);
    default:
        break;
    }
    const auto *const reader = std::ranges::find(kReaders, property.type(), &TypeReader::type);
    return reader == kReaders.end() ? readAny(value) : reader->read(value);
}

} // namespace

std::optional<QVariant> PropertySetCreator::valueFromJson(PropertyId id, const QJsonValue &value)
{
    const KProperty *model = modelOf(id);
    return model && !value.isUndefined() ? readValue(id, value, *model) : std::nullopt;
}

bool setStoredValue(PropertyId id, const QJsonValue &value, KProperty *property)
{
    if (value.isUndefined())
        return false;
    const ReadValue read = readValue(id, value, *property);
    if (read)
        property->setValue(*read, KProperty::ValueOption::IgnoreOld);
    return read.has_value();
}

bool PropertySetCreator::setValueFromJson(PropertyId id, const QJsonValue &value, KProperty *property)
{
    if (value.isUndefined())
        return false;
    applyListOrEditor(id, property);
    return setStoredValue(id, value, property);
}

} // namespace orv
