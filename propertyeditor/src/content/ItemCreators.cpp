#include "ItemCreators.h"

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

#include <array>
#include <type_traits>

namespace orv::PropertyEditor {

namespace {

template<typename Item>
std::unique_ptr<BaseItem> create([[maybe_unused]] BaseItemType type)
{
    if constexpr (std::is_constructible_v<Item, BaseItemType>)
        return std::make_unique<Item>(type);
    else
        return std::make_unique<Item>();
}

struct Row
{
    BaseItemType type;
    std::unique_ptr<BaseItem> (*create)(BaseItemType type);
};

// Cells are held whole until a class understands them, so that no document loses one.
constexpr std::array kRows = {
    Row{BaseItemType::Unknown, create<KeyValueItem>},
    Row{BaseItemType::Senthia, create<KeyValueItem>},
    Row{BaseItemType::Dravik, create<KeyValueItem>},
    Row{BaseItemType::Karvon, create<KeyValueItem>},
    Row{BaseItemType::Database, create<SequenceDatabasesTableItem>},
    Row{BaseItemType::DetachedGlycans, create<DetachedGlycanTableItem>},
    Row{BaseItemType::Disulfide, create<UnsupportedItem>},
    Row{BaseItemType::GlycanOptions, create<GlycanOptionsItem>},
    Row{BaseItemType::Intact, create<KeyValueItem>},
    Row{BaseItemType::IntactOptions, create<IntactOptionsTableItem>},
    Row{BaseItemType::Oligo, create<KeyValueItem>},
    Row{BaseItemType::OligoOptions, create<OligoOptionsTableItem>},
    Row{BaseItemType::OligoMasses, create<OligoMassesTableItem>},
    Row{BaseItemType::Isotope, create<IsotopeTableItem>},
    Row{BaseItemType::Masses, create<MassesTableItem>},
    Row{BaseItemType::MultiDocReport, create<KeyValueItem>},
    Row{BaseItemType::Proteins, create<ProteinsTableItem>},
    Row{BaseItemType::Preview, create<KeyValueItem>},
    Row{BaseItemType::IntactProteins, create<IntactProteinsTableItem>},
    Row{BaseItemType::OligoMolecules, create<OligoProteinsTableItem>},
    Row{BaseItemType::Ostrale, create<KeyValueItem>},
    Row{BaseItemType::Samples, create<SamplesTableItem>},
    Row{BaseItemType::SamplesProteins, create<UnsupportedItem>},
    Row{BaseItemType::Trenq, create<KeyValueItem>},
    Row{BaseItemType::TrenqPreview, create<KeyValueItem>},
    Row{BaseItemType::CaldrinDIA, create<KeyValueItem>},
};

constexpr bool rowsFollowTheNumbers()
{
    for (size_t i = 0; i < kRows.size(); ++i) {
        if (size_t(kRows[i].type) != i)
            return false;
    }
    return true;
}
static_assert(rowsFollowTheNumbers(), "the table is read by index");

} // namespace

std::unique_ptr<BaseItem> createItem(BaseItemType type)
{
    const auto index = size_t(type);
    return index < kRows.size() ? kRows[index].create(type) : nullptr;
}

} // namespace orv::PropertyEditor
