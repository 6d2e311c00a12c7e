#include "orv/propertyeditor/content/ItemGroup.h"

#include "Announce.h"
#include "OwningList.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>
#include <array>
#include <new>
#include <vector>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

class ItemGroup::Private : public QSharedData
{
public:
    OwningList<ItemSubGroup> subGroups;
    QString name;
};

namespace {

/// The cells of one column on their way from the file's rows.
struct ColumnCells
{
    QJsonArray cells;
    BaseItemType type = BaseItemType::Unknown;
};

std::vector<ColumnCells> splitIntoColumns(const QJsonArray &cells, qsizetype columnCount)
{
    std::vector<ColumnCells> columns(static_cast<size_t>(columnCount));
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const QJsonValue cell = cells.at(i);
        ColumnCells &column = columns[size_t(i % columnCount)];
        column.type = BaseItem::typeFromString(cell.toObject().value(TYPE_KEY).toString());
        column.cells.append(cell);
    }
    return columns;
}

void reportUnknownTabMembers(const QJsonObject &json, const LoadContext &context)
{
    if (!context.isObserved())
        return;
    constexpr std::array known = {COLUMNS_KEY, CELLS_KEY, NAME_KEY};
    for (auto it = json.begin(); it != json.end(); ++it) {
        if (std::find(known.begin(), known.end(), it.key()) == known.end()) {
            context.lost(it.key(), ItemGroup::tr("member \"%1\" of a tab").arg(it.key()),
                         ItemGroup::tr("the format has no such member"));
        }
    }
    const QJsonArray columns = json.value(COLUMNS_KEY).toArray();
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (!columns.at(i).isString()) {
            context.member(COLUMNS_KEY)
                .lost(QString::number(i), ItemGroup::tr("column name that is no text"),
                      ItemGroup::tr("it reads as an empty name"));
        }
    }
}

} // namespace

ItemGroup::ItemGroup()
    : d(new Private)
{}

// A copy is another view of the same columns; QObject's own part is never shared.
ItemGroup::ItemGroup(const ItemGroup &other)
    : QObject()
    , d(other.d)
{}

ItemGroup &ItemGroup::operator=(const ItemGroup &other)
{
    d = other.d;
    return *this;
}

ItemGroup::~ItemGroup() = default;

Error ItemGroup::assignFromJson(const QJsonObject &json, ValidationOptions options,
                                const LoadContext &context)
{
    const QJsonValue columnsValue = json.value(COLUMNS_KEY);
    const QJsonValue nameValue = json.value(NAME_KEY);
    const QJsonValue cellsValue = json.value(CELLS_KEY);
    const QJsonArray columnNames = columnsValue.toArray();
    const QJsonArray cells = cellsValue.toArray();
    const bool cellsWithoutColumns = columnNames.isEmpty() && !cells.isEmpty();
    if (!columnsValue.isArray() || !nameValue.isString() || !cellsValue.isArray() || cellsWithoutColumns) {
        return Error(ErrorCode::MalformedStructure,
                     QStringLiteral("JSON format is incorrect: columns || name || cells"));
    }

    const QPointer<ItemGroup> alive(this);
    clear();
    if (!alive)
        return removedWhileLoading();
    d->name = nameValue.toString();
    reportUnknownTabMembers(json, context);
    if (columnNames.isEmpty()) {
        Q_EMIT reset();
        return Error::NoError;
    }

    const std::vector<ColumnCells> columns = splitIntoColumns(cells, columnNames.size());
    d->subGroups.reserve(qsizetype(columns.size()));
    for (size_t c = 0; c < columns.size(); ++c) {
        std::unique_ptr<ItemSubGroup> subGroup(new (std::nothrow) ItemSubGroup);
        if (!subGroup)
            return Error(ErrorCode::MalformedStructure, QStringLiteral("Cannot allocate a new SubGroup"));
        const QString columnName = columnNames.at(qsizetype(c)).toString();
        Error error = subGroup->assignFromJson(columns[c].cells, columnName, options,
                                               context.column(qsizetype(c), columnNames.size()));
        if (error.hasError()) {
            const auto row = subGroup->count() + 1;
            return error.addDetail(tr("Column %1 (\"%2\"), row %3.").arg(c + 1).arg(columnName).arg(row))
                .ecatch();
        }
        if (!adoptNewSubGroup(std::move(subGroup), columns[c].type))
            return removedWhileLoading();
    }
    Q_EMIT reset();
    return Error::NoError;
}

Error ItemGroup::assignCopy(const ItemGroup &other, PropertyConversionFlag flag)
{
    if (!other.isRectangle())
        return Error(ErrorCode::MalformedStructure, QStringLiteral("The columns differ in height"));
    const QPointer<ItemGroup> alive(this);
    clear();
    if (!alive)
        return removedWhileLoading();
    d->name = other.d->name;
    d->subGroups.reserve(other.count());
    for (const auto &each : other.d->subGroups) {
        auto subGroup = std::make_unique<ItemSubGroup>();
        ORV_RETURN_IF_ERROR(subGroup->assignCopy(*each, flag));
        // As when the document is read from its file.
        const BaseItemType type =
            each->isEmpty() ? BaseItemType::Unknown : each->item(each->count() - 1)->type();
        if (!adoptNewSubGroup(std::move(subGroup), type))
            return removedWhileLoading();
    }
    Q_EMIT reset();
    return Error::NoError;
}

QJsonObject ItemGroup::toJson(PropertyConversionFlag flag) const
{
    QJsonArray names;
    std::vector<QJsonArray> columns;
    columns.reserve(size_t(count()));
    for (const auto &subGroup : d->subGroups) {
        names.append(subGroup->name());
        columns.push_back(subGroup->toJson(flag));
    }

    QJsonArray cells;
    const qsizetype rows = columns.empty() ? 0 : columns.front().size();
    for (qsizetype j = 0; j < rows; ++j) {
        for (const QJsonArray &column : columns) {
            if (j >= column.size()) {
                qCWarning(propertyEditorLog) << "j is out of bounds";
                return {};
            }
            cells.append(column.at(j));
        }
    }

    QJsonObject json;
    json.insert(COLUMNS_KEY, names);
    json.insert(CELLS_KEY, cells);
    json.insert(NAME_KEY, d->name);
    return json;
}

void ItemGroup::setBaseUrl(const QUrl &url)
{
    for (const auto &subGroup : d->subGroups)
        subGroup->setBaseUrl(url);
}

QString ItemGroup::name() const
{
    return d->name;
}

bool ItemGroup::setName(const QString &name)
{
    if (name.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot assign an empty group name";
        return false;
    }
    d->name = name;
    return true;
}

int ItemGroup::count() const
{
    return d->subGroups.count();
}

ItemSubGroup *ItemGroup::subGroup(int index) const
{
    if (!d->subGroups.hasIndex(index)) {
        qCWarning(propertyEditorLog) << "SubGroup index is out of bounds";
        return nullptr;
    }
    return d->subGroups.at(index);
}

QList<ItemSubGroup *> ItemGroup::subGroups() const
{
    return d->subGroups.pointers();
}

QList<ItemSubGroup *> ItemGroup::subGroups(BaseItemType type) const
{
    return d->subGroups.findAll([type](const ItemSubGroup &subGroup) { return subGroup.type() == type; });
}

QStringList ItemGroup::subGroupNames() const
{
    QStringList names;
    names.reserve(count());
    for (const auto &subGroup : d->subGroups)
        names.append(subGroup->name());
    return names;
}

bool ItemGroup::isRectangle() const
{
    return d->subGroups.find([this](const ItemSubGroup &column) {
        return column.count() != d->subGroups.at(0)->count();
    }) < 0;
}

QVariantList ItemGroup::findSubGroups(const QString &typeName) const
{
    if (typeName.isEmpty())
        return {};
    const std::optional<BaseItemType> type = findBaseItemType(typeName);
    if (!type)
        return {};
    QVariantList found;
    for (ItemSubGroup *subGroup : subGroups(*type))
        found.append(QVariant::fromValue(subGroup));
    return found;
}

bool ItemGroup::contains(const QString &name) const
{
    return indexOf(name) >= 0;
}

bool ItemGroup::addSubGroup(const QString &name, BaseItemType type)
{
    if (name.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot add a new subgroup with an empty name";
        return false;
    }
    std::unique_ptr<ItemSubGroup> subGroup(new (std::nothrow) ItemSubGroup);
    if (!subGroup) {
        qCWarning(propertyEditorLog) << "Cannot allocate a new SubGroup";
        return false;
    }
    subGroup->setName(name);
    adoptNewSubGroup(std::move(subGroup), type);
    return true;
}

bool ItemGroup::removeSubGroup(int index)
{
    if (!d->subGroups.hasIndex(index)) {
        qCWarning(propertyEditorLog) << "SubGroup index is out of bounds";
        return false;
    }
    const std::unique_ptr<ItemSubGroup> removed = d->subGroups.take(index);
    if (!removed) {
        qCWarning(propertyEditorLog) << "The subgroup for deletion is null";
        return false;
    }
    announce(
        this, [&] { Q_EMIT subGroupRemoved(index); }, [&] { Q_EMIT subGroupRemoved(removed->name()); },
        [&] { Q_EMIT subGroupRemoved(removed.get()); }, [this] { Q_EMIT subGroupCountChanged(count()); });
    return true;
}

bool ItemGroup::removeSubGroup(const QString &name)
{
    const int index = indexOf(name);
    return index >= 0 && removeSubGroup(index);
}

bool ItemGroup::removeSubGroup(ItemSubGroup *subGroup)
{
    const int index = d->subGroups.indexOf(subGroup);
    return index >= 0 && removeSubGroup(index);
}

void ItemGroup::clear()
{
    // Who hears of the end of a column may delete the tab.
    const QExplicitlySharedDataPointer<Private> kept = d;
    kept->subGroups.clear();
}

int ItemGroup::indexOf(const QString &name) const
{
    return d->subGroups.find([&name](const ItemSubGroup &subGroup) { return subGroup.name() == name; });
}

bool ItemGroup::adoptNewSubGroup(std::unique_ptr<ItemSubGroup> subGroup, BaseItemType type)
{
    subGroup->setType(type);
    ItemSubGroup *const adopted = d->subGroups.append(std::move(subGroup));
    return announce(
        this, [&] { Q_EMIT subGroupAdded(adopted); }, [this] { Q_EMIT subGroupCountChanged(count()); });
}

} // namespace orv::PropertyEditor
