#include "orv/propertyeditor/content/CellTypes.h"

#include <orv/propertyeditor/content/DetachedGlycanTableItem.h>
#include <orv/propertyeditor/content/GlycanOptionsItem.h>
#include <orv/propertyeditor/content/IntactOptionsTableItem.h>
#include <orv/propertyeditor/content/IntactProteinsTableItem.h>
#include <orv/propertyeditor/content/IsotopeTableItem.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/MassesTableItem.h>
#include <orv/propertyeditor/content/OligoMassesTableItem.h>
#include <orv/propertyeditor/content/OligoOptionsTableItem.h>
#include <orv/propertyeditor/content/OligoProteinsTableItem.h>
#include <orv/propertyeditor/content/ProteinsTableItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/content/SequenceDatabasesTableItem.h>
#include <orv/propertyeditor/content/UnsupportedItem.h>

#include <algorithm>
#include <array>
#include <type_traits>

namespace orv::PropertyEditor {

namespace {

using App = ApplicationType;
using Document = CellType::Document;
using Mode = SamplesInput::Mode;
using Type = ORV_QEnumsBaseItemType;

template<typename Item>
std::unique_ptr<BaseItem> createCell([[maybe_unused]] BaseItemType type)
{
    if constexpr (std::is_constructible_v<Item, BaseItemType>)
        return std::make_unique<Item>(type);
    else
        return std::make_unique<Item>();
}

/// A cell of a table, and of what is only passed on.
template<typename Item>
constexpr CellType table(BaseItemType type, ApplicationTypes keptBy)
{
    return {type, createCell<Item>, false, {}, App::None, keptBy};
}

constexpr CellType settings(BaseItemType type, std::optional<Document> document = {}, App expert = App::None,
                            ApplicationTypes keptBy = {})
{
    return {type, createCell<KeyValueItem>, true, document, expert, keptBy};
}

constexpr ApplicationTypes kEveryAnalysis = {App::Senthia, App::Karvon,         App::Dravik,
                                             App::Intact,  App::Oligo,          App::Ostrale,
                                             App::Preview, App::MultiDocReport, App::Trenq};
constexpr ApplicationTypes kWithProteins = {App::Senthia, App::Karvon, App::Dravik,
                                            App::Intact,  App::Oligo,  App::Ostrale};

// Unknown cells are settings that are kept as they stand until somebody changes them, and retired types are
// always kept whole.
// clang-format off
constexpr std::array kCellTypes = {
    settings(Type::Unknown),
    settings(Type::Senthia, Document{2, MirelFileTypes::SENTHIA, Mode::Senthia}, App::Senthia, {App::Senthia}),
    settings(Type::Dravik, Document{1, MirelFileTypes::DRAVIK, Mode::Dravik}, App::Dravik, {App::Dravik}),
    settings(Type::Karvon, Document{3, MirelFileTypes::KARVON, Mode::Karvon}, App::KarvonSearch, {App::Karvon}),
    table<SequenceDatabasesTableItem>(Type::Database, {App::Senthia, App::Preview, App::Trenq}),
    table<DetachedGlycanTableItem>(Type::DetachedGlycans, {App::Dravik}),
    table<UnsupportedItem>(Type::Disulfide, {App::Senthia, App::Trenq}),
    table<GlycanOptionsItem>(Type::GlycanOptions, {App::Dravik}),
    settings(Type::Intact, Document{5, MirelFileTypes::INTACT, Mode::Intact}, App::Intact, {App::Intact}),
    table<IntactOptionsTableItem>(Type::IntactOptions, {App::Intact, App::Oligo}),
    settings(Type::Oligo, Document{6, MirelFileTypes::OLIGO, Mode::Oligo}, App::Oligo, {App::Oligo}),
    table<OligoOptionsTableItem>(Type::OligoOptions, {}),
    table<OligoMassesTableItem>(Type::OligoMasses, {}),
    table<IsotopeTableItem>(Type::Isotope, {App::Senthia, App::Trenq}),
    table<MassesTableItem>(Type::Masses, {App::Intact, App::Oligo}),
    settings(Type::MultiDocReport, Document{8, MirelFileTypes::MULTIDOCREPORT, Mode::MultiDocReport}, App::None,
             {App::MultiDocReport}),
    table<ProteinsTableItem>(Type::Proteins, kWithProteins),
    settings(Type::Preview, Document{4, FileTypes::ZIP, Mode::Preview}, App::Preview, {App::Preview}),
    table<IntactProteinsTableItem>(Type::IntactProteins, {App::Intact}),
    table<OligoProteinsTableItem>(Type::OligoMolecules, {App::Oligo}),
    settings(Type::Ostrale, Document{7, MirelFileTypes::OSTRALE, Mode::Ostrale}, App::Ostrale, {App::Ostrale}),
    table<SamplesTableItem>(Type::Samples, kEveryAnalysis),
    table<UnsupportedItem>(Type::SamplesProteins, {}),
    settings(Type::Trenq, Document{9, MirelFileTypes::TRENQ, Mode::Trenq}, App::Trenq, {App::Trenq}),
    settings(Type::TrenqPreview, Document{10, FileTypes::ZIP, Mode::Preview}, App::Preview, {App::Preview}),
    settings(Type::CaldrinDIA),
};
// clang-format on

constexpr bool rowsFollowTheNumbers()
{
    for (size_t i = 0; i < kCellTypes.size(); ++i) {
        if (size_t(kCellTypes[i].type) != i)
            return false;
    }
    return true;
}
static_assert(rowsFollowTheNumbers(), "the table is read by index");

} // namespace

const CellType *CellTypes::find(BaseItemType type)
{
    const auto index = size_t(type);
    return index < kCellTypes.size() ? &kCellTypes[index] : nullptr;
}

bool CellTypes::isDocument(BaseItemType type)
{
    const CellType *row = find(type);
    return row && row->document;
}

const QList<BaseItemType> &CellTypes::documents()
{
    static const QList<BaseItemType> types = [] {
        QList<BaseItemType> found;
        for (const CellType &row : kCellTypes) {
            if (row.document)
                found.append(row.type);
        }
        std::ranges::sort(found, {}, [](BaseItemType type) { return find(type)->document->rank; });
        return found;
    }();
    return types;
}

const QSet<BaseItemType> &CellTypes::projects()
{
    static const QSet<BaseItemType> types = [] {
        QSet<BaseItemType> found;
        for (const CellType &row : kCellTypes) {
            if (row.isProject())
                found.insert(row.type);
        }
        return found;
    }();
    return types;
}

QSet<BaseItemType> CellTypes::keptBy(ApplicationType application)
{
    QSet<BaseItemType> kept;
    for (const CellType &row : kCellTypes) {
        if (row.keptBy.contains(application))
            kept.insert(row.type);
    }
    return kept;
}

} // namespace orv::PropertyEditor
