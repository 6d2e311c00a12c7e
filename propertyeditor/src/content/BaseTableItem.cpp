#include "orv/propertyeditor/content/BaseTableItem.h"

#include "Announce.h"
#include "TableLosses.h"

#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/rn.h>

#include <algorithm>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

/// Where of a table the first value stands that a file can't hold.
QString placeOfUnwritable(const RowNode &table)
{
    const auto isUnwritable = [](const QVariant &value) { return !rn::canSerialize(value); };
    for (int row = 0; row < table.getChildListSize(); ++row) {
        const VariantItems &cells = table.getChild(row)->data;
        const auto found = std::ranges::find_if(cells, isUnwritable);
        if (found == cells.end())
            continue;
        const int column = int(found - cells.begin());
        return BaseTableItem::tr(
                   "Row %1, column \"%2\": a file can't hold a value of the type %3. Store a text or "
                   "a number instead.")
            .arg(row + 1)
            .arg(table.getNameFromColumnIndex(column), QString::fromLatin1(found->typeName()));
    }
    return BaseTableItem::tr(
        "The names of its columns, or the rows within its rows, hold what a file can't.");
}

} // namespace

BaseTableItem::BaseTableItem(BaseItemType type)
    : BaseTableItem(type, FurtherContent{})
{}

BaseTableItem::BaseTableItem(BaseItemType type, FurtherContent further)
    : BaseItem(type)
    , m_further(std::move(further))
{}

BaseTableItem::~BaseTableItem() = default;

QString BaseTableItem::propertyName() const
{
    return PropertiesNames::internalNameForType(propertyId());
}

int BaseTableItem::columnIndex(const QString &name) const
{
    return int(m_root.data.indexOf(name));
}

QString BaseTableItem::columnName(int index) const
{
    if (!isColumn(index)) {
        qCWarning(propertyEditorLog) << "Column" << index << "is out of bounds in" << propertyName();
        return {};
    }
    return m_root.getNameFromColumnIndex(index);
}

bool BaseTableItem::addColumn(const QString &name)
{
    if (m_root.data.contains(name))
        return false;
    m_root.addDataToRootAndResizeChildren(name, QString(), true);
    announce(
        this, [this] { Q_EMIT columnAdded(columnCount() - 1); },
        [this] { Q_EMIT columnCountChanged(columnCount()); }, [this] { Q_EMIT changed(); });
    return true;
}

bool BaseTableItem::removeColumn(const QString &name)
{
    const int index = int(m_root.data.lastIndexOf(name));
    if (index < 0) {
        qCWarning(propertyEditorLog) << "Column" << name << "is not found in" << propertyName();
        return false;
    }
    if (!m_root.removeColumn(name))
        return false;
    // Listeners ask for the count; unlike addColumn, this doesn't announce it.
    announce(
        this, [&] { Q_EMIT columnRemoved(index); }, [&] { Q_EMIT columnRemoved(name); },
        [this] { Q_EMIT changed(); });
    return true;
}

bool BaseTableItem::removeColumn(int index)
{
    if (!isColumn(index)) {
        qCDebug(propertyEditorLog) << "Column" << index << "is out of bounds in" << propertyName();
        return false;
    }
    return removeColumn(m_root.getNameFromColumnIndex(index));
}

bool BaseTableItem::setColumnName(int index, const QString &name)
{
    if (!isColumn(index)) {
        qCWarning(propertyEditorLog) << "Column" << index << "is out of bounds in" << propertyName();
        return false;
    }
    if (name.isEmpty()) {
        qCWarning(propertyEditorLog) << "Column name is empty for column" << index << "in" << propertyName();
        return false;
    }
    m_root.getDataAt(index) = name;
    Q_EMIT changed();
    return true;
}

bool BaseTableItem::addRow(const QVariantList &values)
{
    if (!m_root.addNewChildMatchRootDataSize()) {
        qCWarning(propertyEditorLog) << "Failed to create a new RowNode in" << propertyName();
        return false;
    }
    const int last = rowCount() - 1;
    const QPointer<BaseTableItem> alive(this);
    const bool isSet = values.isEmpty() || setRowValues(last, values);
    if (!alive)
        return true;
    if (!isSet)
        qCWarning(propertyEditorLog) << "Failed to set row values in" << propertyName() << "(not fatal)";
    announce(
        this, [&] { Q_EMIT rowAdded(last); }, [this] { Q_EMIT rowCountChanged(rowCount()); },
        [this] { Q_EMIT changed(); });
    return true;
}

bool BaseTableItem::removeRow(int index)
{
    if (index < 0 || index >= rowCount()) {
        qCDebug(propertyEditorLog) << "Row" << index << "is out of bounds in" << propertyName();
        return false;
    }
    m_root.deleteChild(index);
    announce(
        this, [&] { Q_EMIT rowRemoved(index); }, [this] { Q_EMIT rowCountChanged(rowCount()); },
        [this] { Q_EMIT changed(); });
    return true;
}

bool BaseTableItem::setRowValues(int index, const QVariantList &values)
{
    RowNode *row = m_root.getChild(index);
    if (!row)
        return false;
    if (values.size() != columnCount()) {
        qCWarning(propertyEditorLog) << "Record columns count mismatch in" << propertyName();
        return false;
    }
    if (!std::ranges::all_of(values, [this](const QVariant &value) { return isStorable(value); }))
        return false;
    const VariantItems data(values);
    row->setRowData(data);
    // Not the row's own data: who hears of it first may remove the row.
    announce(
        this, [&] { Q_EMIT rowChanged(index, data); }, [this] { Q_EMIT changed(); });
    return true;
}

bool BaseTableItem::isStorable(const QVariant &value) const
{
    const bool isStorable = rn::canSerialize(value);
    if (!isStorable)
        qCWarning(propertyEditorLog) << "A file can't hold the value" << value << "in" << propertyName();
    return isStorable;
}

const RowNode *BaseTableItem::rowOfCell(int row, int column) const
{
    if (row < 0 || row >= rowCount()) {
        qCWarning(propertyEditorLog) << "Row" << row << "is out of bounds in" << propertyName();
        return nullptr;
    }
    if (!isColumn(column)) {
        qCWarning(propertyEditorLog) << "Column" << column << "is out of bounds in" << propertyName();
        return nullptr;
    }
    const RowNode *node = m_root.getChild(row);
    if (!node) {
        qCWarning(propertyEditorLog) << "Item is null at row" << row << "column" << column << "in"
                                     << propertyName();
    }
    return node;
}

QVariant BaseTableItem::value(int row, int column) const
{
    const RowNode *node = rowOfCell(row, column);
    return node ? node->getDataAt(column) : QVariant();
}

bool BaseTableItem::setValue(int row, int column, const QVariant &value)
{
    if (!rowOfCell(row, column) || !isStorable(value))
        return false;
    RowNode *node = m_root.getChild(row);
    // A row of a file may be shorter than the header.
    if (node->data.size() <= column)
        node->data.resize(columnCount());
    // A copy: the caller's value may lie in what a listener removes.
    const QVariant stored = value;
    node->getDataAt(column) = stored;
    announce(
        this, [&] { Q_EMIT valueChanged(row, column, stored); }, [this] { Q_EMIT changed(); });
    return true;
}

void BaseTableItem::resizeChildrenToMatchRoot(RowNode *node)
{
    if (!node) {
        qCWarning(propertyEditorLog) << "Cannot resize a null RowNode";
        return;
    }
    for (int i = 0; i < node->getChildListSize(); ++i) {
        VariantItems &cells = node->getChild(i)->data;
        if (cells.size() < node->data.size())
            cells.resize(node->data.size());
    }
}

void BaseTableItem::appendProperty(QJsonObject *json, PropertyId id, const QJsonObject &value)
{
    QJsonArray entries = json->value(PROPERTIES_KEY).toArray();
    entries.append(QJsonObject{{NAME_KEY, PropertiesNames::internalNameForType(id)}, {VALUE_KEY, value}});
    json->insert(PROPERTIES_KEY, entries);
}

QJsonObject BaseTableItem::cellWithValue(PropertyConversionFlag flag, const QJsonObject &value) const
{
    QJsonObject json = BaseItem::toJson(flag);
    appendProperty(&json, propertyId(), value);
    return json;
}

QJsonObject BaseTableItem::toJson(PropertyConversionFlag flag) const
{
    QJsonObject json = cellWithValue(flag, PropertyEditorJsonUtils::rowNodeToObject(m_root));
    if (propertyId() == PropertyId::Samples) {
        appendProperty(&json, PropertyId::CustomColumns,
                       PropertyEditorJsonUtils::rowNodeToObject(m_customColumnsMetaData));
    }
    return json;
}

Result<QJsonObject> BaseTableItem::mainEntry(const QJsonObject &json) const
{
    QJsonObject entry = PropertyEditorJsonUtils::getPropertyWithType(json, propertyId());
    if (!entry.isEmpty())
        return entry;
    return Error(ErrorCode::MalformedStructure,
                 tr("Could not parse JSON. Subobject \"%1\" is empty.").arg(propertyName()))
        .addDetail(tr("The cell \"%1\" needs an entry of that name in its \"properties\".").arg(name()));
}

void BaseTableItem::loadCustomColumns(const QJsonObject &json)
{
    const QJsonObject columns = PropertyEditorJsonUtils::getPropertyWithType(json, PropertyId::CustomColumns);
    if (!columns.isEmpty())
        m_customColumnsMetaData = PropertyEditorJsonUtils::propValueToRowNode(columns);
}

Error BaseTableItem::assignCommon(const QJsonObject &json, ValidationOptions options)
{
    m_root.clear();
    m_customColumnsMetaData.clear();
    const QJsonValue properties = json.value(PROPERTIES_KEY);
    if (!properties.isArray()) {
        return Error(ErrorCode::MalformedStructure,
                     tr("Could not parse JSON. \"%1\" has unsupported format in \"%2\".")
                         .arg(PROPERTIES_KEY, propertyName()))
            .addDetail(
                tr("It has to be an array, and is %1.").arg(JsonUtils::typeDescription(properties.type())));
    }
    ORV_RETURN_IF_ERROR(BaseItem::assignFromJson(json, options));
    return Error::NoError;
}

Error BaseTableItem::assignFromJson(const QJsonObject &json, ValidationOptions options)
{
    return load(json, options, {});
}

Error BaseTableItem::load(const QJsonObject &json, ValidationOptions options, const LoadContext &context)
{
    ORV_RETURN_IF_ERROR(assignCommon(json, options));
    Result<QJsonObject> entry = mainEntry(json);
    if (entry.hasError())
        return entry.ecatch();

    m_root = PropertyEditorJsonUtils::propValueToRowNode(*entry);
    loadCustomColumns(json);

    if (context.isObserved()) {
        QList<PropertyId> tables = m_further.tables;
        if (propertyId() == PropertyId::Samples)
            tables.append(PropertyId::CustomColumns);
        reportTableLosses(context, json, {propertyId(), tables, m_further.objects, m_further.valueArrays});
    }
    return announceReset();
}

Error BaseTableItem::announceReset()
{
    if (!announce(this, [this] { Q_EMIT reset(); }))
        return removedWhileLoading();
    return Error::NoError;
}

Error BaseTableItem::checkWritable() const
{
    return checkTable(m_root, propertyId());
}

Error BaseTableItem::checkTable(const RowNode &table, PropertyId id) const
{
    if (rn::canSerialize(table))
        return Error::NoError;
    Error error(ErrorCode::InvalidContent,
                tr("The table \"%1\" can't be written.").arg(PropertiesNames::internalNameForType(id)));
    return error.addDetail(placeOfUnwritable(table)).ecatch();
}

void BaseTableItem::setBaseUrl(const QUrl &url)
{
    m_baseUrl = url;
}

void BaseTableItem::clear()
{
    m_root.clear();
    m_customColumnsMetaData.clear();
    Q_EMIT changed();
}

} // namespace orv::PropertyEditor
