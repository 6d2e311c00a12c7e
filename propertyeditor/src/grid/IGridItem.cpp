#include "orv/propertyeditor/grid/IGridItem.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table/PropertyUtils.h>

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

struct GridItemTr
{
    Q_DECLARE_TR_FUNCTIONS(IGridItem)
};

} // namespace

IGridItem::IGridItem()
    : m_edits(std::make_unique<GridItemEdits>())
{}

IGridItem::IGridItem(const IGridItem &other)
    : m_content(other.m_content)
    , m_customColumnDefinitions(other.m_customColumnDefinitions)
    , m_type(other.m_type)
    , m_name(other.m_name)
    , m_edits(std::make_unique<GridItemEdits>())
{}

IGridItem &IGridItem::operator=(const IGridItem &other)
{
    m_content = other.m_content;
    m_customColumnDefinitions = other.m_customColumnDefinitions;
    m_type = other.m_type;
    m_name = other.m_name;
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
    return setContentInternal();
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
    return propValueToRowNode(getPropertyWithType(m_content, id));
}

QJsonObject IGridItem::contentWith(const QList<std::pair<PropertyId, QJsonObject>> &values) const
{
    QJsonObject json = m_content;
    for (const auto &[id, value] : values)
        json = PropertyEditorJsonUtils::updatePropertyValue(json, id, value);
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
