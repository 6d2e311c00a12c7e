#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/table/RowNode.h>
#include <orv/table/VariantItems.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>

namespace orv::PropertyEditor {

/// A cell that holds a table. The table is one tree of nodes: the data of its root are the names of the
/// columns, each child is a row. In the document it is the value of the cell's main property, in the form
/// that orv/table/rn.h tells: \code
///     {"type": "Isotope", "properties": [{"name": "Isotope", "value": {"data": ["Name"], "children": []}}]}
/// \endcode
/// What changes the table answers false and logs a line where it can't, which holds for values that a file
/// can't hold; only changes that succeed are announced.
class ORV_WORKFLOW_EXPORT BaseTableItem : public BaseItem
{
    Q_OBJECT
    Q_PROPERTY(int rowCount READ rowCount NOTIFY rowCountChanged)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY columnCountChanged)
    Q_PROPERTY(QStringList columnNames READ columnNames)

public:
    ~BaseTableItem() override;

    [[nodiscard]] int rowCount() const { return m_root.getChildListSize(); }
    [[nodiscard]] int columnCount() const { return int(m_root.data.size()); }
    /// Whether there are no rows.
    [[nodiscard]] bool isEmpty() const { return rowCount() == 0; }
    /// The first column of that name, -1 if there is none.
    Q_INVOKABLE int columnIndex(const QString &name) const;
    /// Empty, with a warning, beyond the columns.
    [[nodiscard]] QString columnName(int index) const;
    [[nodiscard]] QStringList columnNames() const { return m_root.data.toStringList(); }
    /// What the document tells of columns that users defined; empty if it tells nothing.
    [[nodiscard]] RowNode customColumnsMetaData() const { return m_customColumnsMetaData; }

    /// Appends a column, with an empty text in every row. False when a column has that name.
    Q_INVOKABLE bool addColumn(const QString &name);
    /// Removes the last column of that name.
    Q_INVOKABLE bool removeColumn(const QString &name);
    /// Removes the last of the columns that have the name of this one.
    Q_INVOKABLE bool removeColumn(int index);
    /// The name must not be empty. Announces changed() alone.
    Q_INVOKABLE bool setColumnName(int index, const QString &name);

    /// Appends a row. It stays blank if \a values are empty, not as many as there are columns, or hold what a
    /// file can't.
    Q_INVOKABLE bool addRow(const QVariantList &values);
    Q_INVOKABLE bool removeRow(int index);
    /// Replaces a row by as many values as there are columns.
    Q_INVOKABLE bool setRowValues(int index, const QVariantList &values);

    /// Null, with a warning, beyond rows or columns.
    [[nodiscard]] QVariant value(int row, int column) const;
    Q_INVOKABLE bool setValue(int row, int column, const QVariant &value);

    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    /// MalformedStructure if the cell lacks its "properties" or its table. Then ends in reset().
    Error assignFromJson(const QJsonObject &json, ValidationOptions options) final;
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    [[nodiscard]] Error checkWritable() const override;
    /// Leaves no rows, no columns and no definitions of columns. Announces changed() alone.
    void clear() override;
    void setBaseUrl(const QUrl &url) override;

Q_SIGNALS:
    void columnCountChanged(int count);
    void columnAdded(int index);
    void columnRemoved(int index);
    void columnRemoved(const QString &columnName);
    /// Never emitted by this class: setColumnName announces nothing.
    void columnNameChanged(int index, const QString &columnName);
    void rowCountChanged(int count);
    void rowAdded(int index);
    void rowChanged(int index, const orv::VariantItems &rowData);
    void rowRemoved(int index);
    void valueChanged(int row, int column, const QVariant &value);

protected:
    /// What a subclass loads and saves besides the table, so that a load doesn't report it as lost.
    struct FurtherContent
    {
        QList<PropertyId> tables;  ///< further entries of "properties" that hold tables
        QList<PropertyId> objects; ///< further entries of "properties" that hold other objects
        QStringList valueArrays;   ///< members of the table's value beside those of a node, arrays
    };

    explicit BaseTableItem(BaseItemType type);
    BaseTableItem(BaseItemType type, FurtherContent further);

    /// From which relative files are taken when the cell is written with absolute paths.
    [[nodiscard]] const QUrl &baseUrl() const { return m_baseUrl; }

    /// The property whose value the table is.
    [[nodiscard]] virtual PropertyId propertyId() const = 0;

    [[nodiscard]] RowNode &rootNode() { return m_root; }
    [[nodiscard]] const RowNode &rootNode() const { return m_root; }

    /// Appends empty entries to rows that are shorter than the header; longer ones stay. Null is told in the
    /// log.
    static void resizeChildrenToMatchRoot(RowNode *node);

    /// Why a file can't hold \a table, the value of the property \a id.
    [[nodiscard]] Error checkTable(const RowNode &table, PropertyId id) const;

    /// The end of a load: reset(), and an error if somebody who hears it deletes the item.
    [[nodiscard]] Error announceReset();

    /// Appends an entry of "properties" to the cell \a json.
    static void appendProperty(QJsonObject *json, PropertyId id, const QJsonObject &value);
    /// A cell with the common keys and one entry of "properties" whose value is \a value.
    [[nodiscard]] QJsonObject cellWithValue(orv::PropertyEditor::PropertyConversionFlag flag,
                                            const QJsonObject &value) const;

    /// The first steps of a load, for a subclass whose property holds no plain table: clears the table,
    /// refuses a cell without "properties", and reads the common keys.
    Error assignCommon(const QJsonObject &json, ValidationOptions options);

    /// Takes over what the document tells of columns that users defined; nothing where it tells nothing.
    void loadCustomColumns(const QJsonObject &json);

    /// The entry of the main property; MalformedStructure if there is none.
    [[nodiscard]] Result<QJsonObject> mainEntry(const QJsonObject &json) const;

private:
    [[nodiscard]] QString propertyName() const;
    [[nodiscard]] bool isColumn(int index) const { return index >= 0 && index < columnCount(); }
    /// False, with a warning, for what a file can't hold.
    [[nodiscard]] bool isStorable(const QVariant &value) const;
    /// The row, or null with a warning where there is no such cell.
    [[nodiscard]] const RowNode *rowOfCell(int row, int column) const;

    RowNode m_root;
    RowNode m_customColumnsMetaData;
    FurtherContent m_further;
    QUrl m_baseUrl;
};

} // namespace orv::PropertyEditor
