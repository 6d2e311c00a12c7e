#pragma once

#include "KProperty.h"
#include "KPropertyFactory.h"
#include "KPropertyListData.h"

#include <QHash>
#include <QMap>

struct KPropertySetEntry;

/// A name in lower case, under which sets find a property, hashed once for all of them.
struct KPropertyKey
{
    KPropertyKey() = default;
    explicit KPropertyKey(const QByteArray &name)
        : text(name.toLower())
        , hash(qHash(text, QHashSeed::globalSeed()))
    {}

    bool operator==(const KPropertyKey &other) const { return hash == other.hash && text == other.text; }

    QByteArray text;
    size_t hash = 0;
};

inline size_t qHash(const KPropertyKey &key, size_t seed = 0)
{
    return key.hash ^ seed;
}

class KProperty::Private
{
public:
    /// Tells whether the property outlived the signals that went out meanwhile: those who hear of a change
    /// may clear the set.
    class Watch
    {
    public:
        explicit Watch(Private *watched)
            : m_watched(watched)
            , m_outer(watched->watch)
        {
            watched->watch = this;
        }
        ~Watch()
        {
            if (m_watched) {
                m_watched->watch = m_outer;
            }
        }
        Q_DISABLE_COPY_MOVE(Watch)

        [[nodiscard]] bool isAlive() const { return m_watched; }

    private:
        Private *m_watched;
        Watch *const m_outer;
        friend Private;
    };

    Private() = default;
    ~Private()
    {
        for (Watch *each = watch; each; each = each->m_outer) {
            each->m_watched = nullptr;
        }
    }
    Q_DISABLE_COPY_MOVE(Private)

    QByteArray name;
    KPropertyKey key;
    QString caption;
    QString captionForDisplaying;
    QString description;
    QString iconName;
    QVariant value;
    QVariant oldValue;
    QMap<QByteArray, QVariant> options;
    std::unique_ptr<KPropertyListData> listData;
    std::unique_ptr<KComposedPropertyInterface> composed;
    /// Made with the first child, since children() tells "none yet" from "none left".
    std::unique_ptr<QList<KProperty *>> children;
    KProperty *parent = nullptr;
    /// The set that hears of changes: the one that the property was added to last.
    KPropertySet *set = nullptr;
    /// The place there.
    KPropertySetEntry *entry = nullptr;
    Watch *watch = nullptr;
    int type = KProperty::Auto;
    KProperty::ValueSyncPolicy syncPolicy = KProperty::ValueSyncPolicy::Editor;
    bool modified = false;
    bool readOnly = false;
    bool visible = true;
    bool storable = true;

    void setName(const QByteArray &given);
    void addChild(KProperty *self, KProperty *child);
    void deleteChildren();
    /// Rows of children must go before the children do.
    void announceEndOf(KProperty *child) const;
    void createComposed(KProperty *self);
};
