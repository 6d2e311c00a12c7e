#include "SettingEdit.h"

#include "SettingReader.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/PropertySetCreator.h>

#include <QCoreApplication>

namespace orv {

namespace {

struct SettingEditTr
{
    Q_DECLARE_TR_FUNCTIONS(SettingEdit)
};

/// What files have for a value: two references to one file are no equal values, but the same there.
QJsonValue storedWith(const KProperty &property, const QVariant &value)
{
    KProperty other(property);
    other.setValue(value);
    return SettingReader::stored(other);
}

} // namespace

QString SettingEdit::refusal(const KPropertySet *set, const QByteArray &name)
{
    if (!set || !set->contains(name))
        return SettingEditTr::tr("The column doesn't have this setting.");
    if (set->isReadOnly())
        return SettingEditTr::tr("The settings of this column can only be read.");
    return set->property(name).isReadOnly() ? SettingEditTr::tr("This setting can only be read.") : QString();
}

std::optional<QVariant> SettingEdit::valueOf(const KPropertySet &set, const QByteArray &name,
                                             const QJsonValue &stored)
{
    KProperty other(set.property(name));
    if (!PropertySetCreator::setValueFromJson(SettingReader::idOf(other), stored, &other))
        return {};
    // A text would read an object or a list as empty.
    const bool isNested = stored.isObject() || stored.isArray();
    if (isNested && SettingReader::stored(other).type() != stored.type())
        return {};
    return other.value();
}

bool SettingEdit::give(KProperty *property, const QVariant &value)
{
    if (!property->isModified() || property->composedProperty())
        return property->setValue(value);
    if (storedWith(*property, property->oldValue()) != storedWith(*property, value))
        return property->setValue(value);
    property->resetValue();
    return true;
}

bool SettingEdit::changes(const KPropertySet *set, const QByteArray &name, const QVariant &value)
{
    if (!refusal(set, name).isEmpty())
        return false;
    const KProperty &property = set->property(name);
    return storedWith(property, value) != SettingReader::stored(property);
}

SettingEdit::Outcome SettingEdit::setValue(KPropertySet *set, const QByteArray &name, const QVariant &value)
{
    if (!refusal(set, name).isEmpty())
        return Outcome::Refused;
    if (!changes(set, name, value))
        return Outcome::HadIt;
    return give(&set->property(name), value) ? Outcome::Changed : Outcome::HadIt;
}

SettingEdit::Outcome SettingEdit::setStored(KPropertySet *set, const QByteArray &name,
                                            const QJsonValue &stored)
{
    if (!refusal(set, name).isEmpty())
        return Outcome::Refused;
    const std::optional<QVariant> value = valueOf(*set, name, stored);
    return value ? setValue(set, name, *value) : Outcome::Refused;
}

} // namespace orv
