#pragma once

#include <QList>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace orv::PropertyEditor {

/// The children of a tab, a column or a document, in order. A child is out of the list before it is
/// destroyed, so that who hears of its end finds the rest as it is then.
template<typename Child>
class OwningList
{
public:
    OwningList() = default;
    ~OwningList() { clear(); }
    Q_DISABLE_COPY_MOVE(OwningList)

    [[nodiscard]] int count() const { return int(m_children.size()); }
    [[nodiscard]] bool hasIndex(int index) const { return index >= 0 && index < count(); }
    /// \a index must be in the range, here and in take.
    [[nodiscard]] Child *at(int index) const { return m_children[size_t(index)].get(); }
    [[nodiscard]] auto begin() const { return m_children.begin(); }
    [[nodiscard]] auto end() const { return m_children.end(); }
    [[nodiscard]] QList<Child *> pointers() const
    {
        return findAll([](const Child &) { return true; });
    }

    /// The first child for which \a matches holds, -1 if there is none.
    template<typename Predicate>
    [[nodiscard]] int find(Predicate matches) const
    {
        const auto found = std::ranges::find_if(
            m_children, [&](const auto &child) { return child && matches(std::as_const(*child)); });
        return found == m_children.end() ? -1 : int(found - m_children.begin());
    }
    /// Compares addresses alone, so \a child may be gone.
    [[nodiscard]] int indexOf(const Child *child) const
    {
        return find([child](const Child &candidate) { return &candidate == child; });
    }
    template<typename Predicate>
    [[nodiscard]] QList<Child *> findAll(Predicate matches) const
    {
        QList<Child *> found;
        found.reserve(count());
        for (const auto &child : m_children) {
            if (child && matches(std::as_const(*child)))
                found.append(child.get());
        }
        return found;
    }

    void reserve(qsizetype count) { m_children.reserve(size_t(count)); }
    Child *append(std::unique_ptr<Child> child) { return m_children.emplace_back(std::move(child)).get(); }
    [[nodiscard]] std::unique_ptr<Child> take(int index)
    {
        std::unique_ptr<Child> child = std::move(m_children[size_t(index)]);
        m_children.erase(m_children.begin() + index);
        return child;
    }
    void clear()
    {
        // The list is empty when the first of them goes.
        const std::vector<std::unique_ptr<Child>> dying = std::exchange(m_children, {});
    }

private:
    std::vector<std::unique_ptr<Child>> m_children;
};

} // namespace orv::PropertyEditor
