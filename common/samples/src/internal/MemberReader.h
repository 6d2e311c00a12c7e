#pragma once

#include <orv/core/JsonUtils.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <functional>

namespace orv {

/// Reads the members of one JSON object, which may be absent or null. The first that has the wrong type is
/// remembered as an InvalidContent error that names it, so that callers read on and ask once at the end.
class MemberReader
{
public:
    explicit MemberReader(const QJsonObject &object)
        : m_object(object)
    {}

    [[nodiscard]] bool has(QLatin1String key) const;

    [[nodiscard]] QString text(QLatin1String key);
    [[nodiscard]] bool flag(QLatin1String key, bool fallback);
    /// A whole number that fits 32 bits.
    [[nodiscard]] int integer(QLatin1String key, int fallback);
    [[nodiscard]] double number(QLatin1String key, double fallback);
    [[nodiscard]] QJsonObject object(QLatin1String key);
    [[nodiscard]] QStringList texts(QLatin1String key);

    /// Calls \a read for each element of an array of objects; its error is completed by the place.
    void forEachObject(QLatin1String key, const std::function<Error(const QJsonObject &)> &read);

    void fail(const Error &error);
    [[nodiscard]] const Error &error() const { return m_error; }

private:
    [[nodiscard]] QJsonValue value(QLatin1String key, QJsonValue::Type type);

    const QJsonObject &m_object;
    Error m_error;
};

/// Inserts \a value under \a key unless it is what was read from there: what a person wrote in another way,
/// and what was left out, stays as it is.
template<typename T>
void storeChange(QJsonObject *json, QLatin1String key, const T &now, const T &before, const QJsonValue &value)
{
    if (!(now == before))
        json->insert(key, value);
}

} // namespace orv
