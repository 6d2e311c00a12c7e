#include "PropertyReaders.h"

#include <orv/propertyeditor/LabelScripts.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

#include <array>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

constexpr double kPercent = 0.01;

bool isKnown(const QJsonObject &object)
{
    return PropertiesNames::hasPropertyForObject(object);
}

PropertyId propertyOf(const QJsonObject &object)
{
    return PropertiesNames::findPropertyForName(object.value(NAME_KEY).toString());
}

QStringList listOf(PropertyId id)
{
    return PropertySetCreator::listPropertiesData().value(id);
}

QVariant stringFromJson(const QJsonObject &object)
{
    return isKnown(object) ? object.value(VALUE_KEY).toString() : QVariant();
}

QVariant boolFromJson(const QJsonObject &object)
{
    if (!isKnown(object))
        return {};
    const QJsonValue value = object.value(VALUE_KEY);
    return value.isString() ? value.toString().toLower() == QLatin1String("true") : value.toBool();
}

QVariant doubleFromJson(const QJsonObject &object)
{
    return isKnown(object) ? object.value(VALUE_KEY).toString().toDouble() : QVariant();
}

// Files hold percent, the system works with fractions.
QVariant percentFromJson(const QJsonObject &object)
{
    return doubleFromJson(object).toDouble() * kPercent;
}

QVariant intFromJson(const QJsonObject &object)
{
    return isKnown(object) ? object.value(VALUE_KEY).toInt() : QVariant();
}

QVariant intPercentFromJson(const QJsonObject &object)
{
    return intFromJson(object).toDouble() * kPercent;
}

QVariant nonNegativeIntFromJson(const QJsonObject &object)
{
    const int value = object.value(VALUE_KEY).toInt(-1);
    return value < 0 ? QVariant() : value;
}

QVariant listIndexFromJson(PropertyId id, const QJsonObject &object)
{
    const QJsonValue value = object.value(VALUE_KEY);
    return value.isString() ? qlonglong(listOf(id).indexOf(value.toString())) : qlonglong(value.toInt());
}

QVariant listTextFromJson(PropertyId id, const QJsonObject &object)
{
    const QJsonValue value = object.value(VALUE_KEY);
    return value.isString() ? value.toString() : listOf(id).value(value.toInt());
}

QVariant upperLettersFromJson(const QJsonObject &object)
{
    QString letters = object.value(VALUE_KEY).toString().toUpper();
    letters.removeIf([](QChar letter) { return letter < QLatin1Char('A') || letter > QLatin1Char('Z'); });
    return letters;
}

QVariant stringListFromJson(const QJsonObject &object)
{
    return PropertyEditorJsonUtils::jsonArrayToStringList(object.value(VALUE_KEY).toArray());
}

bool isStoredTable(const QJsonObject &object)
{
    return object.value(DATA).isArray() && object.value(CHILDREN).isArray();
}

QVariant objectFromJson(const QJsonObject &object)
{
    using Editor = PropertySetCreator::Editor;
    const PropertyId id = propertyOf(object);
    if (id == PropertyId::NoProperty)
        return {};
    const QJsonObject value = object.value(VALUE_KEY).toObject();
    switch (isStoredTable(value) ? Editor::Unset : PropertySetCreator::editorForProperty(id)) {
    case Editor::Modifications:
        return value.value(MODS_KEY).toString();
    case Editor::Glycans:
        return value.value(GLYCANS_KEY).toString();
    case Editor::PeakFilter:
        return value.value(PEAK_FILTER_KEY).toString();
    case Editor::TracePlot:
        return value.value(LabelScripts::TRACE_PLOT_KEY).toString();
    case Editor::DeconvolvedMassPlot:
        return value.value(LabelScripts::DMS_PLOT_KEY).toString();
    case Editor::OligoOptions:
    case Editor::TheoreticalTable:
        return {};
    default:
        return QJsonDocument(value).toJson(QJsonDocument::Indented);
    }
}

QVariant urlFromJson(const QJsonObject &object)
{
    return QUrl(object.value(VALUE_KEY).toString(), QUrl::TolerantMode);
}

using Read = QVariant (*)(const QJsonObject &);

QVariant readByTypeName(const QJsonObject &object)
{
    struct TypeReader
    {
        QLatin1String typeName;
        Read read;
    };
    static constexpr std::array kReaders = {
        TypeReader{QLatin1String("bool"), &boolFromJson},
        TypeReader{QLatin1String("int"), &intFromJson},
        TypeReader{QLatin1String("qstring"), &stringFromJson},
        TypeReader{QLatin1String("multiline"), &stringFromJson},
        TypeReader{QLatin1String("double"), &doubleFromJson},
        TypeReader{QLatin1String("object"), &objectFromJson},
        TypeReader{QLatin1String("qurl"), &urlFromJson},
    };
    const PropertyId id = propertyOf(object);
    if (id == PropertyId::NoProperty)
        return {};
    const QString typeName = PropertiesNames::valueTypeNameOfPropertyType(id).toLower();
    if (typeName == QLatin1String("list"))
        return listTextFromJson(id, object);
    for (const TypeReader &reader : kReaders) {
        if (typeName == reader.typeName)
            return reader.read(object);
    }
    return object.value(VALUE_KEY).toVariant();
}

QVariant resourceFromJson(const QJsonObject &object)
{
    // An empty text reads as an empty reference elsewhere; here it says that there is none.
    const QString text = readByTypeName(object).toString();
    return QVariant::fromValue(text.isEmpty() ? ResourceReferenceSPtr()
                                              : ResourceReference::fromString(text).valueOr({}));
}

} // namespace

std::function<QVariant(const QJsonObject &)> propertyReader(PropertyReader reader, PropertyId id)
{
    switch (reader) {
    case PropertyReader::String:
        return &stringFromJson;
    case PropertyReader::Bool:
        return &boolFromJson;
    case PropertyReader::Double:
        return &doubleFromJson;
    case PropertyReader::Percent:
        return &percentFromJson;
    case PropertyReader::IntPercent:
        return &intPercentFromJson;
    case PropertyReader::Int:
        return &intFromJson;
    case PropertyReader::NonNegativeInt:
        return &nonNegativeIntFromJson;
    case PropertyReader::ListIndex:
        return [id](const QJsonObject &object) { return listIndexFromJson(id, object); };
    case PropertyReader::ListText:
        return [id](const QJsonObject &object) { return listTextFromJson(id, object); };
    case PropertyReader::Object:
        return &objectFromJson;
    case PropertyReader::Resource:
        return &resourceFromJson;
    case PropertyReader::UpperLetters:
        return &upperLettersFromJson;
    case PropertyReader::StringList:
        return &stringListFromJson;
    }
    Q_UNREACHABLE();
}

} // namespace orv
