#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/ContentOptions.h>
#include <orv/propertyeditor/content/LoadContext.h>

#include <QExplicitlySharedDataPointer>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantList>

#include <memory>

namespace orv::PropertyEditor {

class ItemSubGroup;

/// One tab of a document: its columns from left to right. Owns its subgroups; pointers given out stay valid
/// until the subgroup is removed, or the tab is cleared or loaded. Copies share the subgroups, and each copy
/// emits signals for the changes made through it. Not thread safe.
///
/// In a file the cells of a tab stand row by row: cell number i lies in column i modulo the number of
/// columns.
class ORV_WORKFLOW_EXPORT ItemGroup : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("orv/propertyeditor/content/ItemSubGroup.h")
    Q_PROPERTY(QString name READ name)
    Q_PROPERTY(QStringList subGroupNames READ subGroupNames)
    Q_PROPERTY(int size READ count)

public:
    ItemGroup();
    ItemGroup(const ItemGroup &other);
    ItemGroup &operator=(const ItemGroup &other);
    ~ItemGroup() override;

    /// Replaces the tab. A malformed object (code 1) leaves it as it was; a bad cell leaves the columns
    /// before it. Cells without a column to lie in are malformed.
    Error assignFromJson(const QJsonObject &json, ValidationOptions options, const LoadContext &context = {});

    /// Replaces the tab by a copy of \a other, of which a file can hold all; malformed (code 1) if it isn't a
    /// rectangle.
    Error assignCopy(const ItemGroup &other, PropertyConversionFlag flag);

    /// The tab as the format has it: a rectangle of the first column's height. A column that is shorter
    /// can't be written so, and gives an empty object; what a longer one has more is left out.
    [[nodiscard]] QJsonObject toJson(PropertyConversionFlag flag) const;

    void setBaseUrl(const QUrl &url);

    [[nodiscard]] QString name() const;
    /// False, with a warning, for an empty name.
    bool setName(const QString &name);

    [[nodiscard]] int count() const;
    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    /// Whether all columns have the same height, as a file needs it.
    [[nodiscard]] bool isRectangle() const;
    /// Null, with a warning, outside the range.
    [[nodiscard]] ItemSubGroup *subGroup(int index) const;
    [[nodiscard]] QList<ItemSubGroup *> subGroups() const;
    /// By the subgroup's own type.
    [[nodiscard]] QList<ItemSubGroup *> subGroups(BaseItemType type) const;
    [[nodiscard]] QStringList subGroupNames() const;
    /// As subGroups(type), by the type's name, for scripts.
    [[nodiscard]] QVariantList findSubGroups(const QString &typeName) const;
    [[nodiscard]] bool contains(const QString &name) const;

    /// False, with a warning, for an empty name. A name that exists is accepted: columns may share one.
    bool addSubGroup(const QString &name, BaseItemType type);
    bool removeSubGroup(int index);
    /// The first of exactly that name.
    bool removeSubGroup(const QString &name);
    bool removeSubGroup(ItemSubGroup *subGroup);
    /// Deletes all subgroups without a signal.
    void clear();

Q_SIGNALS:
    void subGroupAdded(orv::PropertyEditor::ItemSubGroup *subGroup);
    /// The subgroup is out of the list and will be deleted when the signals are through.
    void subGroupRemoved(int index);
    void subGroupRemoved(const QString &subGroupName);
    void subGroupRemoved(orv::PropertyEditor::ItemSubGroup *subGroup);
    void subGroupCountChanged(int count);
    void reset();

private:
    [[nodiscard]] int indexOf(const QString &name) const;
    /// False if somebody who hears of the column deletes the tab.
    bool adoptNewSubGroup(std::unique_ptr<ItemSubGroup> subGroup, BaseItemType type);

    class Private;
    QExplicitlySharedDataPointer<Private> d;
};

} // namespace orv::PropertyEditor
