#include "Survival.h"

#include <orv/table/rn.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

/// Whether an entry of \a written with the same name holds \a entry.
bool entrySurvives(const QJsonObject &entry, const QJsonArray &written)
{
    return std::any_of(written.begin(), written.end(), [&entry](const QJsonValue &other) {
        return other["name"_L1] == entry.value("name"_L1) && survives(entry, other);
    });
}

bool arraySurvives(const QJsonArray &read, const QJsonArray &written)
{
    return std::equal(read.begin(), read.end(), written.begin(), written.end(), survives);
}

bool entriesSurvive(const QJsonArray &read, const QJsonArray &written)
{
    return arraySurvives(read, written) ||
           std::all_of(read.begin(), read.end(), [&written](const QJsonValue &entry) {
               return entry.isObject() && entrySurvives(entry.toObject(), written);
           });
}

bool isSameTable(const QJsonObject &read, const QJsonObject &written)
{
    RowNode a;
    RowNode b;
    return rn::fromObject(read, &a) && rn::fromObject(written, &b) && rn::serialize(&a) == rn::serialize(&b);
}

bool membersSurvive(const QJsonObject &read, const QJsonObject &written)
{
    const bool sameTable =
        written.contains("data"_L1) && written.contains("children"_L1) && isSameTable(read, written);
    for (auto it = read.begin(); it != read.end(); ++it) {
        if (sameTable && (it.key() == "data"_L1 || it.key() == "children"_L1))
            continue;
        const QJsonValue other = written.value(it.key());
        const bool entries = it.key() == "properties"_L1 && it->isArray() && other.isArray();
        if (entries ? !entriesSurvive(it->toArray(), other.toArray()) : !survives(*it, other))
            return false;
    }
    return true;
}

} // namespace

bool survives(const QJsonValue &read, const QJsonValue &written)
{
    if (read.isObject() && written.isObject())
        return membersSurvive(read.toObject(), written.toObject());
    if (read.isArray() && written.isArray())
        return arraySurvives(read.toArray(), written.toArray());
    return read == written;
}

bool losesMarks(const QByteArray &json)
{
    return json.contains("\xEF\xBB\xBF") || json.toLower().contains("\\ufeff");
}

} // namespace FormChecks
