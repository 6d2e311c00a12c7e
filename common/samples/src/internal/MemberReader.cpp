#include "MemberReader.h"

#include <QCoreApplication>

namespace orv {

namespace {

struct MemberReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(MemberReader)
};

Error wrongType(QLatin1String key, const QString &expected, const QJsonValue &found)
{
    return Error(ErrorCode::InvalidContent,
                 MemberReaderTr::tr("\"%1\" must be %2, but there is %3.")
                     .arg(key, expected, JsonUtils::typeDescription(found.type())));
}

bool isThere(const QJsonValue &member)
{
    return !member.isUndefined() && !member.isNull();
}

} // namespace

bool MemberReader::has(QLatin1String key) const
{
    return isThere(m_object.value(key));
}

QJsonValue MemberReader::value(QLatin1String key, QJsonValue::Type type)
{
    QJsonValue found = m_object.value(key);
    if (!isThere(found))
        return QJsonValue::Undefined;
    if (found.type() == type)
        return found;
    fail(wrongType(key, JsonUtils::typeDescription(type), found));
    return QJsonValue::Undefined;
}

QString MemberReader::text(QLatin1String key)
{
    return value(key, QJsonValue::String).toString();
}

bool MemberReader::flag(QLatin1String key, bool fallback)
{
    return value(key, QJsonValue::Bool).toBool(fallback);
}

int MemberReader::integer(QLatin1String key, int fallback)
{
    const QJsonValue found = value(key, QJsonValue::Double);
    if (found.isDouble() && double(found.toInt()) != found.toDouble())
        fail(Error(ErrorCode::InvalidContent, MemberReaderTr::tr("\"%1\" must be a whole number.").arg(key)));
    return found.toInt(fallback);
}

double MemberReader::number(QLatin1String key, double fallback)
{
    return value(key, QJsonValue::Double).toDouble(fallback);
}

QJsonObject MemberReader::object(QLatin1String key)
{
    return value(key, QJsonValue::Object).toObject();
}

QStringList MemberReader::texts(QLatin1String key)
{
    QStringList texts;
    const QJsonArray array = value(key, QJsonValue::Array).toArray();
    texts.reserve(array.size());
    for (const auto element : array) {
        if (!element.isString())
            fail(wrongType(key, MemberReaderTr::tr("an array of texts"), element));
        texts.append(element.toString());
    }
    return texts;
}

void MemberReader::forEachObject(QLatin1String key, const std::function<Error(const QJsonObject &)> &read)
{
    const QJsonArray array = value(key, QJsonValue::Array).toArray();
    for (qsizetype i = 0; i < array.size() && !m_error.hasError(); ++i) {
        const QJsonValue element = array.at(i);
        Error error = element.isObject() ? read(element.toObject())
                                         : wrongType(key, MemberReaderTr::tr("an array of objects"), element);
        if (error.hasError())
            fail(error.addDetail(MemberReaderTr::tr("It is element %1 of \"%2\".").arg(i).arg(key)));
    }
}

void MemberReader::fail(const Error &error)
{
    if (!m_error.hasError())
        m_error = error;
}

} // namespace orv
