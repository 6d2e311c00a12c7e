#include "JsonMembers.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>

#include <cmath>

namespace orv::Internal {

namespace {

struct ChemistryJsonTr
{
    Q_DECLARE_TR_FUNCTIONS(ChemistryJson)
};

Error wrongType(QLatin1String key, const QString &wanted, const QJsonValue &value)
{
    return Error(ErrorCode::InvalidContent,
                 ChemistryJsonTr::tr("The member \"%1\" must be %2.").arg(key, wanted))
        .addDetail(ChemistryJsonTr::tr("There is %1.").arg(JsonUtils::typeDescription(value.type())));
}

} // namespace

Error readBool(const QJsonObject &object, QLatin1String key, bool *target)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return Error::NoError;
    if (!value.isBool())
        return wrongType(key, ChemistryJsonTr::tr("true or false"), value);
    *target = value.toBool();
    return Error::NoError;
}

Error readInt(const QJsonObject &object, QLatin1String key, int minimum, int maximum, int *target)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return Error::NoError;
    if (!value.isDouble())
        return wrongType(key, ChemistryJsonTr::tr("a whole number"), value);
    const double number = value.toDouble();
    if (number != std::floor(number) || number < minimum || number > maximum) {
        return Error(ErrorCode::InvalidContent,
                     ChemistryJsonTr::tr("The member \"%1\" must be a whole number from %2 to %3.")
                         .arg(key)
                         .arg(minimum)
                         .arg(maximum))
            .addDetail(ChemistryJsonTr::tr("There is %1.").arg(shortNumber(number)));
    }
    *target = static_cast<int>(number);
    return Error::NoError;
}

Error readNonNegative(const QJsonObject &object, QLatin1String key, double *target)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return Error::NoError;
    if (!value.isDouble())
        return wrongType(key, ChemistryJsonTr::tr("a number"), value);
    const double number = value.toDouble();
    if (!(number >= 0.0)) {
        return Error(ErrorCode::InvalidContent,
                     ChemistryJsonTr::tr("The member \"%1\" must not be negative.").arg(key))
            .addDetail(ChemistryJsonTr::tr("There is %1.").arg(shortNumber(number)));
    }
    *target = number;
    return Error::NoError;
}

Error readString(const QJsonObject &object, QLatin1String key, QString *target)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return Error::NoError;
    if (!value.isString())
        return wrongType(key, ChemistryJsonTr::tr("a string"), value);
    *target = value.toString();
    return Error::NoError;
}

Error readObject(const QJsonObject &object, QLatin1String key, QJsonObject *target)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return Error::NoError;
    if (!value.isObject())
        return wrongType(key, ChemistryJsonTr::tr("an object"), value);
    *target = value.toObject();
    return Error::NoError;
}

QJsonObject without(QJsonObject object, std::initializer_list<QLatin1String> keys)
{
    for (QLatin1String key : keys)
        object.remove(key);
    return object;
}

QString shortNumber(double number)
{
    constexpr double kLongestWritten = 1e15;
    const bool plain = std::abs(number) < kLongestWritten;
    return QString::number(number, plain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

} // namespace orv::Internal
