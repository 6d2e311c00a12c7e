#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace orv {

/// An ordered list of values: the column names or the cells of one row of a table, or the raw cells of a tab.
/// An item has no name beside its value: it is found by its text, which for a header is the column's name.
/// A plain value with Qt's implicit sharing, so a reference to an item doesn't outlive a copy of the list.
class ORV_WORKFLOW_EXPORT VariantItems
{
public:
    using const_iterator = QList<QVariant>::const_iterator;

    VariantItems() = default;
    VariantItems(std::initializer_list<QVariant> items)
        : m_items(items)
    {}
    explicit VariantItems(QList<QVariant> items)
        : m_items(std::move(items))
    {}

    [[nodiscard]] qsizetype size() const { return m_items.size(); }
    [[nodiscard]] bool isEmpty() const { return m_items.isEmpty(); }

    /// The item at \a index, which must lie in the list.
    [[nodiscard]] const QVariant &at(qsizetype index) const { return m_items.at(index); }
    QVariant &operator[](qsizetype index) { return m_items[index]; }
    const QVariant &operator[](qsizetype index) const { return m_items[index]; }
    /// The item at \a index, an invalid one where the list has none.
    [[nodiscard]] QVariant value(qsizetype index) const { return m_items.value(index); }

    void reserve(qsizetype size) { m_items.reserve(size); }
    /// New items are null.
    void resize(qsizetype size) { m_items.resize(size); }
    void append(QVariant item) { m_items.append(std::move(item)); }
    void append(const VariantItems &items) { m_items.append(items.m_items); }
    /// \a index may be the size, but not lie behind it.
    void insert(qsizetype index, QVariant item) { m_items.insert(index, std::move(item)); }
    /// The item at \a index, which must lie in the list, makes room.
    void removeAt(qsizetype index) { m_items.removeAt(index); }
    void clear() { m_items.clear(); }

    /// Whether an item reads as exactly this text, and where the first such item is (-1 for none).
    [[nodiscard]] bool contains(const QString &name) const { return indexOf(name) >= 0; }
    [[nodiscard]] qsizetype indexOf(const QString &name) const;
    /// Where the last such item is, -1 for none.
    [[nodiscard]] qsizetype lastIndexOf(const QString &name) const;

    /// All items as texts.
    [[nodiscard]] QStringList toStringList() const;

    [[nodiscard]] const_iterator begin() const { return m_items.begin(); }
    [[nodiscard]] const_iterator end() const { return m_items.end(); }

    friend bool operator==(const VariantItems &a, const VariantItems &b) { return a.m_items == b.m_items; }

private:
    QList<QVariant> m_items;
};

} // namespace orv
