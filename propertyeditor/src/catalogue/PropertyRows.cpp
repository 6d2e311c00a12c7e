#include "PropertyRows.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/DisulfideUtils.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/chemistry/MassTolerances.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/chemistry/OligoImpurities.h>
#include <orv/chemistry/SettableFeatureFinderParameters.h>
#include <orv/chemistry/TurboXicSettings.h>
#include <orv/chemistry/WorkflowNodeXicMethodOptions.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace orv {

namespace {

using Row = PropertyRow;
using Reader = PropertyReader;
using PartsPerMillion = PropertyRow::PartsPerMillion;
using TextList = PropertyRow::TextList;

constexpr std::monostate kNone;

// What defaults.csv can name as a default that comes from code.
namespace PropertyDefaults {

QVariant emptyReference()
{
    return QVariant::fromValue(ResourceReferenceSPtr());
}

template<auto Member>
QVariant featureFinder()
{
    return SettableFeatureFinderParameters().*Member;
}

template<auto Member>
QVariant fastXic()
{
    return TurboXicSettingsCreator::createHighCapacity().*Member;
}

QVariant detachedGlycans()
{
    return PropertyEditorJsonUtils::rowNodeToJson(DetachedGlycanUtils::defaultTableRowNode());
}

QVariant glycanOptions()
{
    return PropertyEditorJsonUtils::rowNodeToJson(DetachedGlycanUtils::defaultOptionsRowNode());
}

QVariant disulfide()
{
    return PropertyEditorJsonUtils::rowNodeToJson(Disulfide::DisulfideUtils::defaultRowNode());
}

QVariant isotope()
{
    return PropertyEditorJsonUtils::rowNodeToJson(IsotopeUtils::defaultRowNode());
}

QVariant massTable()
{
    return PropertyEditorJsonUtils::rowNodeToJson(MassUtils::defaultRowNode(5));
}

QVariant matchTolerance()
{
    return PropertyEditorJsonUtils::rowNodeToJson(MassUtils::defaultMatchToleranceRowNode());
}

QVariant massTolerances()
{
    return MassTolerances().toJson();
}

QVariant oligoImpurities()
{
    return OligoImpurities().toJson();
}

QVariant normalMulticoreMode()
{
    return QVariant::fromValue(PropertyEditorUtils::MulticoreMode::Normal);
}

QVariant fastXicMode()
{
    return WorkflowNodeXicMethodOptions::modeToString(WorkflowNodeXicMethodOptions::XicMode(1));
}

} // namespace PropertyDefaults

// clang-format off
constexpr PropertyRows kRows = {
#include "PropertyRows.inc"
};
// clang-format on

constexpr bool isComplete()
{
    for (int i = 0; i < kPropertyCount; ++i) {
        if (kRows[i].id != i)
            return false;
    }
    return true;
}
static_assert(isComplete(), "one row for each property, by ascending number");

struct ToVariant
{
    QVariant operator()(std::monostate) const { return {}; }
    QVariant operator()(const char *text) const { return QString::fromUtf8(text); }
    QVariant operator()(QVariant (*make)()) const { return make(); }
    QVariant operator()(TextList list) const
    {
        return QString::fromUtf8(list.joined).split(QLatin1Char(';'));
    }
    QVariant operator()(PartsPerMillion tolerance) const
    {
        const auto toJson = [](auto amount) { return QJsonValue(amount); };
        const QJsonObject object{
            {QLatin1String("unit"), QString(kppm)},
            {PropertyEditorStringConstants::VALUE_KEY, std::visit(toJson, tolerance.amount)}};
        return QJsonDocument(object).toJson(QJsonDocument::Indented);
    }
    template<typename Number>
    QVariant operator()(Number value) const
    {
        return value;
    }
};

} // namespace

const PropertyRows &propertyRows()
{
    return kRows;
}

QVariant PropertyRow::makeDefault() const
{
    return std::visit(ToVariant(), defaultValue);
}

} // namespace orv
