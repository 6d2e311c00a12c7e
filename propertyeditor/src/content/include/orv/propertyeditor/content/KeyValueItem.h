#pragma once

#include <KProperty>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItem.h>

#include <QByteArray>
#include <QList>
#include <QMultiMap>
#include <QVariant>

#include <memory>
#include <optional>

class KPropertySet;

namespace orv::PropertyEditor {

/// A cell of settings: the typed properties of a search, analysis or report step. Keys are the internal names
/// of the catalogue. A new item has no properties until a load has run. Mutators answer whether they did it
/// and log why not; they refuse values that a file can't hold.
class ORV_WORKFLOW_EXPORT KeyValueItem : public BaseItem
{
    Q_OBJECT
    Q_PROPERTY(QStringList keys READ keys)
    Q_PROPERTY(int size READ count NOTIFY countChanged)

public:
    /// Whether cells of that type are cells of settings.
    [[nodiscard]] static bool holds(BaseItemType type);

    explicit KeyValueItem(BaseItemType type);
    ~KeyValueItem() override;

    [[nodiscard]] QJsonObject toJson(PropertyConversionFlag flag) const override;
    /// After a failure the item has no properties and is of no use.
    Error assignFromJson(const QJsonObject &json, ValidationOptions options) override;
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    void setBaseUrl(const QUrl &url) override;
    [[nodiscard]] Error checkWritable() const override;
    [[nodiscard]] Result<std::unique_ptr<BaseItem>> copied(PropertyConversionFlag flag) const override;
    void clear() override;

    [[nodiscard]] int count() const;
    /// In the order of the file.
    [[nodiscard]] QStringList keys() const;
    Q_INVOKABLE bool contains(const QString &key) const;
    [[nodiscard]] bool contains(PropertyId id) const;
    /// Null for a key that isn't there.
    [[nodiscard]] QVariant value(const QString &key) const;
    [[nodiscard]] QVariant value(PropertyId id) const;
    /// The KProperty type; 0 for a key that isn't there.
    [[nodiscard]] int type(const QString &key) const;
    using BaseItem::type;

    /// Adds a property right behind \a keyBefore, which must stand in \a group, or at the end of the group.
    /// \a value is converted to \a type if that is a built-in one. An empty group is that of general
    /// settings. False without a log line for a key that is there; an empty key is refused, too.
    Q_INVOKABLE bool insert(const QString &key, const QString &group, const QVariant &value, int type,
                            const QString &keyBefore = {});
    Q_INVOKABLE bool insert(const QString &key, const QVariant &value, int type);
    /// Makes the property another one, without options, caption and a signal. It keeps its place, and the set
    /// goes on finding it under \a key. False with a warning when another property is called \a newKey.
    bool replace(const QString &key, const QString &newKey, const QVariant &value, int type);
    Q_INVOKABLE bool remove(const QString &key);
    /// Stops at the first key that isn't there; what was removed stays removed.
    bool remove(const QStringList &keys);
    /// A plain property takes on the type of what it is given. A property with a list takes one of its texts,
    /// a position or number, and any text if the list is editable.
    Q_INVOKABLE bool setValue(const QString &key, const QVariant &value);
    bool setValue(PropertyId id, const QVariant &value);

    [[nodiscard]] QVariant option(const QString &key, const QByteArray &name) const;
    bool setOption(const QString &key, const QByteArray &name, const QVariant &value);

    /// The name of the property's group, its caption in lower case.
    [[nodiscard]] QString group(const QString &key) const;
    [[nodiscard]] QString group(PropertyId id) const;
    [[nodiscard]] QString groupCaption(const QString &key) const;
    [[nodiscard]] QString groupCaption(PropertyId id) const;
    [[nodiscard]] QList<QByteArray> groupNames() const;
    [[nodiscard]] bool hasGroup(const QString &name) const;
    [[nodiscard]] QList<QByteArray> properties(const QByteArray &groupName) const;
    /// Moves the property to the end of \a group: it is removed and added anew. False with a warning, too,
    /// when who hears of the removal puts the key back or gives the cell another content; that stands then.
    Q_INVOKABLE bool setGroup(const QString &key, const QString &group);
    bool setGroupCaption(const QString &groupName, const QString &caption);
    bool removeGroup(const QString &name);
    /// Puts the group with the caption \a group right behind the group named \a afterGroup; to the front if
    /// there is no such group.
    void moveGroup(const QString &group, const QString &afterGroup);

    /// Values by property; those of keys that are no property stand under NoProperty with a null value.
    [[nodiscard]] QMultiMap<PropertyId, QVariant> propertiesMap() const;

    /// Types that callers from scripts give to insert.
    Q_INVOKABLE int stringType() const { return QMetaType::QString; }
    Q_INVOKABLE int intType() const { return QMetaType::Int; }
    Q_INVOKABLE int doubleType() const { return QMetaType::Double; }

    /// Null until a load has run. Owned by the item.
    [[nodiscard]] const KPropertySet *propertySet() const { return editedSet(); }

Q_SIGNALS:
    void inserted(const QString &key, const QVariant &value);
    void inserted(const QString &key, const QString &group, const QVariant &value);
    void removed(const QString &key);
    void valueChanged(const QString &key, const QVariant &newValue, const QVariant &oldValue);
    void groupChanged(const QString &key, const QString &newGroup, const QString &oldGroup);
    void countChanged(int count);

private:
    [[nodiscard]] bool hasGlycanDatabase() const;
    [[nodiscard]] QJsonObject toJsonWithAbsoluteGlycans() const;
    [[nodiscard]] bool has(const QByteArray &name) const;
    /// The property that is found under \a name or is called so.
    [[nodiscard]] const KProperty *holderOf(const QByteArray &name) const;
    [[nodiscard]] bool warnUnless(bool exists, const QString &key) const;
    bool setListValue(const QString &key, KProperty *property, const QVariant &value);
    bool setPlainValue(KProperty *property, const QVariant &value);
    /// False, with a warning, for a value that a file can't hold.
    [[nodiscard]] static bool isStorable(const KProperty &property);

    /// To look at: the properties, read now if nobody asked before; null until a load has run.
    [[nodiscard]] const KPropertySet *set() const;
    /// To change or to hand out: what is written comes from these properties from now on.
    [[nodiscard]] KPropertySet *editedSet() const;
    [[nodiscard]] static std::unique_ptr<KPropertySet> read(const QJsonObject &json);
    /// Keeps the cell as it stands, which takes a tenth of the memory of its properties, until somebody asks.
    void keepUnread(const QJsonObject &json, const QString &stamp);
    [[nodiscard]] bool nothingWasDropped(const QJsonObject &json) const;
    /// False if there is no such property, without reading those that nobody asked for.
    [[nodiscard]] bool mayHold(const QByteArray &name) const;
    void makeGlycansAbsolute(KProperty *property) const;

    /// Whether questions are answered from the source.
    [[nodiscard]] bool isUnread() const;
    /// The property that is called \a key, if questions about it are answered from the source.
    [[nodiscard]] std::optional<PropertyId> unreadId(const QString &key) const;
    [[nodiscard]] QStringList unreadKeys() const;
    [[nodiscard]] QVariant unreadValue(PropertyId id) const;
    [[nodiscard]] QJsonObject sourceWithAbsolutePaths() const;
    void applyBaseUrl() const;

    mutable std::unique_ptr<KPropertySet> m_set;
    /// What m_set is read from.
    struct Source
    {
        QJsonObject cell; ///< with the stamp of its load
        /// Whether a save writes the cell as it stands; it has no properties but these then, each once.
        bool isStoredForm;
        PropertyIdSet ids;
        qsizetype lastRead; ///< position of the entry that was asked for last; -1 before
    };
    /// Absent once the properties may be others.
    mutable std::optional<Source> m_source;
    /// Whether a property may have another name than that under which the set finds it.
    bool m_hasRenamed = false;
    QUrl m_baseUrl;
};

} // namespace orv::PropertyEditor
