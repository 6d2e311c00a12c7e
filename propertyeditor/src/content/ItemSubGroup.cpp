#include "orv/propertyeditor/content/ItemSubGroup.h"

#include "Announce.h"
#include "OwningList.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonObject>

#include <memory>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

class ItemSubGroup::Private : public QSharedData
{
public:
    OwningList<BaseItem> items;
    QString name;
    BaseItemType type = BaseItemType::Unknown;
};

ItemSubGroup::ItemSubGroup()
    : d(new Private)
{}

// A copy is another view of the same items; QObject's own part is never shared.
ItemSubGroup::ItemSubGroup(const ItemSubGroup &other)
    : QObject()
    , d(other.d)
{}

ItemSubGroup &ItemSubGroup::operator=(const ItemSubGroup &other)
{
    d = other.d;
    return *this;
}

ItemSubGroup::~ItemSubGroup() = default;

Error ItemSubGroup::assignFromJson(const QJsonArray &cells, const QString &name, ValidationOptions options,
                                   const LoadContext &context)
{
    const QPointer<ItemSubGroup> alive(this);
    clear();
    if (!alive)
        return removedWhileLoading();
    d->name = name;
    d->items.reserve(cells.size());
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const QJsonObject cell = cells.at(i).toObject();
        if (cell.isEmpty())
            return Error(ErrorCode::MalformedStructure);
        Result<std::unique_ptr<BaseItem>> item = createItemFromJson(cell, options, context.element(i));
        if (item.hasError())
            return item.ecatch();
        if (!adoptNewItem(std::move(item).value()))
            return removedWhileLoading();
    }
    Q_EMIT reset();
    return Error::NoError;
}

Error ItemSubGroup::assignCopy(const ItemSubGroup &other, PropertyConversionFlag flag)
{
    const QPointer<ItemSubGroup> alive(this);
    clear();
    if (!alive)
        return removedWhileLoading();
    d->name = other.d->name;
    d->items.reserve(other.count());
    for (const auto &each : other.d->items) {
        Result<std::unique_ptr<BaseItem>> item = each->copied(flag);
        if (item.hasError())
            return item.ecatch();
        if (!adoptNewItem(std::move(item).value()))
            return removedWhileLoading();
    }
    Q_EMIT reset();
    return Error::NoError;
}

QJsonArray ItemSubGroup::toJson(PropertyConversionFlag flag) const
{
    QJsonArray cells;
    for (const auto &item : d->items)
        cells.append(item->toJson(flag));
    return cells;
}

void ItemSubGroup::setBaseUrl(const QUrl &url)
{
    for (const auto &item : d->items)
        item->setBaseUrl(url);
}

QString ItemSubGroup::name() const
{
    return d->name;
}

bool ItemSubGroup::setName(const QString &name)
{
    if (name.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot assign an empty group name";
        return false;
    }
    d->name = name;
    return true;
}

BaseItemType ItemSubGroup::type() const
{
    return d->type;
}

void ItemSubGroup::setType(BaseItemType type)
{
    d->type = type;
}

int ItemSubGroup::count() const
{
    return d->items.count();
}

QList<BaseItem *> ItemSubGroup::items() const
{
    return d->items.pointers();
}

BaseItem *ItemSubGroup::item(int index) const
{
    if (!d->items.hasIndex(index)) {
        qCWarning(propertyEditorLog) << "Index is out of bounds";
        return nullptr;
    }
    return d->items.at(index);
}

QList<BaseItem *> ItemSubGroup::findItems(BaseItemType type) const
{
    return d->items.findAll([type](const BaseItem &item) { return item.type() == type; });
}

QVariant ItemSubGroup::firstValueOf(const QString &key) const
{
    for (const auto &item : d->items) {
        if (const auto *settings = qobject_cast<const KeyValueItem *>(item.get()))
            return settings->value(key);
    }
    return {};
}

bool ItemSubGroup::addItem(BaseItemType type)
{
    std::unique_ptr<BaseItem> item = allocateNewItem(type);
    if (!item)
        return false;
    adoptNewItem(std::move(item));
    return true;
}

bool ItemSubGroup::removeItem(int index)
{
    if (!d->items.hasIndex(index)) {
        qCWarning(propertyEditorLog) << "Index is out of bounds";
        return false;
    }
    const std::unique_ptr<BaseItem> removed = d->items.take(index);
    if (!removed) {
        qCWarning(propertyEditorLog) << "The item for deletion is null";
        return false;
    }
    announce(
        this, [&] { Q_EMIT itemRemoved(index); }, [&] { Q_EMIT itemRemoved(removed.get()); });
    return true;
}

bool ItemSubGroup::removeItem(BaseItem *item)
{
    const int index = d->items.indexOf(item);
    return index >= 0 && removeItem(index);
}

void ItemSubGroup::clear()
{
    // Who hears of the end of an item may delete the column.
    const QExplicitlySharedDataPointer<Private> kept = d;
    kept->items.clear();
}

std::unique_ptr<BaseItem> ItemSubGroup::allocateNewItem(BaseItemType type)
{
    const CellType *row = CellTypes::find(type);
    std::unique_ptr<BaseItem> item = row ? row->create(type) : nullptr;
    if (!item)
        qCWarning(propertyEditorLog) << "Failed to create a new item of type" << BaseItem::typeToString(type);
    return item;
}

bool ItemSubGroup::adoptNewItem(std::unique_ptr<BaseItem> item)
{
    BaseItem *const adopted = d->items.append(std::move(item));
    return announce(this, [&] { Q_EMIT itemAdded(adopted); });
}

Result<std::unique_ptr<BaseItem>> ItemSubGroup::createItemFromJson(const QJsonObject &json,
                                                                   ValidationOptions options,
                                                                   const LoadContext &context)
{
    const QString typeText = json.value(TYPE_KEY).toString();
    const BaseItemType type = BaseItem::typeFromString(typeText);
    if (type == BaseItemType::Unknown && !options.testFlag(ValidationOption::SkipTypeValidation))
        return Error(ErrorCode::InvalidContent, tr("Type \"%1\" is not supported.").arg(typeText));

    std::unique_ptr<BaseItem> item = allocateNewItem(type);
    if (!item)
        return Error(ErrorCode::InvalidContent, tr("Can't create item for \"%1\" type.").arg(typeText));

    ORV_RETURN_IF_ERROR(item->load(json, options, context));
    return item;
}

} // namespace orv::PropertyEditor
