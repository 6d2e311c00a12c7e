#include "orv/propertyeditor/editors/GridItemDialogs.h"

#include <orv/propertyeditor/grid/DisulfideItem.h>
#include <orv/propertyeditor/grid/GlycanOptionsItem.h>
#include <orv/propertyeditor/grid/GlycanTableItem.h>
#include <orv/propertyeditor/grid/IsotopeTableItem.h>
#include <orv/propertyeditor/grid/MassTableItem.h>
#include <orv/propertyeditor/grid/ProteinsTableItem.h>
#include <orv/propertyeditor/grid/TableItems.h>
#include <orv/widgets/MassTableWidget.h>

namespace orv {

namespace {

/// Items of the bus get none, so that they hear nothing.
constexpr GridCommunicationManager *kNoBus = nullptr;

} // namespace

ProteinsGenericDialog::ProteinsGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<ProteinsTableItem>(kNoBus), BaseItemType::Proteins, parent)
{}

MassesGenericDialog::MassesGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<MassTableItem>(kNoBus), BaseItemType::Masses, parent)
{
    if (auto *const masses = qobject_cast<MassTableWidget *>(item()->widget()))
        masses->setMassToleranceVisible(false);
}

IsotopeGenericDialog::IsotopeGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<IsotopeTableItem>(), BaseItemType::Isotope, parent)
{}

DisulfideGenericDialog::DisulfideGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<DisulfideItem>(kNoBus), BaseItemType::Disulfide, parent)
{}

DetachedGlycansGenericDialog::DetachedGlycansGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<GlycanTableItem>(kNoBus), BaseItemType::DetachedGlycans, parent)
{}

GlycanOptionsGenericDialog::GlycanOptionsGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<GlycanOptionsItem>(), BaseItemType::GlycanOptions, parent)
{}

IntactOptionsGenericDialog::IntactOptionsGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<IntactOptionsItem>(), BaseItemType::IntactOptions, parent)
{}

OligoOptionsGenericDialog::OligoOptionsGenericDialog(QWidget *parent)
    : GridItemDialog(std::make_unique<OligoOptionsItem>(), BaseItemType::OligoOptions, parent)
{}

} // namespace orv
