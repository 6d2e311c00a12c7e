#include "KarvonKeys.h"

#include "KarvonFeatures.h"

#include <orv/chemistry/KarvonConstants.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace orv {

namespace {

constexpr std::string_view kInclusionFilterKey(kinclusion_filter.data(), size_t(kinclusion_filter.size()));
/// The file knows it as an option of the modifications alone.
constexpr QLatin1String kMotifLetters("allowed_third_letters_in_nglycan_motif");

QString escaped(QString text)
{
    text.replace(QLatin1String("\\"), QLatin1String("\\\\"));
    // What was written as a line break already stays one.
    text.replace(QLatin1String("\\\\n"), QLatin1String("\\n"));
    text.replace(QLatin1String(":"), QLatin1String("\\:"));
    return text;
}

/// An object is left in a feature where its member was empty.
QString textOrNothing(const KarvonFeatures &features, PropertyId id, QLatin1String member)
{
    const QString text = features.value(id).toString();
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    return document.isObject() && document.object().value(member).toString().isEmpty() ? QString() : text;
}

QString textPart(const KarvonFeatures &features, PropertyId id, QLatin1String member)
{
    return escaped(textOrNothing(features, id, member));
}

/// A number with its unit.
QJsonObject valueWithUnit(const KarvonFeatures &features, PropertyId id)
{
    const QJsonObject object = PropertyEditorJsonUtils::variantToObject(features.feature(id));
    return object.isEmpty()
               ? PropertyEditorJsonUtils::variantToObject(PropertiesNames::defaultValueForType(id))
               : object;
}

QVariant value(const KarvonFeatures &features, PropertyId id)
{
    return features.value(id);
}

/// As the user typed it: the unit has a key of its own.
QVariant massError(const KarvonFeatures &features, PropertyId id)
{
    qCDebug(propertyEditorLog()) << "Mass error of property" << id << "feature" << features.feature(id)
                                 << "default" << PropertiesNames::defaultValueForType(id);
    return valueWithUnit(features, id).value(QLatin1String("value")).toDouble();
}

QVariant unitFlag(const KarvonFeatures &features, PropertyId id)
{
    const QString unit = valueWithUnit(features, id).value(QLatin1String("unit")).toString();
    return int(unit.toLower() == QLatin1String("da"));
}

QVariant glycans(const KarvonFeatures &features, PropertyId id)
{
    return textPart(features, id, QLatin1String("glycans"));
}

QVariant inclusionFilter(const KarvonFeatures &features, PropertyId id)
{
    return textPart(features, id, kinclusion_filter);
}

QVariant machineType(const KarvonFeatures &features, PropertyId id)
{
    const int number = features.value(id).toInt();
    return escaped(KarvonConstants::mapMachineTypeComboboxValueToKarvonPresetValue(number));
}

QVariant modText(const KarvonFeatures &features, PropertyId id)
{
    const QString letters =
        features.value(PropertyId::KarvonNglycanMotifLetters).toStringList().join(QString());
    return QString(textPart(features, id, QLatin1String("modifications")) + QLatin1Char('\n') +
                   kMotifLetters + QLatin1Char('=') + letters + QLatin1Char('\n'));
}

QVariant peakFilter(const KarvonFeatures &features, PropertyId id)
{
    return textOrNothing(features, id, QLatin1String("peakfilter"));
}

QVariant nothing(const KarvonFeatures & /*features*/, PropertyId /*id*/)
{
    return {};
}

QVariant parameterVersion(const KarvonFeatures & /*features*/, PropertyId /*id*/)
{
    return QStringLiteral("1.4.1");
}

template<int Number>
QVariant number(const KarvonFeatures & /*features*/, PropertyId /*id*/)
{
    return Number;
}

constexpr std::array kKeys = {
    KarvonKey{"Custom_xlink", PropertyId::KarvonCustomXlink, value},
    KarvonKey{"Custom_xlink_text", PropertyId::KarvonCustomXlinkText, value},
    KarvonKey{"DSS_xlink", PropertyId::KarvonDSSXlink, value},
    KarvonKey{"DSS_xlink_text", PropertyId::KarvonDSSXlinkText, value},
    KarvonKey{kDatabaseFilesKey, PropertyId::NoProperty, nothing},
    KarvonKey{"DebugMode", PropertyId::KarvonDebugMode, value},
    KarvonKey{"DebugText", PropertyId::KarvonDebugText, value},
    KarvonKey{"DigestCutterType", PropertyId::KarvonDigestCutterType, value},
    KarvonKey{"DigestLetters", PropertyId::KarvonDigestLetters, value},
    KarvonKey{"DigestType", PropertyId::KarvonDigestType, value},
    KarvonKey{"Disulfide", PropertyId::KarvonDisulfide, value},
    KarvonKey{"Disulfide_text", PropertyId::KarvonDisulfideText, value},
    KarvonKey{"OutputFolder", PropertyId::NoProperty, nothing},
    KarvonKey{"PARAMETER_VERSION", PropertyId::NoProperty, parameterVersion},
    KarvonKey{"ProteomeDiscovererVersion", PropertyId::NoProperty, nothing},
    KarvonKey{kSpectraFilesKey, PropertyId::NoProperty, nothing},
    KarvonKey{"Trisulfide", PropertyId::KarvonTrisulfide, value},
    KarvonKey{"Trisulfide_text", PropertyId::KarvonTrisulfideText, value},
    KarvonKey{"Wildcard", PropertyId::KarvonWildcard, value},
    KarvonKey{"add_contaminants", PropertyId::DatabaseAddContaminants, value},
    KarvonKey{"add_decoys", PropertyId::DatabaseAddDecoys, value},
    KarvonKey{"apply_charges_index", PropertyId::KarvonApplyChargesIndex, value},
    KarvonKey{"apply_charges_text", PropertyId::KarvonApplyChargesText, value},
    KarvonKey{"centroid_prefer_type", PropertyId::KarvonCentroidPreferType, value},
    KarvonKey{"centroid_topk", PropertyId::KarvonCentroidTopk, value},
    KarvonKey{"centroid_width_type", PropertyId::KarvonCentroidWidthType, value},
    KarvonKey{"centroid_width_val", PropertyId::KarvonCentroidWidthVal, value},
    KarvonKey{"chunking_method", PropertyId::KarvonChunkingMethod, value},
    KarvonKey{"common_max", PropertyId::TotalCommonMax, value},
    KarvonKey{"deisotoped_spectra_checkbox", PropertyId::NoProperty, number<0>},
    KarvonKey{"disulfide_protein_groups", PropertyId::KarvonDisulfideProteinGroups, value},
    KarvonKey{"enable_promote_score_nglycan", PropertyId::KarvonEnablePromoteScoreNglycan, value},
    KarvonKey{"export_mzIdentML_checkbox", PropertyId::KarvonExportMzIdentML, value},
    KarvonKey{"extra_text", PropertyId::KarvonExtraText, value},
    KarvonKey{"features_text", PropertyId::KarvonFeaturesText, value},
    KarvonKey{"focused_database_checkbox", PropertyId::KarvonFocusedDatabase, value},
    KarvonKey{"fragment_mass_error", PropertyId::KarvonFragmentMassError, massError},
    KarvonKey{"fragment_mass_error2", PropertyId::KarvonFragmentMassError2, massError},
    KarvonKey{"fragment_ppm_hardcut", PropertyId::KarvonFragmentPpmHardcut, value},
    KarvonKey{"fragment_unit", PropertyId::KarvonFragmentMassError, unitFlag},
    KarvonKey{"fragment_unit2", PropertyId::KarvonFragmentMassError2, unitFlag},
    KarvonKey{"glycan_text", PropertyId::KarvonGlycanText, glycans},
    KarvonKey{"karvon_sqlite_enable", PropertyId::KarvonRalmixSqliteEnable, value},
    KarvonKey{kInclusionFilterKey, PropertyId::KarvonInclusionFilter, inclusionFilter},
    KarvonKey{"lock_mass_list", PropertyId::KarvonLockMassList, value},
    KarvonKey{"machine_type", PropertyId::KarvonMachineType, machineType},
    KarvonKey{"max_chunk_size", PropertyId::KarvonMaxChunkSize, value},
    KarvonKey{"max_precursors", PropertyId::KarvonMaxPrecursors, value},
    KarvonKey{"maximum_missed_cleavages", PropertyId::KarvonMaximumMissedCleavages, value},
    KarvonKey{"min_chunk_size", PropertyId::KarvonMinChunkSize, value},
    KarvonKey{"mod_text", PropertyId::KarvonModText, modText},
    KarvonKey{"msconvert_filter", PropertyId::KarvonMsconvertFilter, value},
    KarvonKey{"n_glycan_checkbox", PropertyId::NoProperty, number<0>},
    KarvonKey{"nglycan_quick_reject_labile_scale", PropertyId::KarvonNglycanQuickRejectLabileScale, value},
    KarvonKey{"o_glycan_checkbox", PropertyId::NoProperty, number<0>},
    KarvonKey{"off_by_one", PropertyId::KarvonOffByOne, value},
    KarvonKey{"output_report", PropertyId::KarvonOutputReport, value},
    KarvonKey{"output_results", PropertyId::KarvonOutputResults, value},
    KarvonKey{"output_top_scores", PropertyId::KarvonOutputTopScores, value},
    KarvonKey{"peak_filter_min_number", PropertyId::KarvonPeakFilterMinNumber, value},
    KarvonKey{"peak_filter_mz_tolerance", PropertyId::KarvonPeakFilterMzTolerance, value},
    KarvonKey{"peak_filter_selected", PropertyId::KarvonPeakFilterSelected, peakFilter},
    KarvonKey{"precursor_assignments", PropertyId::KarvonPrecursorAssignments, value},
    KarvonKey{"precursor_mass_error", PropertyId::KarvonPrecursorMassError, massError},
    KarvonKey{"precursor_mass_max", PropertyId::KarvonPrecursorMassMax, value},
    KarvonKey{"precursor_ppm_hardcut", PropertyId::KarvonPrecursorPpmHardcut, value},
    KarvonKey{"precursor_unit", PropertyId::KarvonPrecursorMassError, unitFlag},
    KarvonKey{"protein_fdr_pulldown", PropertyId::KarvonProteinFdrPulldown, value},
    KarvonKey{"quick_reject", PropertyId::KarvonQuickReject, value},
    KarvonKey{"quick_reject_wildcard", PropertyId::KarvonQuickRejectWildcard, value},
    KarvonKey{"ralmix_auto_score", PropertyId::KarvonRalmixAutoScore, value},
    KarvonKey{"ralmix_extra_params", PropertyId::KarvonRalmixExtraParams, value},
    KarvonKey{"ralmix_fdr", PropertyId::KarvonRalmixFdr, value},
    KarvonKey{"ralmix_min_score", PropertyId::KarvonRalmixMinScore, value},
    KarvonKey{"ralmix_sqlite_enable", PropertyId::KarvonRalmixSqliteEnable, value},
    KarvonKey{"random_sample_size", PropertyId::KarvonRandomSampleSize, value},
    KarvonKey{"rare_max", PropertyId::TotalRareMax, value},
    KarvonKey{"recal_coeffs", PropertyId::KarvonRecalCoeffs, value},
    KarvonKey{"recal_option", PropertyId::KarvonRecalOption, value},
    KarvonKey{"results_suffix", PropertyId::KarvonResultsSuffix, value},
    KarvonKey{"schema_version", PropertyId::KarvonSchemaVersion, value},
    KarvonKey{"score_version", PropertyId::KarvonScoreVersion, value},
    KarvonKey{"skip_bad_spectra", PropertyId::NoProperty, number<1>},
    KarvonKey{"wildcard_delta", PropertyId::KarvonWildcardDelta, value},
    KarvonKey{"wildcard_max_mass", PropertyId::KarvonWildcardMaxMass, value},
    KarvonKey{"wildcard_min_mass", PropertyId::KarvonWildcardMinMass, value},
    KarvonKey{"wildcard_residues", PropertyId::KarvonWildcardResidues, value},
    KarvonKey{"xlink_decoys_checkbox", PropertyId::KarvonXlinkDecoys, value},
    KarvonKey{"xlink_decoys_mass_offset", PropertyId::KarvonXlinkDecoysMassOffset, value},
    KarvonKey{"xlink_details", PropertyId::KarvonXlinkDetails, value},
};
static_assert(kKeys.size() == 90);
// All are ASCII, so that this is the order of QString too.
static_assert(std::ranges::is_sorted(kKeys, {}, &KarvonKey::key));

} // namespace

std::span<const KarvonKey> karvonKeys()
{
    return kKeys;
}

} // namespace orv
