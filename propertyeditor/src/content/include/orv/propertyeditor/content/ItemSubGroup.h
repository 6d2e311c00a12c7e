#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/ContentOptions.h>
#include <orv/propertyeditor/content/LoadContext.h>

#include <QExplicitlySharedDataPointer>
#include <QJsonArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariant>

#include <memory>

namespace orv::PropertyEditor {

class BaseItem;

/// One column of a tab: its cells from top to bottom. Owns its items; pointers given out stay valid until
/// the item is removed, or the column is cleared or loaded. Copies share the items, and each copy emits
/// signals for the changes made through it. Not thread safe.
class ORV_WORKFLOW_EXPORT ItemSubGroup : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("orv/propertyeditor/content/BaseItem.h")
    Q_PROPERTY(QString name READ name)
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int size READ count)

public:
    ItemSubGroup();
    ItemSubGroup(const ItemSubGroup &other);
    ItemSubGroup &operator=(const ItemSubGroup &other);
    ~ItemSubGroup() override;

    /// Replaces the items. On failure the cells before the bad one stay.
    Error assignFromJson(const QJsonArray &cells, const QString &name, ValidationOptions options,
                         const LoadContext &context = {});
    /// The same with copies of the items of \a other.
    Error assignCopy(const ItemSubGroup &other, PropertyConversionFlag flag);
    [[nodiscard]] QJsonArray toJson(PropertyConversionFlag flag) const;
    void setBaseUrl(const QUrl &url);

    [[nodiscard]] QString name() const;
    /// False, with a warning, for an empty name.
    bool setName(const QString &name);
    /// The type given when the column was made or, after a load, that of its last cell.
    [[nodiscard]] BaseItemType type() const;
    void setType(BaseItemType type);

    [[nodiscard]] int count() const;
    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] QList<BaseItem *> items() const;
    /// Null, with a warning, outside the range.
    [[nodiscard]] BaseItem *item(int index) const;
    /// By each item's own type.
    [[nodiscard]] QList<BaseItem *> findItems(BaseItemType type) const;
    /// The value of \a key in the first cell of settings, whether or not it has that key; null without such a
    /// cell.
    [[nodiscard]] QVariant firstValueOf(const QString &key) const;

    bool addItem(BaseItemType type);
    Q_INVOKABLE bool removeItem(int index);
    bool removeItem(BaseItem *item);
    /// Deletes all items without a signal.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void itemAdded(orv::PropertyEditor::BaseItem *item);
    /// The item is out of the list and will be deleted when the signals are through.
    void itemRemoved(int index);
    void itemRemoved(orv::PropertyEditor::BaseItem *item);
    void reset();

private:
    [[nodiscard]] static std::unique_ptr<BaseItem> allocateNewItem(BaseItemType type);
    /// False if somebody who hears of the item deletes the column.
    bool adoptNewItem(std::unique_ptr<BaseItem> item);
    [[nodiscard]] static Result<std::unique_ptr<BaseItem>>
    createItemFromJson(const QJsonObject &json, ValidationOptions options, const LoadContext &context);

    class Private;
    QExplicitlySharedDataPointer<Private> d;
};

} // namespace orv::PropertyEditor
