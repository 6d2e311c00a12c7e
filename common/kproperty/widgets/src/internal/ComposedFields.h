#pragma once

#include "KPropertyFactory.h"

#include <QCoreApplication>

#include <cstring>

namespace Internal {

constexpr const char *kX = QT_TRANSLATE_NOOP("KPropertyComposed", "X");
constexpr const char *kY = QT_TRANSLATE_NOOP("KPropertyComposed", "Y");
constexpr const char *kXDescription = QT_TRANSLATE_NOOP("KPropertyComposed", "X Coordinate");
constexpr const char *kYDescription = QT_TRANSLATE_NOOP("KPropertyComposed", "Y Coordinate");
constexpr const char *kWidth = QT_TRANSLATE_NOOP("KPropertyComposed", "Width");
constexpr const char *kHeight = QT_TRANSLATE_NOOP("KPropertyComposed", "Height");

/// One part of a composed value: its child property, and how it is read from and written to the whole.
template<typename Value>
struct ComposedField
{
    const char *name;
    const char *caption;
    const char *description;
    int type;
    QVariant (*read)(const Value &value);
    void (*write)(const QVariant &part, Value *value);
};

template<typename Value, std::size_t Count>
void createChildren(const ComposedField<Value> (&fields)[Count], KProperty *parent)
{
    for (const ComposedField<Value> &field : fields) {
        // Owned by the parent.
        new KProperty(field.name, QVariant(), QCoreApplication::translate("KPropertyComposed", field.caption),
                      QCoreApplication::translate("KPropertyComposed", field.description), field.type,
                      parent);
    }
}

template<typename Value, std::size_t Count>
void writeChildren(const ComposedField<Value> (&fields)[Count], KProperty *property, const QVariant &value,
                   KProperty::ValueOptions options)
{
    const Value whole = value.value<Value>();
    for (const ComposedField<Value> &field : fields) {
        if (KProperty *const child = property->child(field.name)) {
            child->setValue(field.read(whole), options);
        }
    }
}

template<typename Value, std::size_t Count>
void writeParent(const ComposedField<Value> (&fields)[Count], KProperty *child, const QVariant &value,
                 KProperty::ValueOptions options)
{
    KProperty *const parent = child->parent();
    Value whole = parent->value().value<Value>();
    for (const ComposedField<Value> &field : fields) {
        if (child->name() == field.name) {
            field.write(value, &whole);
        }
    }
    parent->setValue(QVariant::fromValue(whole), options);
}

/// A part within the text of the whole, in as many digits as it has.
template<typename Number>
QString partText(Number number, const QLocale &locale)
{
    if (locale.language() == QLocale::C) {
        return QString::number(number);
    }
    QLocale plain = locale;
    plain.setNumberOptions(plain.numberOptions() | QLocale::OmitGroupSeparator);
    return plain.toString(number);
}

} // namespace Internal
