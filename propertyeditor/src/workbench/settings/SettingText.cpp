#include "SettingText.h"

#include "SettingReader.h"

#include <KProperty.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/table_model/NumberText.h>

#include <QCoreApplication>
#include <QJsonObject>

namespace orv {

namespace {

struct SettingTextTr
{
    Q_DECLARE_TR_FUNCTIONS(SettingText)
};

bool holdsNumber(const KProperty &property)
{
    if (property.type() == KProperty::Int || property.type() == KProperty::Double)
        return true;
    return SettingReader::stored(property)
        .toObject()
        .value(PropertyEditorStringConstants::VALUE_KEY)
        .isDouble();
}

/// A number without or with the unit behind it, with a point.
QString withPoint(const QString &typed, const QLocale &locale)
{
    const QString text = typed.trimmed();
    qsizetype end = 0;
    while (end < text.size() &&
           (text.at(end).isDigit() || QStringLiteral("+-.,eE\u2212").contains(text.at(end))))
        ++end;
    const auto number = NumberText::canonical(QStringView(text).left(end), NumberText::signOf(locale));
    return number ? *number + text.mid(end) : text;
}

/// The switch that people see as \a text.
std::optional<bool> seenSwitch(const KProperty &property, const QString &text)
{
    for (const bool value : {true, false}) {
        KProperty other(property);
        other.setValue(value);
        if (SettingReader::valueText(other).compare(text.trimmed(), Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

SettingText::Value seenText(const KProperty &property, const PropertyText::ValueText &exact,
                            const QLocale &locale)
{
    if (property.type() == KProperty::Bool || property.type() == KProperty::ValueFromList)
        return {SettingReader::valueText(property), {}};
    if (holdsNumber(property) && NumberText::isCanonical(exact.text))
        return {NumberText::shown(exact.text, NumberText::signOf(locale)), exact.unit};
    return {exact.text, exact.unit};
}

} // namespace

SettingText::Value SettingText::of(const KProperty &property, const QLocale &locale)
{
    const auto exact = PropertyText::fromValue(SettingReader::idOf(property), property);
    if (!exact)
        return {SettingReader::valueText(property), {}};
    const Value seen = seenText(property, *exact, locale);
    // Two entries of a list may look the same.
    const Result<QVariant> back = read(property, seen, PropertyEditorContent::ContentMode(0), locale);
    KProperty other(property);
    if (back.hasError())
        return seen.text.isEmpty() ? Value{exact->text, exact->unit} : seen;
    other.setValue(*back);
    return SettingReader::stored(other) == SettingReader::stored(property) ? seen
                                                                           : Value{exact->text, exact->unit};
}

Result<QVariant> SettingText::read(const KProperty &property, const Value &typed,
                                   PropertyEditorContent::ContentMode mode, const QLocale &locale)
{
    if (property.type() == KProperty::Bool) {
        if (const std::optional<bool> seen = seenSwitch(property, typed.text))
            return QVariant(*seen);
    }
    const bool hasNumber = holdsNumber(property);
    if (!hasNumber && !typed.unit.isEmpty()) {
        return Error(ErrorCode::InvalidContent,
                     SettingTextTr::tr("The setting has no unit, and \"%1\" stands behind its value.")
                         .arg(typed.unit.left(100)));
    }
    QString text = hasNumber ? withPoint(typed.text, locale) : typed.text;
    if (!typed.unit.isEmpty())
        text += u' ' + typed.unit;
    return PropertyText::toValue(SettingReader::idOf(property), text, property, mode);
}

} // namespace orv
