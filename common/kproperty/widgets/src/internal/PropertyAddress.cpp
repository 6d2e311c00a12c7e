#include "PropertyAddress.h"

#include "KProperty.h"
#include "KPropertySet.h"

namespace Internal {

PropertyAddress::PropertyAddress(KPropertySet *set, const KProperty &property)
    : m_set(set)
{
    for (const KProperty *each = &property; each; each = each->parent()) {
        m_names.prepend(each->name());
    }
}

KProperty *PropertyAddress::find() const
{
    if (!m_set || m_names.isEmpty() || !m_set->contains(m_names.constFirst())) {
        return nullptr;
    }
    KProperty *property = &m_set->property(m_names.constFirst());
    for (qsizetype i = 1; property && i < m_names.size(); ++i) {
        property = property->child(m_names.at(i));
    }
    return property;
}

KProperty *PropertyAddress::findEditable() const
{
    KProperty *const property = find();
    if (!property || m_set->isReadOnly()) {
        return nullptr;
    }
    for (const KProperty *each = property; each; each = each->parent()) {
        if (each->isReadOnly()) {
            return nullptr;
        }
    }
    return property;
}

} // namespace Internal
