#include "orv/propertyeditor/AllowedProperties.h"

#include <QHash>

#include <array>
#include <span>

namespace orv {

namespace {

/// Neighbours in the catalogue mostly belong together, so the sets are told as stretches of it.
struct Range
{
    constexpr explicit Range(PropertyId only)
        : Range(only, only)
    {}
    constexpr Range(PropertyId firstId, PropertyId lastId)
        : first(firstId)
        , last(lastId)
    {}

    PropertyId first;
    PropertyId last;
};

struct AllowedRow
{
    BaseItemType type;
    std::span<const Range> ranges;
};

// clang-format off
// The engine's own settings lie in one stretch; it takes glycans and modifications as texts, as the search
// does.
constexpr std::array kCaldrinDIA = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::KarvonGlycanText},
    Range{PropertyId::KarvonModText},
    Range{PropertyId::CaldrinAcquisitionScheme, PropertyId::CaldrinUseFdrCutoff},
    Range{PropertyId::MulticoreMode},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::StudyName},
};

// Released molecules: features of the samples, in-silico molecules of a digest or a file, and the peaks of
// three kinds of traces.
constexpr std::array kDravik = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::BpiBaselineMaxAngle, PropertyId::BpiSmoothSigmaBaseline},
    Range{PropertyId::CreateXicCache},
    Range{PropertyId::Digestion},
    Range{PropertyId::InSilicoFixedModification},
    Range{PropertyId::EnableInSilico},
    Range{PropertyId::FeatureFinderAbundanceMin, PropertyId::FeatureFinderWidthMin},
    Range{PropertyId::InSilicoGlycans, PropertyId::InSilicoPeptidesFile},
    Range{PropertyId::IntegrationDropToBaseline, PropertyId::InterestTimeStart},
    Range{PropertyId::IsotopeModel},
    Range{PropertyId::LockMass, PropertyId::MassList},
    Range{PropertyId::InSilicoModifications, PropertyId::MulticoreMode},
    Range{PropertyId::PeptideMassMax, PropertyId::PeptideMassMin},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::TicBaselineMaxAngle, PropertyId::ToleranceDetermination},
    Range{PropertyId::TracePlot, PropertyId::UvSmoothSigmaBaseline},
};

// Deconvolution of whole molecules, the digest that explains their masses, and the peaks of three kinds of
// traces.
constexpr std::array kIntact = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::AutoFindMasses, PropertyId::BpiSmoothSigmaBaseline},
    Range{PropertyId::ChargeMax, PropertyId::ChargeSpacing},
    Range{PropertyId::DeconvolutionMethod, PropertyId::DeconvolvedMassPlot},
    Range{PropertyId::Digestion},
    Range{PropertyId::InSilicoFixedModification},
    Range{PropertyId::EnableInSilico},
    Range{PropertyId::InSilicoGlycans},
    Range{PropertyId::InSilicoMode},
    Range{PropertyId::InSilicoPeptidesFile},
    Range{PropertyId::InterestTimeEnd, PropertyId::InterestTimeStart},
    Range{PropertyId::LockMass, PropertyId::MassSpacing},
    Range{PropertyId::MassWindow},
    Range{PropertyId::MatchTimeTolerance, PropertyId::MaxNumberOfMasses},
    Range{PropertyId::MinMz, PropertyId::NeutralLossMass},
    Range{PropertyId::PeptideMassMax, PropertyId::PeptideMassMin},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::TicBaselineMaxAngle, PropertyId::TicSmoothSigmaBaseline},
    Range{PropertyId::TracePlot, PropertyId::UvSmoothSigmaBaseline},
};

// The widest set, as its parameter file has a key for nearly every one: the search itself and its reports.
constexpr std::array kKarvon = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::KarvonApplyChargesIndex, PropertyId::KarvonXlinkDetails},
    Range{PropertyId::DatabaseAddContaminants, PropertyId::DatabaseAddDecoys},
    Range{PropertyId::ExportSearchReport},
    Range{PropertyId::MergeKarvonResults},
    Range{PropertyId::MulticoreMode},
    Range{PropertyId::PdfReportTemplate},
    Range{PropertyId::RelevantProteins, PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::SkipFailedSamples, PropertyId::StudyName},
    Range{PropertyId::TotalCommonMax, PropertyId::TotalRareMax},
};

// Deconvolution as for whole molecules, without proteins: nothing is digested and there are no traces to
// pick.
constexpr std::array kOligo = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::AutoFindMasses, PropertyId::BaselineRadius},
    Range{PropertyId::ChargeMax, PropertyId::ChargeSpacing},
    Range{PropertyId::DeconvolutionMethod, PropertyId::DeconvolvedMassPlot},
    Range{PropertyId::LockMass, PropertyId::MassSpacing},
    Range{PropertyId::MassWindow},
    Range{PropertyId::MatchTimeTolerance, PropertyId::MaxNumberOfMasses},
    Range{PropertyId::MinMz, PropertyId::MinRelativeIntensity},
    Range{PropertyId::MulticoreMode, PropertyId::NeutralLossMass},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::TracePlot, PropertyId::UiLayout},
};

// De novo sequencing of antibodies; digestion and mass errors are those of the search.
constexpr std::array kOstrale = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::KarvonDigestLetters, PropertyId::KarvonDigestType},
    Range{PropertyId::KarvonFragmentMassError},
    Range{PropertyId::KarvonPrecursorMassError},
    Range{PropertyId::DeNovoAntibodyTemplates, PropertyId::DeNovoTerminalTag},
    Range{PropertyId::MulticoreMode},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::SkipFailedSamples, PropertyId::StudyName},
};

// A first look at the data before a search: the engine's keys, cores, samples and free text.
constexpr std::array kPreview = {
    Range{PropertyId::AdvancedConfiguration},
    Range{PropertyId::MulticoreMode},
    Range{PropertyId::PreviewArgMod, PropertyId::PreviewAllCharges},
    Range{PropertyId::Samples},
};

// Peptide maps: centroiding, digestion, features of the samples, traces by mass, in-silico peptides and the
// reports; glycans as a text of their own or with the digest.
constexpr std::array kSenthia = {
    Range{PropertyId::AdvancedConfiguration, PropertyId::AlignmentTolerance},
    Range{PropertyId::KarvonGlycanText},
    Range{PropertyId::CentroidCountMax, PropertyId::CentroidWidthUnit},
    Range{PropertyId::CreateXicCache},
    Range{PropertyId::DeconvolvedMassPlot},
    Range{PropertyId::Digestion},
    Range{PropertyId::InSilicoFixedModification, PropertyId::ExportImages},
    Range{PropertyId::FastXicBlockScans, PropertyId::FeatureFinderWidthMin},
    Range{PropertyId::InSilicoGlycans, PropertyId::InSilicoMode},
    Range{PropertyId::InSilicoPeptidesFile},
    Range{PropertyId::IntegrationDropToBaseline, PropertyId::IntegrationValleyThreshold},
    Range{PropertyId::IsotopeModel},
    Range{PropertyId::InSilicoModifications, PropertyId::MulticoreMode},
    Range{PropertyId::PdfReportTemplate, PropertyId::PeptideMassMin},
    Range{PropertyId::PeptideLengthMin, PropertyId::PeptideMissedCleavages},
    Range{PropertyId::PeptideVariableModificationsMax},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::SkipFailedSamples, PropertyId::TheoreticalPeptides},
    Range{PropertyId::ToleranceDetermination},
    Range{PropertyId::TracePlot, PropertyId::UiLayout},
    Range{PropertyId::XicExtractionWindow, PropertyId::XicMode},
};

// Quantification across samples: what peptide maps have, and buckets, matches between runs and filters of
// what is reported.
constexpr std::array kTrenq = {
    Range{PropertyId::AdvancedConfiguration, PropertyId::AlignmentWindow},
    Range{PropertyId::BucketAlignmentMode, PropertyId::BucketTimeLimit},
    Range{PropertyId::CentroidCountMax, PropertyId::CentroidWidthUnit},
    Range{PropertyId::CreateXicCache},
    Range{PropertyId::Digestion},
    Range{PropertyId::InSilicoFixedModification},
    Range{PropertyId::EnableInSilico},
    Range{PropertyId::FastXicBlockScans, PropertyId::FillMissingValues},
    Range{PropertyId::InSilicoGlycans, PropertyId::InSilicoMode},
    Range{PropertyId::InSilicoPeptidesFile},
    Range{PropertyId::IntegrationDropToBaseline, PropertyId::IntegrationValleyThreshold},
    Range{PropertyId::MatchBetweenRuns},
    Range{PropertyId::InSilicoModifications, PropertyId::MulticoreMode},
    Range{PropertyId::PdfReportTemplate, PropertyId::PeptideVariableModificationsMax},
    Range{PropertyId::QuantifyModifiedPeptides, PropertyId::RetentionTimeOutlierRemoval},
    Range{PropertyId::ReportConfiguration},
    Range{PropertyId::Samples},
    Range{PropertyId::SkipFailedSamples, PropertyId::TheoreticalPeptides},
    Range{PropertyId::ToleranceDetermination},
    Range{PropertyId::UiFilter, PropertyId::UiLayout},
    Range{PropertyId::XicExtractionWindow, PropertyId::XicMode},
};

// Cells that are a table hold just that: one property, which carries the whole table, and what belongs to it.
constexpr std::array kDatabase = {Range{PropertyId::SequenceDatabases}};
constexpr std::array kDetachedGlycans = {Range{PropertyId::DetachedGlycans}};
constexpr std::array kDisulfide = {Range{PropertyId::Disulfide}};
constexpr std::array kGlycanOptions = {Range{PropertyId::GlycanOptions}};
constexpr std::array kIntactOptions = {Range{PropertyId::IntactOptions}};
constexpr std::array kIntactProteins = {Range{PropertyId::IntactProteins}};
constexpr std::array kIsotope = {Range{PropertyId::Isotope}};
constexpr std::array kMasses = {Range{PropertyId::MassTable}, Range{PropertyId::MatchTolerance}};
constexpr std::array kMultiDocReport = {Range{PropertyId::ReportConfiguration}};
constexpr std::array kOligoMasses = {
    Range{PropertyId::MassTable},
    Range{PropertyId::MatchTolerance},
    Range{PropertyId::OligoImpurities},
    Range{PropertyId::Tolerances},
};
constexpr std::array kOligoMolecules = {Range{PropertyId::OligoMolecules}};
constexpr std::array kOligoOptions = {Range{PropertyId::OligoOptions}};
constexpr std::array kProteins = {Range{PropertyId::Proteins}};
constexpr std::array kSamplesRange = {Range{PropertyId::SamplesTable}};
constexpr std::array kSamplesProteins = {Range{PropertyId::SamplesProteins}};

// One row per type of cell, in alphabetical order. Both previews run the same engine.
constexpr std::array kAllowedRows = {
    AllowedRow{BaseItemType::CaldrinDIA, kCaldrinDIA},
    AllowedRow{BaseItemType::Database, kDatabase},
    AllowedRow{BaseItemType::DetachedGlycans, kDetachedGlycans},
    AllowedRow{BaseItemType::Disulfide, kDisulfide},
    AllowedRow{BaseItemType::Dravik, kDravik},
    AllowedRow{BaseItemType::GlycanOptions, kGlycanOptions},
    AllowedRow{BaseItemType::Intact, kIntact},
    AllowedRow{BaseItemType::IntactOptions, kIntactOptions},
    AllowedRow{BaseItemType::IntactProteins, kIntactProteins},
    AllowedRow{BaseItemType::Isotope, kIsotope},
    AllowedRow{BaseItemType::Karvon, kKarvon},
    AllowedRow{BaseItemType::Masses, kMasses},
    AllowedRow{BaseItemType::MultiDocReport, kMultiDocReport},
    AllowedRow{BaseItemType::Oligo, kOligo},
    AllowedRow{BaseItemType::OligoMasses, kOligoMasses},
    AllowedRow{BaseItemType::OligoMolecules, kOligoMolecules},
    AllowedRow{BaseItemType::OligoOptions, kOligoOptions},
    AllowedRow{BaseItemType::Ostrale, kOstrale},
    AllowedRow{BaseItemType::Preview, kPreview},
    AllowedRow{BaseItemType::Proteins, kProteins},
    AllowedRow{BaseItemType::Samples, kSamplesRange},
    AllowedRow{BaseItemType::SamplesProteins, kSamplesProteins},
    AllowedRow{BaseItemType::Senthia, kSenthia},
    AllowedRow{BaseItemType::Trenq, kTrenq},
    AllowedRow{BaseItemType::TrenqPreview, kPreview},
};
// clang-format on

using SetsByType = QHash<BaseItemType, QSet<PropertyId>>;

SetsByType makeSets()
{
    SetsByType sets;
    for (const AllowedRow &row : kAllowedRows) {
        QSet<PropertyId> &set = sets[row.type];
        for (const Range &range : row.ranges) {
            for (int id = range.first; id <= range.last; ++id)
                set.insert(PropertyId(id));
        }
    }
    return sets;
}

} // namespace

const QSet<PropertyId> &allowedProperties(BaseItemType type)
{
    static const SetsByType sets = makeSets();
    static const QSet<PropertyId> none;
    const auto found = sets.constFind(type);
    return found == sets.cend() ? none : *found;
}

} // namespace orv
