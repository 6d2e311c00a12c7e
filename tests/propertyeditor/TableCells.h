#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/// A table cell that adds nothing to what all of them do, of the property that it is told.
class TableItem : public orv::PropertyEditor::BaseTableItem
{
public:
    explicit TableItem(orv::PropertyId id = orv::PropertyId::Isotope,
                       orv::BaseItemType type = orv::BaseItemType::Isotope)
        : BaseTableItem(type)
        , m_id(id)
    {}

    using BaseTableItem::resizeChildrenToMatchRoot;
    [[nodiscard]] orv::RowNode &node() { return rootNode(); }

protected:
    [[nodiscard]] orv::PropertyId propertyId() const override { return m_id; }

private:
    orv::PropertyId m_id;
};

/// Raw table cells.
namespace TableCells {

inline QJsonObject row(const QJsonArray &data)
{
    return {{QStringLiteral("data"), data}, {QStringLiteral("children"), QJsonArray()}};
}

inline QJsonObject node(const QJsonArray &columns, const QList<QJsonArray> &rows = {})
{
    QJsonArray children;
    for (const QJsonArray &data : rows)
        children.append(row(data));
    return {{QStringLiteral("data"), columns}, {QStringLiteral("children"), children}};
}

inline QJsonObject entry(const QString &name, const QJsonValue &value)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("value"), value}};
}

inline QJsonObject cell(const QString &type, const QJsonArray &entries)
{
    return {{QStringLiteral("type"), type}, {QStringLiteral("properties"), entries}};
}

} // namespace TableCells
