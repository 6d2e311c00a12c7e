#include "orv/table/VariantItems.h"

namespace orv {

namespace {

/// Headers are texts nearly always, and are compared for every look-up by name: no copy of the text is made.
bool readsAs(const QVariant &item, const QString &name)
{
    if (item.typeId() == QMetaType::QString)
        return *static_cast<const QString *>(item.constData()) == name;
    return item.toString() == name;
}

} // namespace

qsizetype VariantItems::indexOf(const QString &name) const
{
    for (qsizetype i = 0; i < m_items.size(); ++i) {
        if (readsAs(m_items.at(i), name))
            return i;
    }
    return -1;
}

qsizetype VariantItems::lastIndexOf(const QString &name) const
{
    for (qsizetype i = m_items.size() - 1; i >= 0; --i) {
        if (readsAs(m_items.at(i), name))
            return i;
    }
    return -1;
}

QStringList VariantItems::toStringList() const
{
    QStringList texts;
    texts.reserve(m_items.size());
    for (const QVariant &item : m_items)
        texts.append(item.toString());
    return texts;
}

} // namespace orv
