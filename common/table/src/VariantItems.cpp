#include <orv/table/VariantItems.h>

namespace orv {

qsizetype VariantItems::indexOf(const QString &name) const
{
    for (qsizetype i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i).toString() == name)
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
