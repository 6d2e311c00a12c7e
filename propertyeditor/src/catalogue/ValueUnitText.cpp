#include "ValueUnitText.h"

#include <KProperty>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace orv {

namespace {

constexpr QLatin1String kUnit("unit");
constexpr QLatin1String kDa("Da");
constexpr QLatin1String kPartsPerMillion("ppm");

struct UnitRow
{
    PropertyId id;
    bool isRelative; ///< may be given in parts per million, too
};

// The parameter file of the search knows these two units alone and takes every other text for ppm; masses of
// peptides are in Da whatever stands beside them.
constexpr std::array kUnits = {
    UnitRow{PropertyId::KarvonFragmentMassError, true},  UnitRow{PropertyId::KarvonFragmentMassError2, true},
    UnitRow{PropertyId::KarvonPrecursorMassError, true}, UnitRow{PropertyId::PeptideMassMax, false},
    UnitRow{PropertyId::PeptideMassMin, false},
};

struct Limits
{
    double least = -std::numeric_limits<double>::max();
    double most = std::numeric_limits<double>::max();
};

Limits limitsOf(PropertyId id)
{
    const QMap<QByteArray, QString> options = PropertiesNames::typeOptionsOfPropertyType(id);
    Limits limits;
    if (options.contains("min"))
        limits.least = options.value("min").toDouble();
    if (options.contains("max"))
        limits.most = options.value("max").toDouble();
    return limits;
}

/// With all its digits, unless it had hundreds of them.
QString limitText(double limit)
{
    constexpr double kWritten = 1e15;
    return QString::number(limit, std::abs(limit) < kWritten ? 'f' : 'g', QLocale::FloatingPointShortest);
}

/// The spelling of \a unit that files hold; empty for a unit that the property doesn't have.
QString knownUnit(PropertyId id, const QString &unit)
{
    const QStringList units = unitsOf(id);
    const auto isSame = [&unit](const QString &known) {
        return known.compare(unit, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(units, isSame);
    return found == units.end() ? QString() : *found;
}

/// The members of the object that is typed, as JSON or as people say it.
std::optional<QJsonObject> typedObject(const QString &text, const QJsonObject &present)
{
    const QString typed = text.trimmed();
    if (typed.startsWith(QLatin1Char('{'))) {
        const auto object = JsonUtils::objectFromJson(typed.toUtf8());
        return object ? std::optional(*object) : std::nullopt;
    }
    qsizetype end = 0;
    while (end < typed.size() && (typed.at(end).isDigit() || QStringLiteral("+-.eE").contains(typed.at(end))))
        ++end;
    bool isNumber = false;
    const double number = typed.left(end).toDouble(&isNumber);
    if (!isNumber)
        return {};
    QJsonObject object = present;
    object.insert(PropertyEditorStringConstants::VALUE_KEY, number);
    if (const QString unit = typed.mid(end).trimmed(); !unit.isEmpty())
        object.insert(kUnit, unit);
    return object;
}

} // namespace

QStringList unitsOf(PropertyId id)
{
    const auto row = std::ranges::find(kUnits, id, &UnitRow::id);
    if (row == kUnits.end())
        return {};
    return row->isRelative ? QStringList{kPartsPerMillion, kDa} : QStringList{kDa};
}

std::optional<QVariant> toValueWithUnit(PropertyId id, const QString &text, const KProperty &property)
{
    const QJsonObject present = PropertyEditorJsonUtils::variantToObject(property.value());
    std::optional<QJsonObject> object = typedObject(text, present);
    if (!object)
        return {};
    const double number = object->value(PropertyEditorStringConstants::VALUE_KEY)
                              .toDouble(std::numeric_limits<double>::quiet_NaN());
    const Limits limits = limitsOf(id);
    if (!std::isfinite(number) || number < limits.least || number > limits.most)
        return {};
    const QJsonValue unit = object->value(kUnit);
    if (unit != present.value(kUnit)) {
        const QString known = knownUnit(id, unit.toString());
        if (known.isEmpty())
            return {};
        object->insert(kUnit, known);
    }
    return QJsonDocument(*object).toJson(QJsonDocument::Indented);
}

QString legalValuesWithUnit(PropertyId id)
{
    const Limits limits = limitsOf(id);
    return QCoreApplication::translate("PropertyText",
                                       "a number from %1 to %2 with the unit %3, such as \"5 %4\"")
        .arg(limitText(limits.least), limitText(limits.most),
             unitsOf(id).join(QCoreApplication::translate("PropertyText", " or ")), unitsOf(id).value(0));
}

QString withoutShownUnit(const QString &text, const KProperty &property)
{
    const QString unit = property.option("suffix").toString().trimmed();
    const QString typed = text.trimmed();
    return !unit.isEmpty() && typed.endsWith(unit) ? typed.chopped(unit.size()).trimmed() : text;
}

} // namespace orv
