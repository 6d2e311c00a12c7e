#include "orv/propertyeditor/grid/IGridItem.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/PropertyUtils.h>
#include <orv/table/rn.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QScopedValueRollback>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

struct GridItemTr
{
    Q_DECLARE_TR_FUNCTIONS(IGridItem)
};

} // namespace

IGridItem::IGridItem(QList<PropertyId> properties)
    : m_properties(std::move(properties))
    , m_edits(std::make_unique<GridItemEdits>())
{}

IGridItem::IGridItem(const IGridItem &other)
    : m_content(other.m_content)
    , m_customColumnDefinitions(other.m_customColumnDefinitions)
    , m_type(other.m_type)
    , m_name(other.m_name)
    , m_properties(other.m_properties)
    , m_untouched(other.m_untouched)
    , m_edits(std::make_unique<GridItemEdits>())
{}

IGridItem &IGridItem::operator=(const IGridItem &other)
{
    m_content = other.m_content;
    m_customColumnDefinitions = other.m_customColumnDefinitions;
    m_type = other.m_type;
    m_name = other.m_name;
    m_properties = other.m_properties;
    m_untouched = other.m_untouched;
    return *this;
}

IGridItem::~IGridItem() = default;

void IGridItem::content(QJsonObject *out) const
{
    if (!out)
        return;
    const BaseItemType type = m_type == BaseItemType::Unknown
                                  ? PropertyEditor::BaseItem::typeFromString(out->value(TYPE_KEY).toString())
                                  : m_type;
    out->insert(NAME_KEY, m_name);
    out->insert(TYPE_KEY, PropertyEditor::BaseItem::typeToString(type));
}

bool IGridItem::validate(QStringList *, QStringList *, QStringList *, WidgetValidationType) const
{
    return true;
}

void IGridItem::beginPresetLoading() {}

void IGridItem::endPresetLoading() {}

Error IGridItem::setContent(const QJsonObject &json)
{
    m_content = json;
    m_customColumnDefinitions = PropertyEditorJsonUtils::customColumnDefinitions(json);
    const QScopedValueRollback quiet(m_isBeingSet, true);
    Error error = setContentInternal();
    rememberUntouched();
    return error;
}

bool IGridItem::hasEntry(PropertyId id) const
{
    const BaseItemType type = PropertyEditor::BaseItem::typeFromString(m_content.value(TYPE_KEY).toString());
    const QJsonArray entries = m_content.value(PROPERTIES_KEY).toArray();
    return std::any_of(entries.begin(), entries.end(), [id, type](const QJsonValue &entry) {
        return PropertyEditorJsonUtils::findPropertyBackCompat(entry.toObject(), type) == id;
    });
}

void IGridItem::rememberUntouched()
{
    using namespace PropertyEditorJsonUtils;
    m_untouched.clear();
    if (m_properties.isEmpty())
        return;
    const QJsonObject shown = content();
    if (shown.value(PROPERTIES_KEY).toArray().isEmpty())
        return;
    for (const PropertyId id : std::as_const(m_properties))
        m_untouched.insert(id, propValueObject(getPropertyWithType(shown, id)));
}

QHash<QString, QMetaType::Type> IGridItem::customColumnTypes(const ColumnDefinitions &definitions)
{
    QHash<QString, QMetaType::Type> types;
    for (auto column = definitions.cbegin(); column != definitions.cend(); ++column) {
        const QString type = column->value(TYPE_KEY).toString();
        if (!type.isEmpty())
            types.insert(column.key(), PropertyUtils::qtTypeForName(type, PropertyUtils::defaultType()));
    }
    return types;
}

QHash<QString, QMetaType::Type> IGridItem::customColumnTypes() const
{
    return customColumnTypes(m_customColumnDefinitions);
}

RowNode IGridItem::rowNodeForType(PropertyId id) const
{
    using namespace PropertyEditorJsonUtils;
    const QJsonValue value = getPropertyWithType(m_content, id).value(VALUE_KEY);
    RowNode table;
    const bool isRead =
        value.isObject() ? rn::fromObject(value.toObject(), &table) : value.isNull() || value.isUndefined();
    if (!isRead)
        qCWarning(propertyEditorLog).noquote()
            << "The table" << PropertiesNames::internalNameForType(id) << "of a column of the type"
            << m_content.value(TYPE_KEY).toString()
            << "can't be read. It is shown empty and stays as it is unless it is edited.";
    return table;
}

QJsonObject IGridItem::contentWith(const QList<std::pair<PropertyId, QJsonObject>> &values) const
{
    QJsonObject json = m_content;
    for (const auto &[id, value] : values) {
        if (value == m_untouched.value(id))
            continue; // what nobody edited stays as it stands there, be it something that no widget shows
        if (hasEntry(id)) {
            json = PropertyEditorJsonUtils::updatePropertyValue(json, id, value);
        } else {
            QJsonArray entries = json.value(PROPERTIES_KEY).toArray();
            entries.append(
                QJsonObject{{NAME_KEY, PropertiesNames::internalNameForType(id)}, {VALUE_KEY, value}});
            json.insert(PROPERTIES_KEY, entries);
        }
    }
    content(&json);
    return json;
}

Error IGridItem::notInitialized()
{
    return Error(ErrorCode::MalformedStructure, GridItemTr::tr("The object is not initialized."));
}

void IGridItem::tellEdited() const
{
    if (!m_isBeingSet)
        Q_EMIT m_edits->edited();
}

} // namespace orv
