#include "WrittenSamples.h"

#include <QHash>

#include <utility>

namespace orv {

namespace {

using SamplesInput::CustomColumn;
using SamplesInput::CustomColumns;

/// Whether both show the same custom columns.
bool isShapedLike(const QJsonObject &a, const QJsonObject &b)
{
    return a.keys() == b.keys() &&
           std::equal(a.begin(), a.end(), b.begin(),
                      [](const auto &x, const auto &y) { return x.type() == y.type(); });
}

} // namespace

QString WrittenSamples::columnType(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return QStringLiteral("text");
    case QJsonValue::Double:
        return QStringLiteral("number");
    case QJsonValue::Bool:
        return QStringLiteral("bool");
    default:
        return {};
    }
}

QJsonObject WrittenSamples::written(const Sample &sample)
{
    QJsonObject json = sample.toJson();
    for (auto it = sample.customValues.begin(); it != sample.customValues.end(); ++it) {
        if (!CustomColumns::isReservedName(it.key()))
            json.insert(it.key(), QJsonValue::fromVariant(it.value()));
    }
    return json;
}

QList<CustomColumn> WrittenSamples::impliedColumns(const QJsonArray &samples)
{
    QList<CustomColumn> columns;
    QHash<QString, qsizetype> places;
    for (const auto sample : samples) {
        const QJsonObject object = sample.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const QString type = columnType(it.value());
            if (type.isEmpty() || it.key().isEmpty() || CustomColumns::isReservedName(it.key()))
                continue;
            const auto place = places.constFind(it.key());
            if (place == places.constEnd()) {
                places.insert(it.key(), columns.size());
                columns.append(CustomColumn{it.key(), type, {}, {}});
            } else if (columns[*place].type != type) {
                columns[*place].type = columnType(QString());
            }
        }
    }
    return columns;
}

void WrittenSamples::forget()
{
    m_rows.clear();
    m_array = {};
    m_edited.clear();
    m_isImpliedKnown = false;
}

void WrittenSamples::forget(const QList<quint32> &rows)
{
    for (const quint32 row : rows)
        m_edited.insert(row);
}

const QJsonArray &WrittenSamples::array(const QList<quint32> &rows,
                                        const std::function<Sample(quint32 row)> &sample)
{
    if (rows != m_rows)
        writeRows(rows, sample);
    const QSet<quint32> edited = std::exchange(m_edited, {});
    for (qsizetype place = 0; !edited.isEmpty() && place < rows.size(); ++place) {
        if (!edited.contains(rows.at(place)))
            continue;
        const QJsonObject now = written(sample(rows.at(place)));
        m_isImpliedKnown = m_isImpliedKnown && isShapedLike(m_array.at(place).toObject(), now);
        m_array[place] = now;
    }
    return m_array;
}

/// Rows that were there stay as they are written.
void WrittenSamples::writeRows(const QList<quint32> &rows, const std::function<Sample(quint32 row)> &sample)
{
    QHash<quint32, qsizetype> places;
    places.reserve(m_rows.size());
    for (qsizetype place = 0; place < m_rows.size(); ++place)
        places.insert(m_rows.at(place), place);
    const QJsonArray before = std::exchange(m_array, {});
    for (const quint32 row : rows) {
        const auto place = places.constFind(row);
        const bool isKnown = place != places.constEnd() && !m_edited.remove(row);
        m_array.append(isKnown ? before.at(*place) : QJsonValue(written(sample(row))));
    }
    m_rows = rows;
    m_isImpliedKnown = false;
}

const QList<CustomColumn> &WrittenSamples::impliedColumns()
{
    if (!std::exchange(m_isImpliedKnown, true))
        m_implied = impliedColumns(m_array);
    return m_implied;
}

} // namespace orv
