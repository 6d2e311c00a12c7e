#pragma once

#include <QByteArrayList>
#include <QPointer>

class KProperty;
class KPropertySet;

namespace Internal {

/// Finds a property again after rows, or the set's contents, were made anew: the set and the names that lead
/// to the property, those of its ancestors first.
class PropertyAddress
{
public:
    PropertyAddress() = default;
    PropertyAddress(KPropertySet *set, const KProperty &property);

    /// Null when the set is gone or has no such property any more.
    [[nodiscard]] KProperty *find() const;
    /// The same, but null also for a property that can't be edited (any more).
    [[nodiscard]] KProperty *findEditable() const;

private:
    QPointer<KPropertySet> m_set;
    QByteArrayList m_names;
};

} // namespace Internal
