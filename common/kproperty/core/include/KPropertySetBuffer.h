#pragma once

#include "KPropertySet.h"

/*! Edits several sets at once: it holds copies of the properties that all of them have.

    A change or reset of a property in the buffer is passed on to every set that it was made from and that
    still lives. The property there counts as unmodified afterwards. */
class KPROPERTYCORE_EXPORT KPropertySetBuffer : public KPropertySet
{
    Q_OBJECT

public:
    KPropertySetBuffer();
    explicit KPropertySetBuffer(const KPropertySet &set);
    ~KPropertySetBuffer() override;

    /// Drops what \a set lacks or has with another type. An empty, unused buffer becomes a copy of \a set.
    virtual void intersect(const KPropertySet &set);

protected Q_SLOTS:
    void intersectedChanged(KPropertySet &set, KProperty &prop);
    void intersectedReset(KPropertySet &set, KProperty &prop);

private:
    void init(const KPropertySet &set);

    Q_DISABLE_COPY(KPropertySetBuffer)
    class Private;
    const std::unique_ptr<Private> d;
};
