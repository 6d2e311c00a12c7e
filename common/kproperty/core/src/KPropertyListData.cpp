#include "KPropertyListData.h"

class KPropertyListData::Private
{
public:
    QVariantList keys;
    QVariantList names;
};

namespace {

QVariantList toVariants(const QStringList &texts)
{
    return {texts.cbegin(), texts.cend()};
}

QStringList toTexts(const QVariantList &values)
{
    QStringList texts;
    texts.reserve(values.size());
    for (const QVariant &value : values) {
        texts.append(value.toString());
    }
    return texts;
}

} // namespace

KPropertyListData::KPropertyListData()
    : d(std::make_unique<Private>())
{}

KPropertyListData::KPropertyListData(const KPropertyListData &other)
    : d(std::make_unique<Private>(*other.d))
{}

KPropertyListData::KPropertyListData(const QStringList &keys, const QStringList &names)
    : d(std::make_unique<Private>(Private{toVariants(keys), toVariants(names)}))
{}

KPropertyListData::KPropertyListData(const QVariantList &keys, const QVariantList &names)
    : d(std::make_unique<Private>(Private{keys, names}))
{}

KPropertyListData::KPropertyListData(const QVariantList &keys, const QStringList &names)
    : d(std::make_unique<Private>(Private{keys, toVariants(names)}))
{}

KPropertyListData::KPropertyListData(const QList<QPair<int, QString>> &items)
    : KPropertyListData()
{
    for (const auto &[key, name] : items) {
        d->keys.append(key);
        d->names.append(name);
    }
}

KPropertyListData::KPropertyListData(const QList<QPair<QString, QString>> &items)
    : KPropertyListData()
{
    for (const auto &[key, name] : items) {
        d->keys.append(key);
        d->names.append(name);
    }
}

KPropertyListData::~KPropertyListData() = default;

KPropertyListData &KPropertyListData::operator=(const KPropertyListData &other)
{
    *d = *other.d;
    return *this;
}

bool KPropertyListData::operator==(const KPropertyListData &other) const
{
    return d->keys == other.d->keys && d->names == other.d->names;
}

QVariantList KPropertyListData::keys() const
{
    return d->keys;
}

QStringList KPropertyListData::keysAsStringList() const
{
    return toTexts(d->keys);
}

void KPropertyListData::setKeys(const QVariantList &keys)
{
    d->keys = keys;
}

void KPropertyListData::setKeysAsStringList(const QStringList &keys)
{
    d->keys = toVariants(keys);
}

QVariantList KPropertyListData::names() const
{
    return d->names;
}

QStringList KPropertyListData::namesAsStringList() const
{
    return toTexts(d->names);
}

void KPropertyListData::setNames(const QVariantList &names)
{
    d->names = names;
}

void KPropertyListData::setNamesAsStringList(const QStringList &names)
{
    d->names = toVariants(names);
}
