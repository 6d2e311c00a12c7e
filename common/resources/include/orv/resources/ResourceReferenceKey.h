#pragma once

#include <orv/resources/ResourceReferenceUtils.h>

#include <QHash>

namespace orv {

/// A reference as the key of a hash: equal when it names the same resource, whichever object holds it. A
/// reference turns into its key by itself, so that hash.value(reference) reads as it is meant.
class ResourceReferenceKey
{
public:
    ResourceReferenceKey() = default;
    ResourceReferenceKey(ResourceReferenceSPtr reference) // implicit: `hash.value(reference)`
        : m_reference(std::move(reference))
    {}

    [[nodiscard]] const ResourceReferenceSPtr &reference() const { return m_reference; }

    friend bool operator==(const ResourceReferenceKey &a, const ResourceReferenceKey &b)
    {
        return ResourceReferenceUtils::compare(a.m_reference, b.m_reference);
    }
    friend size_t qHash(const ResourceReferenceKey &key, size_t seed = 0)
    {
        return key.m_reference ? qHash(key.m_reference->keyHash(), seed) : seed;
    }

private:
    ResourceReferenceSPtr m_reference;
};

} // namespace orv
