#include "KPropertyUpdater.h"

#include <KProperty>
#include <orv/chemistry/InclusionList.h>
#include <orv/chemistry/KarvonConstants.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/table/XenosetPreset.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace orv::KPropertyUpdater {

namespace {

QString attribute(const char *key, const XenosetPreset &preset)
{
    return preset.attribute(QString::fromLatin1(key));
}

void setObject(KProperty *property, const QJsonObject &object)
{
    property->setValue(QJsonDocument(object).toJson());
}

void updateInt(KProperty *property, const char *key, const QString &text)
{
    bool ok = false;
    property->setValue(text.toInt(&ok, 10));
    if (!ok)
        qCCritical(propertyEditorLog()) << "Cannot convert" << key << "to int";
}

void updateDouble(KProperty *property, const char *key, const QString &text)
{
    bool ok = false;
    property->setValue(text.toDouble(&ok));
    if (!ok)
        qCCritical(propertyEditorLog()) << "Cannot convert" << key << "to double";
}

/// Numbers of lists without plain texts stay texts, as the property holds them.
void updateList(KProperty *property, const QString &text)
{
    const PropertyId id = PropertiesNames::findPropertyForName(QString::fromUtf8(property->name()));
    if (PropertiesTraits::isStringSerializableList(id)) {
        property->setValue(text);
        return;
    }
    bool ok = false;
    const int index = text.toInt(&ok, 10);
    const QMap<PropertyId, QStringList> &lists = PropertySetCreator::listPropertiesData();
    if (const auto list = lists.constFind(id); list != lists.cend())
        property->setValue(list->value(index, QLatin1String("")));
    else if (ok)
        property->setValue(text);
    else
        qCCritical(propertyEditorLog()) << "List conversion for" << property->name() << "failed.";
}

void updateCheckableList(KProperty *property, const QString &text)
{
    const QString separator = property->option("displaySeparator").toString();
    property->setValue(text.split(separator, Qt::SkipEmptyParts));
}

void updatePropertyValue(KProperty *property, const Row &row, const XenosetPreset &preset)
{
    if (!preset.contains(QString::fromLatin1(row.key))) {
        qCDebug(propertyEditorLog()) << row.key << "does not exist in the preset";
        return;
    }
    QString text = attribute(row.key, preset);
    text.replace(QLatin1String("\\n"), QLatin1String("\n"));
    switch (property->type()) {
    case KProperty::String:
    case PropertiesTraits::ObjectType:
        property->setValue(text);
        break;
    case KProperty::Int:
        updateInt(property, row.key, text);
        break;
    case KProperty::Double:
        updateDouble(property, row.key, text);
        break;
    case KProperty::ValueFromList:
        updateList(property, text);
        break;
    case KProperty::Bool:
        property->setValue(text.toLower() == QLatin1String("true") || text == QLatin1String("1"));
        break;
    case PropertiesTraits::CheckableListType:
        updateCheckableList(property, text);
        break;
    default:
        break;
    }
}

void updateValueAndUnit(KProperty *property, const Row &row, const XenosetPreset &preset)
{
    const bool isDalton = attribute(row.unitKey, preset).toInt() != 0;
    setObject(property, {{QStringLiteral("value"), attribute(row.key, preset).toDouble()},
                         {QStringLiteral("unit"), QLatin1String(isDalton ? "Da" : "ppm")}});
}

QString unescapeGlycans(QString text)
{
    text.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    text.replace(QLatin1String("\\n"), QLatin1String("\r\n"));
    text.replace(QLatin1String("\\:"), QLatin1String(":"));
    if (text.endsWith(QLatin1String("\r\n")))
        text.replace(text.size() - 2, 2, QLatin1Char('\n'));
    return text;
}

void updateGlycans(KProperty *property, const Row &row, const XenosetPreset &preset)
{
    setObject(property, {{QStringLiteral("glycans"), unescapeGlycans(attribute(row.key, preset))}});
}

/// The list is comma-separated text of many lines, which the writer escapes as it does glycans.
void updateInclusionFilter(KProperty *property, const Row &row, const XenosetPreset &preset)
{
    setObject(property, InclusionList::toJson(unescapeGlycans(attribute(row.key, preset))));
}

void updateMachineType(KProperty *property, const Row &row, const XenosetPreset &preset)
{
    QString text = attribute(row.key, preset);
    text.replace(QLatin1String("\\:"), QLatin1String(":"));
    property->setValue(KarvonConstants::machineTypeForKarvonPresetValue(text));
}

/// Colons stay escaped here, other than in glycans.
void updateModifications(KProperty *property, const Row &row, const XenosetPreset &preset)
{
    QString text = attribute(row.key, preset);
    text.replace(QLatin1String("\\r\\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\\n"), QLatin1String("\n"));
    text.replace(QLatin1String("\\="), QLatin1String("="));
    setObject(property, {{QStringLiteral("modifications"), text}});
}

constexpr std::array kRows = {
    Row{PropertyId::KarvonApplyChargesIndex, "apply_charges_index", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonApplyChargesText, "apply_charges_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonCentroidPreferType, "centroid_prefer_type", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonCentroidTopk, "centroid_topk", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonCentroidWidthType, "centroid_width_type", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonCentroidWidthVal, "centroid_width_val", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonChunkingMethod, "chunking_method", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRalmixAutoScore, "ralmix_auto_score", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRalmixExtraParams, "ralmix_extra_params", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRalmixFdr, "ralmix_fdr", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRalmixMinScore, "ralmix_min_score", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRalmixSqliteEnable, "ralmix_sqlite_enable", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonCustomXlink, "Custom_xlink", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonCustomXlinkText, "Custom_xlink_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDebugMode, "DebugMode", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDebugText, "DebugText", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDigestCutterType, "DigestCutterType", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDigestLetters, "DigestLetters", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDigestType, "DigestType", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDisulfide, "Disulfide", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDisulfideProteinGroups, "disulfide_protein_groups", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDisulfideText, "Disulfide_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDSSXlink, "DSS_xlink", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonDSSXlinkText, "DSS_xlink_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonEnablePromoteScoreNglycan, "enable_promote_score_nglycan", nullptr,
        updatePropertyValue},
    Row{PropertyId::KarvonExportMzIdentML, "export_mzIdentML_checkbox", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonExtraText, "extra_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonFeaturesText, "features_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonFocusedDatabase, "focused_database_checkbox", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonFragmentMassError, "fragment_mass_error", "fragment_unit", updateValueAndUnit},
    Row{PropertyId::KarvonFragmentMassError2, "fragment_mass_error2", "fragment_unit2", updateValueAndUnit},
    Row{PropertyId::KarvonFragmentPpmHardcut, "fragment_ppm_hardcut", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonGlycanText, "glycan_text", nullptr, updateGlycans},
    Row{PropertyId::KarvonInclusionFilter, kinclusion_filter.data(), nullptr, updateInclusionFilter},
    Row{PropertyId::KarvonLockMassList, "lock_mass_list", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonMachineType, "machine_type", nullptr, updateMachineType},
    Row{PropertyId::KarvonMaxChunkSize, "max_chunk_size", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonMaximumMissedCleavages, "maximum_missed_cleavages", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonMaxPrecursors, "max_precursors", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonMinChunkSize, "min_chunk_size", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonModText, "mod_text", nullptr, updateModifications},
    Row{PropertyId::KarvonMsconvertFilter, "msconvert_filter", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonNglycanMotifLetters, "allowed_third_letters_in_nglycan_motif", nullptr,
        updatePropertyValue},
    Row{PropertyId::KarvonNglycanQuickRejectLabileScale, "nglycan_quick_reject_labile_scale", nullptr,
        updatePropertyValue},
    Row{PropertyId::KarvonOffByOne, "off_by_one", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonPeakFilterMinNumber, "peak_filter_min_number", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonPeakFilterMzTolerance, "peak_filter_mz_tolerance", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonPeakFilterSelected, "peak_filter_selected", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonPrecursorAssignments, "precursor_assignments", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonPrecursorMassError, "precursor_mass_error", "precursor_unit", updateValueAndUnit},
    Row{PropertyId::KarvonPrecursorMassMax, "precursor_mass_max", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonPrecursorPpmHardcut, "precursor_ppm_hardcut", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonProteinFdrPulldown, "protein_fdr_pulldown", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonQuickReject, "quick_reject", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonQuickRejectWildcard, "quick_reject_wildcard", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRandomSampleSize, "random_sample_size", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRecalCoeffs, "recal_coeffs", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonRecalOption, "recal_option", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonSchemaVersion, "schema_version", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonScoreVersion, "score_version", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonTrisulfide, "Trisulfide", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonTrisulfideText, "Trisulfide_text", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonWildcard, "Wildcard", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonWildcardDelta, "wildcard_delta", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonWildcardMaxMass, "wildcard_max_mass", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonWildcardMinMass, "wildcard_min_mass", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonWildcardResidues, "wildcard_residues", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonXlinkDecoys, "xlink_decoys_checkbox", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonXlinkDecoysMassOffset, "xlink_decoys_mass_offset", nullptr, updatePropertyValue},
    Row{PropertyId::KarvonXlinkDetails, "xlink_details", nullptr, updatePropertyValue},
    Row{PropertyId::DatabaseAddContaminants, "add_contaminants", nullptr, updatePropertyValue},
    Row{PropertyId::DatabaseAddDecoys, "add_decoys", nullptr, updatePropertyValue},
    Row{PropertyId::TotalCommonMax, "common_max", nullptr, updatePropertyValue},
    Row{PropertyId::TotalRareMax, "rare_max", nullptr, updatePropertyValue},
};
static_assert(kRows.size() == 74);
static_assert(std::ranges::is_sorted(kRows, {}, &Row::id));

} // namespace

std::span<const Row> rows()
{
    return kRows;
}

} // namespace orv::KPropertyUpdater
