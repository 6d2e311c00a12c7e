#include "KPropertySet.h"
#include "KPropertySet_p.h"

#include <algorithm>
#include <utility>
#include <vector>

KPropertySelector::KPropertySelector() = default;
KPropertySelector::~KPropertySelector() = default;

class KPropertySetIterator::Private
{
public:
    explicit Private(const KPropertySetPrivate *set, const KPropertySelector *wanted)
        : source(set)
        , selector(wanted ? wanted->clone() : nullptr)
    {
        restart();
    }

    Private(const Private &other)
        : source(other.source)
        , selector(other.selector ? other.selector->clone() : nullptr)
        , properties(other.properties)
        , index(other.index)
        , order(other.order)
    {}

    Private &operator=(const Private &) = delete;

    void restart()
    {
        properties.clear();
        properties.reserve(static_cast<qsizetype>(source->entries.size()));
        for (const KPropertySetEntry &entry : source->entries) {
            properties.append(entry.property);
        }
        if (order != Order::Insertion) {
            sort();
        }
        index = 0;
        skipUnselected();
    }

    void skipUnselected()
    {
        while (selector && index < properties.size() && !(*selector)(*properties.at(index))) {
            ++index;
        }
    }

    KProperty *current() const { return index < properties.size() ? properties.at(index) : nullptr; }

    const KPropertySetPrivate *source;
    std::unique_ptr<KPropertySelector> selector;
    QList<KProperty *> properties;
    qsizetype index = 0;
    Order order = Order::Insertion;

private:
    /// Folded once per property rather than once per comparison.
    void sort()
    {
        std::vector<std::pair<QString, KProperty *>> keyed;
        keyed.reserve(static_cast<std::size_t>(properties.size()));
        for (KProperty *property : std::as_const(properties)) {
            const QString text = order == Order::Alphabetical ? property->captionOrName()
                                                              : QString::fromUtf8(property->name());
            keyed.emplace_back(text.toLower(), property);
        }
        std::stable_sort(keyed.begin(), keyed.end(),
                         [](const auto &first, const auto &second) { return first.first < second.first; });
        std::transform(keyed.cbegin(), keyed.cend(), properties.begin(),
                       [](const auto &item) { return item.second; });
    }
};

KPropertySetIterator::KPropertySetIterator(const KPropertySet &set)
    : d(std::make_unique<Private>(set.d.get(), nullptr))
{}

KPropertySetIterator::KPropertySetIterator(const KPropertySet &set, const KPropertySelector &selector)
    : d(std::make_unique<Private>(set.d.get(), &selector))
{}

KPropertySetIterator::KPropertySetIterator(const KPropertySetIterator &set)
    : d(std::make_unique<Private>(*set.d))
{}

KPropertySetIterator::~KPropertySetIterator() = default;

KPropertySetIterator &KPropertySetIterator::operator=(const KPropertySetIterator &other)
{
    if (&other != this) {
        d->source = other.d->source;
        d->selector.reset(other.d->selector ? other.d->selector->clone() : nullptr);
        d->properties = other.d->properties;
        d->index = other.d->index;
        d->order = other.d->order;
    }
    return *this;
}

bool KPropertySetIterator::operator==(const KPropertySetIterator &other) const
{
    return d->source == other.d->source && d->order == other.d->order && current() == other.current();
}

void KPropertySetIterator::setOrder(Order order)
{
    d->order = order;
    d->restart();
}

KPropertySetIterator::Order KPropertySetIterator::order() const
{
    return d->order;
}

void KPropertySetIterator::operator++()
{
    if (d->index < d->properties.size()) {
        ++d->index;
        d->skipUnselected();
    }
}

KProperty *KPropertySetIterator::current() const
{
    return d->current();
}
