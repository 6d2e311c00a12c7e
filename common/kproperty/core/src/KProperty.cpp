#include "KProperty.h"

#include "KPropertySet.h"
#include "KPropertySet_p.h"
#include "KProperty_p.h"
#include "internal/Logging.h"
#include "internal/VariantUtils.h"

#include <algorithm>
#include <utility>

namespace {

/// Puts a composed property to silence while it writes its children, whatever road leads out.
class ChildChangesBlocker
{
public:
    explicit ChildChangesBlocker(KComposedPropertyInterface *composed)
        : m_composed(composed)
        , m_enabled(composed->childValueChangedEnabled())
    {
        m_composed->setChildValueChangedEnabled(false);
    }
    ~ChildChangesBlocker() { m_composed->setChildValueChangedEnabled(m_enabled); }
    Q_DISABLE_COPY_MOVE(ChildChangesBlocker)

private:
    KComposedPropertyInterface *m_composed;
    bool m_enabled;
};

void writeChildren(KProperty *property, const QVariant &value, KProperty::ValueOptions options)
{
    KComposedPropertyInterface *const composed = property->composedProperty();
    const ChildChangesBlocker blocker(composed);
    composed->setValue(property, value, options | KProperty::ValueOption::IgnoreComposedProperty);
}

void warnOfNull(const QVariant &value)
{
    if (value.isValid()) {
        qCWarning(kpropertyLog) << "A property without a name takes no value:" << value;
    }
}

/// Storing what no editor of the property could show is legal, yet mostly a mistake of the caller.
bool typesFit(const QVariant &stored, const QVariant &value)
{
    return !stored.isValid() || !value.isValid() || stored.metaType() == value.metaType() ||
           value.canConvert(stored.metaType()) || stored.canConvert(value.metaType());
}

} // namespace

void KProperty::Private::setName(const QByteArray &given)
{
    name = given;
    key = KPropertyKey(given);
}

void KProperty::Private::addChild(KProperty *self, KProperty *child)
{
    if (!children) {
        children = std::make_unique<QList<KProperty *>>();
    }
    children->append(child);
    child->d->parent = self;
}

void KProperty::Private::deleteChildren()
{
    const std::unique_ptr<QList<KProperty *>> doomed = std::move(children);
    if (!doomed) {
        return;
    }
    for (KProperty *child : std::as_const(*doomed)) {
        announceEndOf(child);
        child->d->parent = nullptr;
        delete child;
    }
}

void KProperty::Private::announceEndOf(KProperty *child) const
{
    const Private *root = this;
    while (root->parent) {
        root = root->parent->d.get();
    }
    if (root->set) {
        KPropertySetPrivate::emitAboutToDeleteChild(root->set, child);
    }
}

void KProperty::Private::createComposed(KProperty *self)
{
    composed.reset(KPropertyFactoryManager::self()->createComposedProperty(self));
}

KProperty::KProperty()
    : d(std::make_unique<Private>())
{}

KProperty::KProperty(const QByteArray &name, const QVariant &value, const QString &caption,
                     const QString &description, int type, KProperty *parent)
    : d(std::make_unique<Private>())
{
    d->setName(name);
    d->description = description;
    setCaption(caption);
    d->type = type == Auto ? value.typeId() : type;
    if (parent) {
        parent->d->addChild(parent, this);
    }
    d->createComposed(this);
    if (isNull()) {
        warnOfNull(value);
        return;
    }
    if (d->composed) {
        writeChildren(this, value, ValueOption::IgnoreOld);
    }
    d->value = value;
}

KProperty::KProperty(const QByteArray &name, KPropertyListData *listData, const QVariant &value,
                     const QString &caption, const QString &description, int type, KProperty *parent)
    : KProperty(name, value, caption, description, type, parent)
{
    d->listData.reset(listData);
}

KProperty::KProperty(const KProperty &prop)
    : d(std::make_unique<Private>())
{
    *this = prop;
}

KProperty::~KProperty()
{
    if (d->set) {
        KPropertySetPrivate::forget(d->set, this);
    }
    if (d->parent && d->parent->d->children) {
        d->parent->d->announceEndOf(this);
        d->parent->d->children->removeOne(this);
    }
    d->composed.reset();
    d->deleteChildren();
}

QByteArray KProperty::name() const
{
    return d->name;
}

void KProperty::setName(const QByteArray &name)
{
    d->setName(name);
}

QString KProperty::caption() const
{
    return d->caption;
}

QString KProperty::captionForDisplaying() const
{
    return d->captionForDisplaying;
}

void KProperty::setCaption(const QString &caption)
{
    d->captionForDisplaying = caption;
    d->caption = caption;
    d->caption.replace(QLatin1Char('\n'), QLatin1Char(' '));
    d->caption = std::move(d->caption).trimmed();
}

QString KProperty::description() const
{
    return d->description;
}

void KProperty::setDescription(const QString &description)
{
    d->description = description;
}

int KProperty::type() const
{
    return d->type;
}

void KProperty::setType(int type)
{
    if (d->type == type) {
        return;
    }
    d->type = type;
    d->createComposed(this);
}

QVariant KProperty::value() const
{
    return d->value;
}

QVariant KProperty::oldValue() const
{
    return d->oldValue;
}

bool KProperty::valueChangeAllowed(const QVariant &value, ValueOptions options) const
{
    if (isNull()) {
        warnOfNull(value);
        return false;
    }
    if (holds(value, options)) {
        return false;
    }
    if (!typesFit(d->value, value)) {
        qCWarning(kpropertyLog) << "Property" << d->name << "holds" << d->value << "and is given" << value;
    }
    return true;
}

bool KProperty::setValue(const QVariant &value, ValueOptions options)
{
    if (!valueChangeAllowed(value, options)) {
        return false;
    }
    // The parent asks its own copy of this property for the other children and writes them back, this one
    // included; so it must hear of the new value before it is stored here.
    if (d->parent && d->parent->d->composed) {
        const Private::Watch watch(d.get());
        d->parent->d->composed->childValueChangedInternal(this, value,
                                                          options | ValueOption::IgnoreComposedProperty);
        if (!watch.isAlive()) {
            return true;
        }
    }
    if (options & ValueOption::IgnoreOld) {
        d->oldValue = QVariant();
        d->modified = false;
    } else if (!d->modified) {
        d->oldValue = d->value;
        d->modified = true;
    }
    if (d->composed) {
        writeChildren(this, value, options);
    }
    d->value = value;
    if (d->set) {
        KPropertySetPrivate::emitPropertyChanged(d->set, this);
    }
    return true;
}

bool KProperty::valueEqualsTo(const QVariant &value, ValueOptions valueOptions) const
{
    if (d->composed && !(valueOptions & ValueOption::IgnoreComposedProperty)) {
        return d->composed->valuesEqual(d->value, value);
    }
    return Internal::equalVariants(d->value, value);
}

bool KProperty::holds(const QVariant &value, ValueOptions options) const
{
    // A composed property knows values that Qt can't compare.
    return Internal::identicalVariants(d->value, value) ||
           (d->composed && !(options & ValueOption::IgnoreComposedProperty) &&
            d->value.metaType() == value.metaType() && d->composed->valuesEqual(d->value, value));
}

void KProperty::resetValue()
{
    if (!d->modified) {
        return;
    }
    d->modified = false;
    const QVariant oldValue = d->oldValue;
    const Private::Watch watch(d.get());
    setValue(oldValue, ValueOption::IgnoreOld);
    if (watch.isAlive() && d->set) {
        KPropertySetPrivate::emitPropertyReset(d->set, this);
    }
}

KPropertyListData *KProperty::listData() const
{
    return d->listData.get();
}

void KProperty::setListData(KPropertyListData *list)
{
    if (list != d->listData.get()) {
        d->listData.reset(list);
    }
}

void KProperty::setListData(const QStringList &keys, const QStringList &names)
{
    setListData(new KPropertyListData(keys, names));
}

void KProperty::setIconName(const QString &name)
{
    d->iconName = name;
}

QString KProperty::iconName() const
{
    return d->iconName;
}

const QList<KProperty *> *KProperty::children() const
{
    return d->children.get();
}

KProperty *KProperty::child(const QByteArray &name)
{
    if (!d->children) {
        return nullptr;
    }
    const auto it = std::find_if(d->children->cbegin(), d->children->cend(),
                                 [&name](const KProperty *child) { return child->name() == name; });
    return it == d->children->cend() ? nullptr : *it;
}

KProperty *KProperty::parent() const
{
    return d->parent;
}

KComposedPropertyInterface *KProperty::composedProperty() const
{
    return d->composed.get();
}

void KProperty::setComposedProperty(KComposedPropertyInterface *prop)
{
    if (prop != d->composed.get()) {
        d->composed.reset(prop);
    }
}

bool KProperty::isNull() const
{
    return d->name.isEmpty();
}

bool KProperty::isModified() const
{
    return d->modified ||
           (d->children && std::any_of(d->children->cbegin(), d->children->cend(),
                                       [](const KProperty *child) { return child->isModified(); }));
}

void KProperty::clearModifiedFlag()
{
    d->modified = false;
    if (d->children) {
        for (KProperty *child : std::as_const(*d->children)) {
            child->clearModifiedFlag();
        }
    }
}

bool KProperty::isReadOnly() const
{
    return d->readOnly;
}

void KProperty::setReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
}

bool KProperty::isVisible() const
{
    return d->visible;
}

void KProperty::setVisible(bool visible)
{
    d->visible = visible;
}

bool KProperty::isStorable() const
{
    return d->storable;
}

void KProperty::setStorable(bool storable)
{
    d->storable = storable;
}

KProperty::ValueSyncPolicy KProperty::valueSyncPolicy() const
{
    return d->syncPolicy;
}

void KProperty::setValueSyncPolicy(ValueSyncPolicy policy)
{
    d->syncPolicy = policy;
}

void KProperty::setOption(const char *name, const QVariant &val)
{
    if (Internal::isNullVariant(val)) {
        d->options.remove(name);
    } else {
        d->options.insert(name, val);
    }
}

QVariant KProperty::option(const char *name, const QVariant &defaultValue) const
{
    const QByteArray key = QByteArray::fromRawData(name, static_cast<qsizetype>(qstrlen(name)));
    for (const KProperty *property = this; property; property = property->parent()) {
        const auto it = property->d->options.constFind(key);
        if (it != property->d->options.cend()) {
            return *it;
        }
    }
    return defaultValue;
}

bool KProperty::hasOptions() const
{
    return !d->options.isEmpty() || (d->parent && d->parent->hasOptions());
}

KProperty &KProperty::operator=(const QVariant &val)
{
    setValue(val);
    return *this;
}

KProperty &KProperty::operator=(const KProperty &property)
{
    if (&property == this) {
        return *this;
    }
    const Private &other = *property.d;
    d->name = other.name;
    d->key = other.key;
    d->caption = other.caption;
    d->captionForDisplaying = other.captionForDisplaying;
    d->description = other.description;
    d->iconName = other.iconName;
    d->oldValue = other.oldValue;
    d->options = other.options;
    d->listData = other.listData ? std::make_unique<KPropertyListData>(*other.listData) : nullptr;
    d->type = other.type;
    d->syncPolicy = other.syncPolicy;
    d->modified = other.modified;
    d->readOnly = other.readOnly;
    d->visible = other.visible;
    d->storable = other.storable;
    copyValue(property);
    return *this;
}

void KProperty::copyValue(const KProperty &property)
{
    d->composed.reset();
    d->deleteChildren();
    if (property.d->composed) {
        d->createComposed(this);
        if (d->composed) {
            writeChildren(this, property.d->value, ValueOption::IgnoreComposedProperty);
        }
    } else if (property.d->children) {
        for (const KProperty *child : std::as_const(*property.d->children)) {
            d->addChild(this, new KProperty(*child));
        }
    }
    d->value = property.d->value;
}

bool KProperty::operator==(const KProperty &prop) const
{
    return (isNull() && prop.isNull()) || (d->name == prop.d->name && valueEqualsTo(prop.d->value));
}

bool KProperty::operator!=(const KProperty &prop) const
{
    return !operator==(prop);
}

QDebug operator<<(QDebug dbg, const KProperty &p)
{
    const QDebugStateSaver saver(dbg);
    dbg.nospace() << "KProperty(NAME=" << p.name() << " TYPE=" << p.type() << " VALUE=";
    if (p.value().isValid()) {
        dbg.nospace() << p.value();
    } else {
        dbg.nospace() << "<INVALID>";
    }
    dbg.nospace() << (p.isReadOnly() ? " READONLY" : "") << (p.isVisible() ? "" : " HIDDEN") << ')';
    return dbg;
}
