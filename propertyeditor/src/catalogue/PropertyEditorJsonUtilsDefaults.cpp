#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/DisulfideUtils.h>
#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/chemistry/MassTolerances.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <array>

namespace orv::PropertyEditorJsonUtils {

using namespace PropertyEditorStringConstants;

namespace {

constexpr int kEmptyMassRows = 5;

template<RowNode (*makeTable)()>
QJsonObject table()
{
    return rowNodeToObject(makeTable());
}

RowNode emptyMasses()
{
    return MassUtils::defaultRowNode(kEmptyMassRows);
}

RowNode emptyTable()
{
    return {};
}

QJsonObject massTolerances()
{
    return MassTolerances().toJson();
}

struct DefaultEntry
{
    BaseItemType type;
    PropertyId id;
    QJsonObject (*value)();
};

// The entries of a cell in the order of its rows.
constexpr std::array kEntries = {
    DefaultEntry{BaseItemType::DetachedGlycans, PropertyId::DetachedGlycans,
                 table<DetachedGlycanUtils::defaultTableRowNode>},
    DefaultEntry{BaseItemType::Disulfide, PropertyId::Disulfide,
                 table<Disulfide::DisulfideUtils::defaultRowNode>},
    DefaultEntry{BaseItemType::GlycanOptions, PropertyId::GlycanOptions,
                 table<DetachedGlycanUtils::defaultOptionsRowNode>},
    DefaultEntry{BaseItemType::IntactOptions, PropertyId::IntactOptions,
                 table<IntactOptionsUtils::defaultRowNode>},
    DefaultEntry{BaseItemType::OligoOptions, PropertyId::OligoOptions,
                 table<IntactOptionsUtils::defaultRowNode>},
    DefaultEntry{BaseItemType::OligoMasses, PropertyId::MassTable, table<emptyMasses>},
    DefaultEntry{BaseItemType::OligoMasses, PropertyId::MatchTolerance,
                 table<MassUtils::defaultMatchToleranceRowNode>},
    DefaultEntry{BaseItemType::OligoMasses, PropertyId::Tolerances, massTolerances},
    DefaultEntry{BaseItemType::Isotope, PropertyId::Isotope, table<IsotopeUtils::defaultRowNode>},
    DefaultEntry{BaseItemType::Masses, PropertyId::MassTable, table<emptyMasses>},
    DefaultEntry{BaseItemType::Masses, PropertyId::MatchTolerance,
                 table<MassUtils::defaultMatchToleranceRowNode>},
    DefaultEntry{BaseItemType::Proteins, PropertyId::Proteins, table<ProteinUtils::defaultRowNode>},
    DefaultEntry{BaseItemType::IntactProteins, PropertyId::IntactProteins,
                 table<ProteinUtils::defaultInputRowNode>},
    DefaultEntry{BaseItemType::OligoMolecules, PropertyId::OligoMolecules,
                 table<ProteinUtils::defaultInputRowNode>},
    DefaultEntry{BaseItemType::SamplesProteins, PropertyId::SamplesProteins, table<emptyTable>},
};

} // namespace

QJsonObject defaultJsonContents(BaseItemType type)
{
    const QString typeName = baseItemTypeToString(type);
    QJsonArray entries;
    for (const DefaultEntry &entry : kEntries) {
        if (entry.type == type)
            entries.append(QJsonObject{{NAME_KEY, PropertiesNames::internalNameForType(entry.id)},
                                       {VALUE_KEY, entry.value()}});
    }
    if (entries.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot build a default JSON object of type" << typeName;
        return {};
    }
    return {{TYPE_KEY, typeName}, {PROPERTIES_KEY, entries}};
}

} // namespace orv::PropertyEditorJsonUtils
