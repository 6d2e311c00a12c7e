#pragma once

#include <orv/core/Export.h>
#include <orv/table/VariantItems.h>

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace orv {

/// A tree node that models a table. The root's data are the column names; each child is a row, whose data are
/// the cells in the order of the columns. Rows may be shorter or longer than the header, and may have rows
/// of their own.
///
///     RowNode table;
///     table.addData(QStringList{QStringLiteral("Name"), QStringLiteral("Mass")});
///     RowNode *row = table.addNewChildMatchRootDataSize();
///     row->getDataAt(QStringLiteral("Mass")) = 148.0604;
///
/// A node is a value: a copy shares no row and no cell with the original, so that references handed out
/// before keep meaning the original alone (the texts within are shared, which can't be seen). Copies have no
/// parent; a node that is assigned to keeps its place in its tree. A node owns its children: pointers to them
/// stay good while rows are added, moved along with their parent, or removed elsewhere.
///
/// What doesn't exist answers null, -1, false or an invalid value. Access by index is constant in time, by
/// name linear in the count of columns. Names are those of the topmost node's data, also when a row is asked.
/// Not thread-safe, except that any number of threads may read one tree.
class ORV_WORKFLOW_EXPORT RowNode
{
public:
    /// What deepCopy takes over.
    enum class DeepCopyType
    {
        Subtree,     ///< data and all rows below
        DataOnly,    ///< data; the rows of the target stay
        ChildrenOnly ///< all rows below; the data of the target stay
    };

    /// Empty: no data, no children.
    RowNode();
    explicit RowNode(VariantItems items);
    RowNode(const RowNode &other);
    RowNode &operator=(const RowNode &other);
    /// Constant in time, however many rows there are. The moved-from node is empty.
    RowNode(RowNode &&other) noexcept;
    /// Any node may be assigned to any other, also from above or below it in the same tree; from above it
    /// copies.
    // NOLINTNEXTLINE(performance-noexcept-move-constructor): the copy may run out of memory
    RowNode &operator=(RowNode &&other);
    ~RowNode();

    /// The node's own entries. Rows aren't adapted when those of a root change.
    VariantItems data;

    /// No data and no children afterwards.
    void clear();
    /// Removes all rows and keeps the columns.
    void clearChildren();
    [[nodiscard]] bool isEmpty() const { return data.isEmpty() && getChildListSize() == 0; }

    /// The node above, null for a root.
    [[nodiscard]] RowNode *parent();
    [[nodiscard]] const RowNode *parent() const;
    /// The topmost node, which is this one when it has no parent.
    [[nodiscard]] RowNode *root();
    [[nodiscard]] const RowNode *root() const;

    [[nodiscard]] int getChildListSize() const;
    /// The child, owned by this node, or null.
    [[nodiscard]] RowNode *getChild(int index);
    [[nodiscard]] const RowNode *getChild(int index) const;
    [[nodiscard]] RowNode *getChildFirst() { return getChild(0); }
    [[nodiscard]] const RowNode *getChildFirst() const { return getChild(0); }

    /// Appends a child whose data has as many empty entries as this node's. Null, and nothing appended, when
    /// the count of children would leave the range of an index.
    RowNode *addNewChildMatchRootDataSize();
    /// As before, with these entries as the child's data.
    RowNode *addNewChild(VariantItems items);
    /// Removes and destroys the child; nothing happens where there is none.
    void deleteChild(int index);

    /// Appends entries to this node's data; rows stay as they are.
    void addData(const VariantItems &items);
    /// With \a skipExisting, texts that the data holds already are left out, repeated ones too.
    void addData(const QStringList &texts, bool skipExisting = false);
    /// Appends \a name to the root's data and \a value to each of the root's children. With \a alignRows the
    /// value lands below its name in every row: shorter rows are filled up with empty entries, and what
    /// longer ones have beyond the header stays behind the value. Without, it goes to the end of each row as
    /// it is.
    void addDataToRootAndResizeChildren(const QString &name, const QVariant &value, bool alignRows = true);
    /// Removes the last column of that name from the root, and the entry below it from each row that
    /// has one. False when there is no such column.
    bool removeColumn(const QString &name);

    /// The entry, to be written to. Where there is none: a reference to an invalid value of the calling
    /// thread, which is dropped at the next such call.
    [[nodiscard]] QVariant &getDataAt(int index);
    [[nodiscard]] QVariant getDataAt(int index) const { return data.value(index); }
    /// The entry below the first column of that name; with \a ignoreCase in any case of letters.
    [[nodiscard]] QVariant &getDataAt(const QString &columnName, bool ignoreCase = false);
    [[nodiscard]] QVariant getDataAt(const QString &columnName, bool ignoreCase = false) const;

    /// Replaces this node's data.
    void setRowData(VariantItems items) { data = std::move(items); }
    [[nodiscard]] VariantItems getRowData() const { return data; }
    [[nodiscard]] QStringList getRowDataToStringList() const { return data.toStringList(); }

    /// The column names, asked of any node of the tree.
    [[nodiscard]] QStringList getRootDataAsStringList() const { return root()->data.toStringList(); }
    /// Empty where there is no such column.
    [[nodiscard]] QString getNameFromColumnIndex(int index) const;
    [[nodiscard]] bool rootHasData(const QString &name) const { return root()->data.contains(name); }
    /// The first column of that name, -1 for none; with \a ignoreCase in any case of letters.
    [[nodiscard]] int getColumnIndexFromName(const QString &name, bool ignoreCase = false) const;

    /// Takes over a copy of \a source, which may lie above or below in the same tree. False, and
    /// nothing changed, when it is null.
    bool deepCopy(const RowNode *source, DeepCopyType type = DeepCopyType::Subtree);

    /// Same data and same rows below, by the comparison of QVariant; the place in a tree doesn't count.
    friend bool operator==(const RowNode &a, const RowNode &b) { return a.equals(b); }

private:
    struct Rows;

    Rows &rows();
    [[nodiscard]] bool isBelow(const RowNode &other) const;
    [[nodiscard]] bool equals(const RowNode &other) const;

    /// The rows that this one belongs to, null for a root. They know their owner, so that moving a table
    /// needs no visit to each row.
    Rows *m_home = nullptr;
    std::unique_ptr<Rows> m_rows; ///< null until the first child
};

} // namespace orv
