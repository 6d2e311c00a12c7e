#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace orv::PropertyEditorJsonUtils {

using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kBackslash("\\");
constexpr QLatin1String kTwoBackslashes("\\\\");

struct PropertyEditorJsonUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyEditorJsonUtils)
};

/// QVariant::isNull of Qt 6 takes no note of null texts.
bool isNullText(const QVariant &value)
{
    return (value.typeId() == QMetaType::QString && value.toString().isNull()) ||
           (value.typeId() == QMetaType::QByteArray && value.toByteArray().isNull());
}

/// -1 for a number beyond every list.
qsizetype positionOf(const QVariant &value, qsizetype count)
{
    // A conversion of what no integer holds would give any position.
    if (value.typeId() == QMetaType::Double && !(std::abs(value.toDouble()) <= double(count)))
        return -1;
    const qlonglong position = value.toLongLong();
    return position >= 0 && position < count ? position : -1;
}

bool isInteger(const QJsonValue &value)
{
    using Limits = std::numeric_limits<int>;
    const double number = value.toDouble();
    return value.isDouble() && number >= Limits::min() && number <= Limits::max() &&
           std::trunc(number) == number;
}

Error notOfType(const QString &message, const QString &key, const QJsonValue &value)
{
    const QString found = JsonUtils::typeDescription(value.type());
    return Error(ErrorCode::InvalidContent, message.arg(key))
        .addDetail(PropertyEditorJsonUtilsTr::tr("The value is %1.").arg(found));
}

/// The members of one type: how to tell and how to read it.
template<typename T>
struct Kind
{
    bool (*holds)(const QJsonValue &);
    T (*read)(const QJsonValue &);
    const char *message;
};

template<typename T>
Error parseValue(const QJsonObject &object, const QString &key, const Kind<T> &kind, T *out)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return {ErrorCode::InvalidContent, QStringLiteral("Key not found: [%1]").arg(key)};
    if (!kind.holds(value))
        return notOfType(QString::fromLatin1(kind.message), key, value);
    if (out)
        *out = kind.read(value);
    return Error::NoError;
}

} // namespace

QJsonObject variantToObject(const QVariant &value)
{
    if (value.typeId() == QMetaType::QJsonObject)
        return value.toJsonObject();
    return isNullText(value) ? QJsonObject() : RawCell::objectOf(value);
}

QString getValueFromList(const QVariant &value, const QStringList &names, const QString &propertyName,
                         bool editable, bool *ok)
{
    if (ok)
        *ok = true;
    switch (value.typeId()) {
    case QMetaType::QString:
        if (QString text = value.toString(); editable || names.contains(text))
            return text;
        qCWarning(propertyEditorLog) << propertyName
                                     << "is not editable list and list data does not contain value "
                                     << value.toString();
        break;
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::LongLong:
        if (const qsizetype position = positionOf(value, names.size()); position >= 0)
            return names.at(position);
        qCWarning(propertyEditorLog) << "Invalid index" << value << "of" << propertyName;
        break;
    default:
        qCWarning(propertyEditorLog) << "Cannot handle the list parameter" << value << "of" << propertyName;
    }
    if (ok)
        *ok = false;
    return names.value(0);
}

QVariant getValueFromValueUnit(const QVariant &value)
{
    return variantToObject(value).value(VALUE_KEY).toVariant();
}

QVariant setValueInValueUnit(const QVariant &value, const QVariant &number)
{
    QJsonObject object = variantToObject(value);
    object.insert(VALUE_KEY, QJsonValue::fromVariant(number));
    return object;
}

QString storedSerializedGlycans(const QJsonObject &object)
{
    const QJsonValue data = object.value(DATA);
    const QJsonObject holder = data.isObject() ? data.toObject() : object;
    return holder.value(GLYCANS_KEY).toString().replace(kTwoBackslashes, kBackslash);
}

void updateStoredSerializedGlycans(QJsonObject *object, const QString &glycans)
{
    const QString stored = QString(glycans).replace(kBackslash, kTwoBackslashes);
    if (!object->value(DATA).isObject()) {
        object->insert(GLYCANS_KEY, stored);
        return;
    }
    QJsonObject data = object->value(DATA).toObject();
    data.insert(GLYCANS_KEY, stored);
    object->insert(DATA, data);
}

Error parseBoolValueForKey(const QJsonObject &object, const QString &key, bool *out)
{
    const Kind<bool> kind{[](const QJsonValue &value) { return value.isBool(); },
                          [](const QJsonValue &value) { return value.toBool(); },
                          "Value for key [%1] does not represent a bool"};
    return parseValue(object, key, kind, out);
}

Error parseIntValueForKey(const QJsonObject &object, const QString &key, int *out)
{
    const Kind<int> kind{&isInteger, [](const QJsonValue &value) { return value.toInt(); },
                         "Value for key [%1] does not represent an integer"};
    return parseValue(object, key, kind, out);
}

Error parseDoubleValueForKey(const QJsonObject &object, const QString &key, double *out)
{
    const Kind<double> kind{[](const QJsonValue &value) { return value.isDouble(); },
                            [](const QJsonValue &value) { return value.toDouble(); },
                            "Value for key [%1] does not represent a double"};
    return parseValue(object, key, kind, out);
}

Error parseQStringValueForKey(const QJsonObject &object, const QString &key, QString *out)
{
    const Kind<QString> kind{[](const QJsonValue &value) { return value.isString(); },
                             [](const QJsonValue &value) { return value.toString(); },
                             "Value for key [%1] does not represent a string"};
    return parseValue(object, key, kind, out);
}

} // namespace orv::PropertyEditorJsonUtils
