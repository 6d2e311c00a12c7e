#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>

#include <algorithm>
#include <array>

namespace orv {

namespace {

using Editor = PropertySetCreator::Editor;

struct EditorRow
{
    PropertyId id;
    Editor editor;
};

// Sorted by number, as the look-up halves it.
constexpr std::array kEditors = {
    EditorRow{PropertyId::KarvonFragmentMassError, Editor::ValueUnit},
    EditorRow{PropertyId::KarvonFragmentMassError2, Editor::ValueUnit},
    EditorRow{PropertyId::KarvonGlycanText, Editor::Glycans},
    EditorRow{PropertyId::KarvonInclusionFilter, Editor::InclusionList},
    EditorRow{PropertyId::KarvonModText, Editor::Modifications},
    EditorRow{PropertyId::KarvonPeakFilterSelected, Editor::PeakFilter},
    EditorRow{PropertyId::KarvonPrecursorMassError, Editor::ValueUnit},
    EditorRow{PropertyId::DeconvolvedMassPlot, Editor::DeconvolvedMassPlot},
    EditorRow{PropertyId::DetachedGlycans, Editor::DetachedGlycans},
    EditorRow{PropertyId::Disulfide, Editor::Disulfide},
    EditorRow{PropertyId::GlycanOptions, Editor::GlycanOptions},
    EditorRow{PropertyId::InSilicoGlycans, Editor::Glycans},
    EditorRow{PropertyId::IntactOptions, Editor::IntactOptions},
    EditorRow{PropertyId::Isotope, Editor::Isotope},
    EditorRow{PropertyId::MassList, Editor::Masses},
    EditorRow{PropertyId::InSilicoModifications, Editor::Modifications},
    EditorRow{PropertyId::OligoOptions, Editor::OligoOptions},
    EditorRow{PropertyId::PeptideMassMax, Editor::ValueUnit},
    EditorRow{PropertyId::PeptideMassMin, Editor::ValueUnit},
    EditorRow{PropertyId::Proteins, Editor::Proteins},
    EditorRow{PropertyId::TheoreticalPeptides, Editor::TheoreticalTable},
    EditorRow{PropertyId::TracePlot, Editor::TracePlot},
};

} // namespace

PropertySetCreator::Editor PropertySetCreator::editorForProperty(PropertyId id)
{
    static_assert(std::ranges::is_sorted(kEditors, {}, &EditorRow::id));
    const auto *const found = std::ranges::lower_bound(kEditors, id, {}, &EditorRow::id);
    return found != kEditors.end() && found->id == id ? found->editor : Editor::Unset;
}

const QMap<PropertyId, QStringList> &PropertySetCreator::listPropertiesData()
{
    return UserVisibleListConverter::listItemsMap();
}

bool PropertySetCreator::isStringSerializableList(PropertyId id)
{
    return UserVisibleListConverter::isStringSerializableList(id);
}

} // namespace orv
