#include "orv/propertyeditor/workbench/StateCell.h"

#include <orv/propertyeditor/content/RawCell.h>

#include <QJsonDocument>

#include <mutex>
#include <optional>

namespace orv {

struct StateCell::Data
{
    std::once_flag isWritten;
    QByteArray json;
    std::optional<QJsonObject> object; ///< never changes
};

StateCell::StateCell(const QByteArray &json)
    : m_data(std::make_shared<Data>())
{
    m_data->json = json;
}

StateCell::StateCell(const QJsonObject &cell)
    : m_data(std::make_shared<Data>())
{
    m_data->object = cell;
}

const QByteArray &StateCell::json() const
{
    static const QByteArray kNone;
    if (!m_data)
        return kNone;
    if (m_data->object) {
        std::call_once(m_data->isWritten, [this] { m_data->json = RawCell(*m_data->object).toJson(); });
    }
    return m_data->json;
}

bool StateCell::isObject() const
{
    return m_data && m_data->object;
}

QJsonObject StateCell::object() const
{
    return isObject() ? *m_data->object : QJsonDocument::fromJson(json()).object();
}

bool StateCell::operator==(const StateCell &other) const
{
    if (m_data == other.m_data)
        return true;
    return isObject() && other.isObject() ? *m_data->object == *other.m_data->object : json() == other.json();
}

QVariant StateCell::toVariant() const
{
    return isObject() ? RawCell(*m_data->object).toVariant() : QVariant(json());
}

} // namespace orv
