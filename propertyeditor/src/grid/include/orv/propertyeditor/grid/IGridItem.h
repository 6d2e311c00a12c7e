#pragma once

#include <orv/core/Error.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/grid/GridItemEdits.h>
#include <orv/propertyeditor/grid/WidgetValidationType.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <utility>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// A column of a tab: fills one widget from the JSON object of a cell and gives the object back.
///
/// What the widget doesn't know stays: content() begins with the object that was set. Items live on the GUI
/// thread, as long as their column. Copies share neither the widget's owner nor listeners.
class ORV_PROPERTY_EDITOR_EXPORT IGridItem
{
public:
    using ColumnDefinitions = QHash<QString, QMap<QString, QVariant>>;

    /// \a properties are those that the widget edits, for items that use contentWith().
    explicit IGridItem(QList<PropertyId> properties = {});
    IGridItem(const IGridItem &other);
    IGridItem &operator=(const IGridItem &other);
    virtual ~IGridItem();

    /// Stamps *out with name and type; of an item of no known type the type text in it stays, in its
    /// canonical form. Does nothing for null.
    virtual void content(QJsonObject *out) const;
    /// The cell as the widget shows it now.
    [[nodiscard]] virtual QJsonObject content() const = 0;
    /// Null once the widget has gone. Whoever shows it gives it a parent, which owns it from then on.
    [[nodiscard]] virtual QWidget *widget() = 0;
    /// Whether the widget holds what \a type needs; what is wrong is appended to the lists.
    virtual bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                          WidgetValidationType type) const;
    /// Around the loading of a preset of the tab.
    virtual void beginPresetLoading();
    virtual void endPresetLoading();

    /// MalformedStructure without a widget, and what the cell lacks for it.
    Error setContent(const QJsonObject &json);

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    [[nodiscard]] BaseItemType type() const { return m_type; }
    void setType(BaseItemType type) { m_type = type; }

    /// Lives as long as the item.
    [[nodiscard]] GridItemEdits *edits() const { return m_edits.get(); }

    /// The types of custom columns of a table; columns without a type have no entry, and columns of an
    /// unknown type hold texts.
    [[nodiscard]] static QHash<QString, QMetaType::Type>
    customColumnTypes(const ColumnDefinitions &definitions);

protected:
    /// Fills the widget from storedContent().
    virtual Error setContentInternal() = 0;

    /// The object as last set.
    [[nodiscard]] const QJsonObject &storedContent() const { return m_content; }
    [[nodiscard]] QHash<QString, QMetaType::Type> customColumnTypes() const;
    /// The table that the stored object has under \a id; an empty one if there is none.
    [[nodiscard]] RowNode rowNodeForType(PropertyId id) const;
    /// The stored object with the values that are others than right after the load, stamped. An entry that
    /// the cell lacks is added.
    [[nodiscard]] QJsonObject contentWith(const QList<std::pair<PropertyId, QJsonObject>> &values) const;
    /// What setContentInternal gives without a widget.
    [[nodiscard]] static Error notInitialized();

    /// For every change of the widget; keeps quiet while content is being set.
    void tellEdited() const;

private:
    [[nodiscard]] bool hasEntry(PropertyId id) const;
    void rememberUntouched();

    QJsonObject m_content;
    ColumnDefinitions m_customColumnDefinitions;
    BaseItemType m_type = BaseItemType::Unknown;
    QString m_name;
    bool m_isBeingSet = false;
    QList<PropertyId> m_properties;
    QHash<PropertyId, QJsonObject> m_untouched; ///< values right after the load
    std::unique_ptr<GridItemEdits> m_edits;
};

} // namespace orv
