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

constexpr std::monostate kNone;

// The disulfide-like cross-linker DSS, intact and with one end lost to water.
constexpr const char *kDeadEndCrosslinker =
    "DSS / 138.0680796 @ K | xlink\nXlink\\:DSS / 156.078644 @ K | common2 % Dead end";

QVariant emptyReference()
{
    return QVariant::fromValue(ResourceReferenceSPtr());
}

QVariant valueWithUnit(const QJsonValue &value)
{
    const QJsonObject object{{QLatin1String("unit"), QString(kppm)},
                             {PropertyEditorStringConstants::VALUE_KEY, value}};
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

template<int Number>
QVariant partsPerMillion()
{
    return valueWithUnit(Number);
}

// A tolerance is a fractional number, and stays one when it happens to be whole.
template<int Number>
QVariant tolerancePartsPerMillion()
{
    return valueWithUnit(double(Number));
}

template<auto Member>
QVariant featureFinder()
{
    return SettableFeatureFinderParameters().*Member;
}

template<auto Member>
QVariant highCapacity()
{
    return TurboXicSettingsCreator::createHighCapacity().*Member;
}

template<RowNode (*Make)()>
QVariant table()
{
    return PropertyEditorJsonUtils::rowNodeToJson(Make());
}

QVariant massTable()
{
    return PropertyEditorJsonUtils::rowNodeToJson(MassUtils::defaultRowNode(5));
}

template<typename Type>
QVariant objectOf()
{
    return Type().toJson();
}

QVariant motifLetters()
{
    return QStringList{QStringLiteral("S"), QStringLiteral("T")};
}

QVariant normalMulticoreMode()
{
    return QVariant::fromValue(PropertyEditorUtils::MulticoreMode::Normal);
}

QVariant fastXicMode()
{
    return WorkflowNodeXicMethodOptions::modeToString(WorkflowNodeXicMethodOptions::XicMode(1));
}

// Three families of peak detection stand side by side under Bpi, Tic and Uv, the last finer at its end. The
// feature finder's own members keep company with those that the catalogue adds: change them together.
// clang-format off
constexpr PropertyRows kRows = {
    Row{PropertyId::AdvancedConfiguration, Reader::String, ""},
    Row{PropertyId::AlignmentEnabled, Reader::Bool, true},
    Row{PropertyId::AlignmentTolerance, Reader::Double, 0.0},
    Row{PropertyId::AlignmentWindow, Reader::Double, 2},
    Row{PropertyId::AutoFindMasses, Reader::NonNegativeInt, 0},
    Row{PropertyId::BaselineRadius, Reader::Double, "15"},
    Row{PropertyId::BpiBaselineMaxAngle, Reader::Double, 179.9},
    Row{PropertyId::BpiBaselineMaxLimit, Reader::Int, 0},
    Row{PropertyId::BpiBaselineMethod, Reader::ListIndex, 1},
    Row{PropertyId::BpiBaselineMinAngle, Reader::Double, 178.0},
    Row{PropertyId::BpiBaselineMinLimit, Reader::Int, 0},
    Row{PropertyId::BpiBaselinePushLimit, Reader::Int, 20},
    Row{PropertyId::BpiBaselinePushTolerance, Reader::Percent, 0.005},
    Row{PropertyId::BpiIntervalTimeMin, Reader::Double, 0.5},
    Row{PropertyId::BpiPeakMethod, Reader::ListIndex, 1},
    Row{PropertyId::BpiPeakTolMax, Reader::Percent, 0.005},
    Row{PropertyId::BpiPeakTolMin, Reader::Percent, 0.0005},
    Row{PropertyId::BpiSmoothSigma, Reader::Double, 0.1},
    Row{PropertyId::BpiSmoothSigmaBaseline, Reader::Double, 1.5},
    Row{PropertyId::BucketAlignmentMode, Reader::NonNegativeInt, 2},
    Row{PropertyId::BucketAlignmentTolerance, Reader::Double, 1.0},
    Row{PropertyId::BucketMassTolerance, Reader::Double, 5.0},
    Row{PropertyId::BucketMobilityTolerance, Reader::Double, 10.0},
    Row{PropertyId::BucketSignalToNoise, Reader::Double, 10.0},
    Row{PropertyId::BucketTimeLimit, Reader::Double, 250.0},
    Row{PropertyId::KarvonApplyChargesIndex, Reader::ListIndex, 1},
    Row{PropertyId::KarvonApplyChargesText, Reader::String, ""},
    Row{PropertyId::KarvonCentroidMsLevels, Reader::ListIndex, 1},
    Row{PropertyId::KarvonCentroidPreferType, Reader::ListIndex, 2},
    Row{PropertyId::KarvonCentroidTopk, Reader::Int, 1000},
    Row{PropertyId::KarvonCentroidWidthType, Reader::ListIndex, 0},
    Row{PropertyId::KarvonCentroidWidthVal, Reader::Double, 0.01},
    Row{PropertyId::KarvonChunkingMethod, Reader::ListIndex, 0},
    Row{PropertyId::KarvonRalmixAutoScore, Reader::Bool, true},
    Row{PropertyId::KarvonRalmixExtraParams, Reader::String, ""},
    Row{PropertyId::KarvonRalmixFdr, Reader::String, ""},
    Row{PropertyId::KarvonRalmixMinScore, Reader::String, "0"},
    Row{PropertyId::KarvonRalmixSqliteEnable, Reader::ListIndex, 1},
    Row{PropertyId::KarvonCustomXlink, Reader::Bool, false},
    Row{PropertyId::KarvonCustomXlinkText, Reader::String, ""},
    Row{PropertyId::KarvonDebugMode, Reader::Bool, false},
    Row{PropertyId::KarvonDebugText, Reader::String, ""},
    Row{PropertyId::KarvonDigestCutterType, Reader::ListIndex, 0},
    Row{PropertyId::KarvonDigestLetters, Reader::String, "RK"},
    Row{PropertyId::KarvonDigestType, Reader::ListIndex, 2},
    Row{PropertyId::KarvonDisulfide, Reader::Bool, false},
    Row{PropertyId::KarvonDisulfideProteinGroups, Reader::String, "1"},
    Row{PropertyId::KarvonDisulfideText, Reader::String, "Disulfide / -2.015650 @ C | xlink"},
    Row{PropertyId::KarvonDSSXlink, Reader::Bool, false},
    Row{PropertyId::KarvonDSSXlinkText, Reader::String, kDeadEndCrosslinker},
    Row{PropertyId::KarvonEnablePromoteScoreNglycan, Reader::Bool, false},
    Row{PropertyId::KarvonExportMzIdentML, Reader::Bool, false},
    Row{PropertyId::KarvonExtraText, Reader::String, ""},
    Row{PropertyId::KarvonFeaturesText, Reader::String, ""},
    Row{PropertyId::KarvonFocusedDatabase, Reader::Bool, false},
    Row{PropertyId::KarvonFragmentMassError, Reader::Object, tolerancePartsPerMillion<20>},
    Row{PropertyId::KarvonFragmentMassError2, Reader::Object, tolerancePartsPerMillion<20>},
    Row{PropertyId::KarvonFragmentPpmHardcut, Reader::Bool, false},
    Row{PropertyId::KarvonGlycanText, Reader::Object, kNone},
    Row{PropertyId::KarvonInclusionFilter, Reader::Object, kNone},
    Row{PropertyId::KarvonLayout, Reader::Resource, emptyReference},
    Row{PropertyId::KarvonLockMassList, Reader::ListText, "None"},
    Row{PropertyId::KarvonMachineType, Reader::NonNegativeInt, 2},
    Row{PropertyId::KarvonMaxChunkSize, Reader::Int, 2000},
    Row{PropertyId::KarvonMaximumMissedCleavages, Reader::Int, 2},
    Row{PropertyId::KarvonMaxPrecursors, Reader::Int, 1},
    Row{PropertyId::KarvonMinChunkSize, Reader::Int, 500},
    Row{PropertyId::KarvonModText, Reader::Object, kNone},
    Row{PropertyId::KarvonMoleculeType, Reader::NonNegativeInt, 0},
    Row{PropertyId::KarvonMsconvertFilter, Reader::String, ""},
    Row{PropertyId::KarvonNglycanMotifLetters, Reader::StringList, motifLetters},
    Row{PropertyId::KarvonNglycanQuickRejectLabileScale, Reader::Double, 0.01},
    Row{PropertyId::KarvonOffByOne, Reader::ListIndex, 3},
    Row{PropertyId::KarvonOutputReport, Reader::Bool, false},
    Row{PropertyId::KarvonOutputResults, Reader::Bool, true},
    Row{PropertyId::KarvonOutputTopScores, Reader::Bool, false},
    Row{PropertyId::KarvonPeakFilterMinNumber, Reader::Int, 0},
    Row{PropertyId::KarvonPeakFilterMzTolerance, Reader::Double, 0.02},
    Row{PropertyId::KarvonPeakFilterSelected, Reader::Object, kNone},
    Row{PropertyId::KarvonPrecursorAssignments, Reader::ListIndex, 1},
    Row{PropertyId::KarvonPrecursorMassError, Reader::Object, tolerancePartsPerMillion<10>},
    Row{PropertyId::KarvonPrecursorMassMax, Reader::Double, 10000.0},
    Row{PropertyId::KarvonPrecursorPpmHardcut, Reader::Bool, false},
    Row{PropertyId::KarvonProteinFdrPulldown, Reader::ListIndex, 0},
    Row{PropertyId::KarvonQuickReject, Reader::Double, 95.0},
    Row{PropertyId::KarvonQuickRejectWildcard, Reader::Double, 99.0},
    Row{PropertyId::KarvonRandomSampleSize, Reader::Double, 400.0},
    Row{PropertyId::KarvonRecalCoeffs, Reader::String, ""},
    Row{PropertyId::KarvonRecalOption, Reader::ListIndex, 0},
    Row{PropertyId::KarvonResultsSuffix, Reader::String, "[spec]_[date]_Karvon"},
    Row{PropertyId::KarvonSchemaVersion, Reader::ListIndex, 2},
    Row{PropertyId::KarvonScoreVersion, Reader::ListIndex, 2},
    Row{PropertyId::KarvonTrisulfide, Reader::Bool, false},
    Row{PropertyId::KarvonTrisulfideText, Reader::String, "Trisulfide / 29.956421 @ C | xlink"},
    Row{PropertyId::KarvonWildcard, Reader::NonNegativeInt, 0},
    Row{PropertyId::KarvonWildcardDelta, Reader::Int, 0},
    Row{PropertyId::KarvonWildcardMaxMass, Reader::Int, 100},
    Row{PropertyId::KarvonWildcardMinMass, Reader::Int, -40},
    Row{PropertyId::KarvonWildcardResidues, Reader::String, ""},
    Row{PropertyId::KarvonXlinkDecoys, Reader::Bool, false},
    Row{PropertyId::KarvonXlinkDecoysMassOffset, Reader::String, "11"},
    Row{PropertyId::KarvonXlinkDetails, Reader::String, ""},
    Row{PropertyId::CentroidCountMax, Reader::Int, 1000},
    Row{PropertyId::CentroidPreference, Reader::ListIndex, 2},
    Row{PropertyId::CentroidWidth, Reader::Double, 0.02},
    Row{PropertyId::CentroidWidthUnit, Reader::ListIndex, 0},
    Row{PropertyId::ChargeMax, Reader::Double, "100"},
    Row{PropertyId::ChargeMin, Reader::Double, "5"},
    Row{PropertyId::ChargeSpacing, Reader::Double, "0.2"},
    Row{PropertyId::CreateXicCache, Reader::Bool, true},
    Row{PropertyId::CustomColumns, Reader::String, ""},
    Row{PropertyId::DatabaseAddContaminants, Reader::Bool, false},
    Row{PropertyId::DatabaseAddDecoys, Reader::Bool, true},
    Row{PropertyId::DatabaseFile, Reader::Resource, emptyReference},
    Row{PropertyId::DeconvolutionMethod, Reader::ListIndex, 1},
    Row{PropertyId::DeconvolutionPeakWidthFactor, Reader::Double, 1.1},
    Row{PropertyId::DeconvolutionSharpenPeaks, Reader::Bool, false},
    Row{PropertyId::DeconvolutionSignalToNoise, Reader::Double, 8},
    Row{PropertyId::DeconvolutionTolerance, Reader::Double, 10},
    Row{PropertyId::DeconvolvedMassPlot, Reader::Object, kNone},
    Row{PropertyId::DeNovoAntibodyTemplates, Reader::Resource, emptyReference},
    Row{PropertyId::DeNovoDistinguishLeucine, Reader::Bool, false},
    Row{PropertyId::DeNovoHeavyChainKnownStart, Reader::UpperLetters, ""},
    Row{PropertyId::DeNovoHeavyChainSequencing, Reader::Bool, true},
    Row{PropertyId::DeNovoLightChainKnownStart, Reader::UpperLetters, ""},
    Row{PropertyId::DeNovoLightChainSequencing, Reader::Bool, true},
    Row{PropertyId::DeNovoReportAlternatives, Reader::Bool, false},
    Row{PropertyId::DeNovoSkipContaminants, Reader::Bool, true},
    Row{PropertyId::DeNovoTerminalTag, Reader::String, ""},
    Row{PropertyId::DetachedGlycans, Reader::Object, table<&DetachedGlycanUtils::defaultTableRowNode>},
    Row{PropertyId::Digestion, Reader::ListText, "Trypsin @ R,K | C-term"},
    Row{PropertyId::Disulfide, Reader::Object, table<&Disulfide::DisulfideUtils::defaultRowNode>},
    Row{PropertyId::InSilicoFixedModification, Reader::NonNegativeInt, 0},
    Row{PropertyId::ExportImageResolution, Reader::String, "300"},
    Row{PropertyId::EnableInSilico, Reader::Bool, false},
    Row{PropertyId::ExportImages, Reader::Bool, false},
    Row{PropertyId::ExportSearchReport, Reader::Bool, false},
    Row{PropertyId::FastXicBlockScans, Reader::Int, highCapacity<&TurboXicSettings::scansPerBlock>},
    Row{PropertyId::FastXicCacheSize, Reader::Int, highCapacity<&TurboXicSettings::cacheMegabytes>},
    Row{PropertyId::FastXicMzBins, Reader::Int, highCapacity<&TurboXicSettings::mzBins>},
    Row{PropertyId::FeatureFinderAbundanceMin, Reader::Double, 0.0},
    Row{PropertyId::FeatureFinderApexTolerance, Reader::Double, 0.2},
    Row{PropertyId::FeatureFinderChargeMax, Reader::Int, featureFinder<&SettableFeatureFinderParameters::maximumCharge>},
    Row{PropertyId::FeatureFinderChargeMin, Reader::Int, featureFinder<&SettableFeatureFinderParameters::minimumCharge>},
    Row{PropertyId::FeatureFinderCorrelationMin, Reader::Double, featureFinder<&SettableFeatureFinderParameters::minimumIsotopeCorrelation>},
    Row{PropertyId::FeatureFinderIsotopeCountMax, Reader::Int, featureFinder<&SettableFeatureFinderParameters::maximumIsotopeCount>},
    Row{PropertyId::FeatureFinderIsotopeCountMin, Reader::Int, featureFinder<&SettableFeatureFinderParameters::minimumIsotopeCount>},
    Row{PropertyId::FeatureFinderKeepUnassigned, Reader::Bool, false},
    Row{PropertyId::FeatureFinderMergeCharges, Reader::Bool, featureFinder<&SettableFeatureFinderParameters::mergeChargeStates>},
    Row{PropertyId::FeatureFinderMissedScans, Reader::Int, featureFinder<&SettableFeatureFinderParameters::missedScans>},
    Row{PropertyId::FeatureFinderMobilityTolerance, Reader::Double, 0.0},
    Row{PropertyId::FeatureFinderMzTolerance, Reader::Double, featureFinder<&SettableFeatureFinderParameters::mzTolerancePpm>},
    Row{PropertyId::FeatureFinderNoisePercentile, Reader::Double, 20.0},
    Row{PropertyId::FeatureFinderNoiseWindow, Reader::Int, 300},
    Row{PropertyId::FeatureFinderPeaksPerScan, Reader::Int, featureFinder<&SettableFeatureFinderParameters::peaksPerScan>},
    Row{PropertyId::FeatureFinderScanCountMin, Reader::Int, featureFinder<&SettableFeatureFinderParameters::minimumScanCount>},
    Row{PropertyId::FeatureFinderSignalToNoise, Reader::Double, featureFinder<&SettableFeatureFinderParameters::minimumSignalToNoise>},
    Row{PropertyId::FeatureFinderSmoothingScans, Reader::Int, featureFinder<&SettableFeatureFinderParameters::smoothingScans>},
    Row{PropertyId::FeatureFinderSplitDepth, Reader::Int, featureFinder<&SettableFeatureFinderParameters::splitDepthPercent>},
    Row{PropertyId::FeatureFinderThreads, Reader::Int, featureFinder<&SettableFeatureFinderParameters::threadCount>},
    Row{PropertyId::FeatureFinderTrimTails, Reader::Bool, false},
    Row{PropertyId::FeatureFinderWidthMax, Reader::Double, featureFinder<&SettableFeatureFinderParameters::maximumElutionMinutes>},
    Row{PropertyId::FeatureFinderWidthMin, Reader::Double, featureFinder<&SettableFeatureFinderParameters::minimumElutionMinutes>},
    Row{PropertyId::FillMissingValues, Reader::Bool, false},
    Row{PropertyId::GlycanOptions, Reader::Object, table<&DetachedGlycanUtils::defaultOptionsRowNode>},
    Row{PropertyId::InSilicoGlycans, Reader::Object, kNone},
    Row{PropertyId::InSilicoChains, Reader::String, ""},
    Row{PropertyId::InSilicoMode, Reader::ListIndex, 0},
    Row{PropertyId::InSilicoMoleculesFile, Reader::Resource, ""},
    Row{PropertyId::InSilicoPeptidesFile, Reader::Resource, emptyReference},
    Row{PropertyId::IntactOptions, Reader::Object, kNone},
    Row{PropertyId::IntactProteins, Reader::Object, kNone},
    Row{PropertyId::IntegrationDropToBaseline, Reader::Bool, false},
    Row{PropertyId::IntegrationEnabled, Reader::Bool, true},
    Row{PropertyId::IntegrationMinimumArea, Reader::Int, 500},
    Row{PropertyId::IntegrationShoulderThreshold, Reader::IntPercent, 0.1},
    Row{PropertyId::IntegrationValleyThreshold, Reader::IntPercent, 0.2},
    Row{PropertyId::InterestTimeEnd, Reader::Double, 0.0},
    Row{PropertyId::InterestTimeStart, Reader::Double, 0.0},
    Row{PropertyId::CaldrinAcquisitionScheme, Reader::String, ""},
    Row{PropertyId::CaldrinChromatogramLength, Reader::Double, 120.0},
    Row{PropertyId::CaldrinDigestion, Reader::ListIndex, "Trypsin @ R,K | C-term"},
    Row{PropertyId::CaldrinInstrument, Reader::ListIndex, "QTOF / HCD"},
    Row{PropertyId::CaldrinIsolationWidth, Reader::Double, 15.0},
    Row{PropertyId::CaldrinMassCalibration, Reader::Bool, true},
    Row{PropertyId::CaldrinMaxFragments, Reader::Int, 8},
    Row{PropertyId::CaldrinMobilityTolerance, Reader::Double, 0.0},
    Row{PropertyId::CaldrinMs1MaxMz, Reader::Double, 2000.0},
    Row{PropertyId::CaldrinMs1MinMz, Reader::Double, 350.0},
    Row{PropertyId::CaldrinMs1Resolution, Reader::Double, 25000.0},
    Row{PropertyId::CaldrinMs1SignalToNoise, Reader::Double, 3.0},
    Row{PropertyId::CaldrinMs2MaxMz, Reader::Double, 2000.0},
    Row{PropertyId::CaldrinMs2MinMz, Reader::Double, 130.0},
    Row{PropertyId::CaldrinMs2Resolution, Reader::Double, 25000.0},
    Row{PropertyId::CaldrinMs2SignalToNoise, Reader::Double, 5.0},
    Row{PropertyId::CaldrinMzTolerance, Reader::Double, 10.0},
    Row{PropertyId::CaldrinOutputFdr, Reader::ListIndex, 2},
    Row{PropertyId::CaldrinReportFragments, Reader::Bool, false},
    Row{PropertyId::CaldrinRetentionTimeCalibration, Reader::Bool, true},
    Row{PropertyId::CaldrinScoreCutoff, Reader::Double, 0.0},
    Row{PropertyId::CaldrinUseFdrCutoff, Reader::Bool, true},
    Row{PropertyId::IsotopeModel, Reader::ListIndex, 0},
    Row{PropertyId::Isotope, Reader::Object, table<&IsotopeUtils::defaultRowNode>},
    Row{PropertyId::LockMass, Reader::ListText, "1221.990637"},
    Row{PropertyId::MassList, Reader::Object, kNone},
    Row{PropertyId::MassSmoothingSigma, Reader::Double, "1"},
    Row{PropertyId::MassSpacing, Reader::Double, "0.5"},
    Row{PropertyId::MassTable, Reader::Object, massTable},
    Row{PropertyId::MassWindow, Reader::Double, "250"},
    Row{PropertyId::MatchBetweenRuns, Reader::NonNegativeInt, 0},
    Row{PropertyId::MatchTolerance, Reader::Object, table<&MassUtils::defaultMatchToleranceRowNode>},
    Row{PropertyId::MatchTimeTolerance, Reader::Double, 0.0},
    Row{PropertyId::MaxLadderError, Reader::Double, "10"},
    Row{PropertyId::MaxMz, Reader::Double, 9000},
    Row{PropertyId::MaxNumberOfMasses, Reader::Int, "10"},
    Row{PropertyId::MergeKarvonResults, Reader::Bool, false},
    Row{PropertyId::MinMz, Reader::Double, 600},
    Row{PropertyId::MinPeakDistance, Reader::Int, "15"},
    Row{PropertyId::MinRelativeIntensity, Reader::ListText, "0"},
    Row{PropertyId::InSilicoModifications, Reader::Object, kNone},
    Row{PropertyId::MulticoreMode, Reader::ListIndex, normalMulticoreMode},
    Row{PropertyId::MzSmoothingSigma, Reader::Double, "0.02"},
    Row{PropertyId::MzSpacing, Reader::Double, "0.04"},
    Row{PropertyId::NeutralLossMass, Reader::Double, 18},
    Row{PropertyId::OligoImpurities, Reader::Object, objectOf<OligoImpurities>},
    Row{PropertyId::OligoOptions, Reader::Object, kNone},
    Row{PropertyId::OligoMolecules, Reader::Object, kNone},
    Row{PropertyId::PdfReportTemplate, Reader::Resource, emptyReference},
    Row{PropertyId::PeptideMassMax, Reader::Object, partsPerMillion<9000>},
    Row{PropertyId::PeptideMassMin, Reader::Object, partsPerMillion<300>},
    Row{PropertyId::PeptideModificationFilter, Reader::String, ""},
    Row{PropertyId::PeptideModificationFilterMode, Reader::NonNegativeInt, 0},
    Row{PropertyId::PeptideIdentificationScore, Reader::Double, 50.0},
    Row{PropertyId::PeptideLengthMin, Reader::Int, 6},
    Row{PropertyId::PeptideLengthMax, Reader::Int, 32},
    Row{PropertyId::PeptideMissedCleavages, Reader::Int, 2},
    Row{PropertyId::PeptideNormalization, Reader::ListText, "None"},
    Row{PropertyId::PeptideOccurrence, Reader::Double, 80.0},
    Row{PropertyId::PeptideReplicateCount, Reader::Int, 1},
    Row{PropertyId::PeptideSeparateCharges, Reader::Bool, false},
    Row{PropertyId::PeptideVariableModificationsMax, Reader::Int, 1},
    Row{PropertyId::PreviewArgMod, Reader::ListText, ""},
    Row{PropertyId::PreviewCTermMod, Reader::ListText, ""},
    Row{PropertyId::PreviewDigestSide, Reader::NonNegativeInt, 0},
    Row{PropertyId::PreviewDigestLetters, Reader::String, "RK"},
    Row{PropertyId::PreviewCysMod, Reader::ListText, "(unknown)"},
    Row{PropertyId::PreviewWildcard, Reader::Bool, false},
    Row{PropertyId::PreviewFragType, Reader::NonNegativeInt, 0},
    Row{PropertyId::PreviewDigestType, Reader::NonNegativeInt, 2},
    Row{PropertyId::PreviewLysMod, Reader::ListText, ""},
    Row{PropertyId::PreviewNTermMod, Reader::ListText, ""},
    Row{PropertyId::PreviewPhosphoSearch, Reader::Bool, false},
    Row{PropertyId::PreviewAllCharges, Reader::Bool, false},
    Row{PropertyId::Proteins, Reader::Object, kNone},
    Row{PropertyId::QuantifyModifiedPeptides, Reader::Bool, true},
    Row{PropertyId::QuantifySharedPeptides, Reader::Bool, true},
    Row{PropertyId::RejectContaminants, Reader::Bool, true},
    Row{PropertyId::ReportedPeptideCount, Reader::Int, 3},
    Row{PropertyId::ReportedPeptideSelection, Reader::NonNegativeInt, 0},
    Row{PropertyId::ReportProteinGroups, Reader::Bool, true},
    Row{PropertyId::ReproducibilityLimit, Reader::Double, 30},
    Row{PropertyId::RetentionTimeAlignment, Reader::Bool, true},
    Row{PropertyId::RetentionTimeOutlierRemoval, Reader::Bool, true},
    Row{PropertyId::RelevantProteins, Reader::ListIndex, 2},
    Row{PropertyId::ReportConfiguration, Reader::Resource, emptyReference},
    Row{PropertyId::SamplesTable, Reader::Object, kNone},
    Row{PropertyId::Samples, Reader::String, ""},
    Row{PropertyId::SamplesProteins, Reader::Object, kNone},
    Row{PropertyId::SequenceDatabases, Reader::Object, kNone},
    Row{PropertyId::SkipFailedSamples, Reader::Bool, true},
    Row{PropertyId::StudyName, Reader::String, ""},
    Row{PropertyId::TheoreticalPeptides, Reader::Object, kNone},
    Row{PropertyId::TicBaselineMaxAngle, Reader::Double, 179.9},
    Row{PropertyId::TicBaselineMaxLimit, Reader::Int, 0},
    Row{PropertyId::TicBaselineMethod, Reader::ListIndex, 1},
    Row{PropertyId::TicBaselineMinAngle, Reader::Double, 178.0},
    Row{PropertyId::TicBaselineMinLimit, Reader::Int, 0},
    Row{PropertyId::TicBaselinePushLimit, Reader::Int, 20},
    Row{PropertyId::TicBaselinePushTolerance, Reader::Percent, 0.005},
    Row{PropertyId::TicIntervalTimeMin, Reader::Double, 0.5},
    Row{PropertyId::TicPeakMethod, Reader::ListIndex, 1},
    Row{PropertyId::TicPeakTolMax, Reader::Percent, 0.005},
    Row{PropertyId::TicPeakTolMin, Reader::Percent, 0.0005},
    Row{PropertyId::TicSmoothSigma, Reader::Double, 0.1},
    Row{PropertyId::TicSmoothSigmaBaseline, Reader::Double, 1.5},
    Row{PropertyId::ToleranceDetermination, Reader::ListIndex, 0},
    Row{PropertyId::Tolerances, Reader::Object, objectOf<MassTolerances>},
    Row{PropertyId::TotalCommonMax, Reader::Int, 2},
    Row{PropertyId::TotalRareMax, Reader::Int, 1},
    Row{PropertyId::TracePlot, Reader::Object, kNone},
    Row{PropertyId::UiFilter, Reader::Resource, emptyReference},
    Row{PropertyId::UiLayout, Reader::Resource, emptyReference},
    Row{PropertyId::UvBaselineMaxAngle, Reader::Double, 179.9},
    Row{PropertyId::UvBaselineMaxLimit, Reader::Int, 0},
    Row{PropertyId::UvBaselineMethod, Reader::ListIndex, 1},
    Row{PropertyId::UvBaselineMinAngle, Reader::Double, 178.0},
    Row{PropertyId::UvBaselineMinLimit, Reader::Int, 0},
    Row{PropertyId::UvBaselinePushLimit, Reader::Int, 20},
    Row{PropertyId::UvBaselinePushTolerance, Reader::Percent, 0.005},
    Row{PropertyId::UvIntervalTimeMin, Reader::Double, 0.5},
    Row{PropertyId::UvPeakMethod, Reader::ListIndex, 1},
    Row{PropertyId::UvPeakTolMax, Reader::Percent, 0.0005},
    Row{PropertyId::UvPeakTolMin, Reader::Percent, 0.00005},
    Row{PropertyId::UvSmoothSigma, Reader::Double, 0.05},
    Row{PropertyId::UvSmoothSigmaBaseline, Reader::Double, 1.5},
    Row{PropertyId::XicExtractionWindow, Reader::Double, 2},
    Row{PropertyId::XicMode, Reader::ListText, fastXicMode},
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
