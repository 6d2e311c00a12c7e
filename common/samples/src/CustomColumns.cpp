#include "orv/samples/CustomColumns.h"

#include "internal/EntryMembers.h"
#include "internal/MemberReader.h"

#include <QCoreApplication>

#include <algorithm>

namespace orv::SamplesInput {

namespace {

constexpr QLatin1String kColumnName("name");
constexpr QLatin1String kColumnType("type");
constexpr QLatin1String kAttribute("attribute");

struct CustomColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(CustomColumns)
};

Result<CustomColumn> readColumn(const QJsonObject &json)
{
    MemberReader reader(json);
    CustomColumn column{reader.text(kColumnName), reader.text(kColumnType), reader.text(kAttribute), json};
    ORV_RETURN_IF_ERROR(reader.error());
    for (QLatin1String key : {kColumnName, kColumnType, kAttribute})
        column.unknownMembers.remove(key);
    return column;
}

QJsonObject writeColumn(const CustomColumn &column)
{
    QJsonObject json = column.unknownMembers;
    json.insert(kColumnName, column.name);
    json.insert(kColumnType, column.type);
    if (column.isFromMetadata())
        json.insert(kAttribute, column.attribute);
    return json;
}

} // namespace

Result<CustomColumns> CustomColumns::fromJson(const QJsonArray &json)
{
    const QLatin1String key("CustomColumns");
    const QJsonObject holder{{key, json}};
    MemberReader reader(holder);
    CustomColumns columns;
    reader.forEachObject(key, [&columns](const QJsonObject &element) -> Error {
        Result<CustomColumn> column = readColumn(element);
        if (column.hasError())
            return column.ecatch();
        if (columns.addCustomColumn(*column))
            return Error::NoError;
        return Error(ErrorCode::InvalidContent,
                     CustomColumnsTr::tr("\"%1\" can't be the name of a column.").arg(column->name))
            .addDetail(CustomColumnsTr::tr(
                "It is empty, taken, or the name of another member of a sample. Choose another."));
    });
    ORV_RETURN_IF_ERROR(reader.error());
    return columns;
}

QJsonArray CustomColumns::toJson() const
{
    QJsonArray json;
    for (const CustomColumn &column : m_columns)
        json.append(writeColumn(column));
    return json;
}

QStringList CustomColumns::customColumnNames() const
{
    QStringList names;
    names.reserve(m_columns.size());
    for (const CustomColumn &column : m_columns)
        names.append(column.name);
    return names;
}

bool CustomColumns::addCustomColumn(const CustomColumn &column)
{
    if (column.name.isEmpty() || contains(column.name) || isReservedName(column.name))
        return false;
    m_columns.append(column);
    m_names.insert(column.name);
    return true;
}

bool CustomColumns::addCustomColumn(const QString &name, const QString &type)
{
    return addCustomColumn(CustomColumn{name, type, {}, {}});
}

bool CustomColumns::removeCustomColumn(const QString &name)
{
    m_columns.removeIf([&name](const CustomColumn &column) { return column.name == name; });
    return m_names.remove(name);
}

QSet<QString> CustomColumns::removeColumnsFromMetadata()
{
    QSet<QString> removed;
    for (const CustomColumn &column : std::as_const(m_columns)) {
        if (column.isFromMetadata())
            removed.insert(column.name);
    }
    m_columns.removeIf([](const CustomColumn &column) { return column.isFromMetadata(); });
    m_names.subtract(removed);
    return removed;
}

bool CustomColumns::isReservedName(const QString &name)
{
    return std::find(Members::kReserved.begin(), Members::kReserved.end(), name) != Members::kReserved.end();
}

} // namespace orv::SamplesInput
