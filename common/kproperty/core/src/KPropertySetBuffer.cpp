#include "KPropertySetBuffer.h"

#include <QPointer>

class KPropertySetBuffer::Private
{
public:
    /// Looked up by name at each change: the properties of a source may go before the buffer does.
    QList<QPointer<KPropertySet>> sources;
};

KPropertySetBuffer::KPropertySetBuffer()
    : d(std::make_unique<Private>())
{
    connect(this, &KPropertySet::propertyChanged, this, &KPropertySetBuffer::intersectedChanged);
    connect(this, &KPropertySet::propertyReset, this, &KPropertySetBuffer::intersectedReset);
}

KPropertySetBuffer::KPropertySetBuffer(const KPropertySet &set)
    : KPropertySetBuffer()
{
    init(set);
}

KPropertySetBuffer::~KPropertySetBuffer() = default;

void KPropertySetBuffer::init(const KPropertySet &set)
{
    KPropertySet::operator=(set);
    // The sources are given as constant since the buffer changes them only when the user changes the buffer.
    d->sources = {const_cast<KPropertySet *>(&set)};
}

void KPropertySetBuffer::intersect(const KPropertySet &set)
{
    if (d->sources.isEmpty()) {
        init(set);
        return;
    }
    for (KPropertySetIterator it(*this); it.current(); ++it) {
        const KProperty &other = set.property(it.current()->name());
        if (other.isNull() || other.type() != it.current()->type()) {
            removeProperty(it.current());
        }
    }
    d->sources.append(const_cast<KPropertySet *>(&set));
}

void KPropertySetBuffer::intersectedChanged(KPropertySet &set, KProperty &prop)
{
    Q_UNUSED(set)
    for (const QPointer<KPropertySet> &source : std::as_const(d->sources)) {
        if (source && source->contains(prop.name())) {
            source->property(prop.name()).setValue(prop.value(), KProperty::ValueOption::IgnoreOld);
        }
    }
}

void KPropertySetBuffer::intersectedReset(KPropertySet &set, KProperty &prop)
{
    intersectedChanged(set, prop);
}
