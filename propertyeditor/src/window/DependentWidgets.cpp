#include "orv/propertyeditor/window/DependentWidgets.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/grid/SamplesProteinsTableItem.h>
#include <orv/widgets/ExtendedTreeView.h>
#include <orv/widgets/GlycanOptionsWidget.h>
#include <orv/widgets/GlycanTableWidget.h>
#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinInputWidgetBase.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/ProteinTreeTable.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <algorithm>

namespace orv {

namespace {

constexpr BaseItemType kDocumentTypes[] = {
    BaseItemType::Senthia, BaseItemType::Dravik,         BaseItemType::Karvon,  BaseItemType::Intact,
    BaseItemType::Oligo,   BaseItemType::MultiDocReport, BaseItemType::Preview, BaseItemType::Ostrale,
    BaseItemType::Trenq,   BaseItemType::TrenqPreview,
};

/// What proteins are shown for.
struct ProteinUse
{
    bool isDigestedOligo;
    bool isIntactOrOligo;
    bool isAnnotated;
};

void updateTable(ProteinTableWidget *shown, const ProteinUse &use)
{
    const QPointer<ProteinTableWidget> table = shown;
    table->setAsDigestedOligoProject(use.isDigestedOligo);
    table->setAverageMassVisible(use.isIntactOrOligo);
    table->proteinTreeTable()->setShowAverageMass(use.isIntactOrOligo);
    table->setFastaCheckerRule(use.isIntactOrOligo);
    table->adjustHeaderSize();
    table->updateColumnsVisibility();
    table->getExtendedTreeView()->refreshDelegates();
    if (table)
        Q_EMIT table->proteinsChanged();
}

void updateProteins(ProteinOptionsWidget *shown, const ProteinUse &use)
{
    const QPointer<ProteinOptionsWidget> widget = shown;
    if (ProteinTableWidget *table = widget->proteinTableWidget()) {
        updateTable(table, use);
        if (ProteinAnnotationWidget *annotations = widget ? widget->proteinAnnotationWidget() : nullptr)
            annotations->setAsDigestedOligoProject(use.isDigestedOligo);
    }
    if (widget)
        widget->setProteinAnnotationWidgetVisible(use.isAnnotated);
}

/// Calls \a visit with each item that is in \a grid at the beginning and still is when its turn comes.
template<class Visit>
void forEachItem(const QPointer<PropertyGridWidget> &grid, const Visit &visit)
{
    const QList<IGridItem *> items = grid ? grid->items() : QList<IGridItem *>();
    for (IGridItem *item : items) {
        if (grid && grid->items().contains(item))
            visit(*item);
    }
}

void updateGrid(const QPointer<PropertyGridWidget> &grid, const ProteinUse &use,
                const DependentWidgets::ImportChecks &checks)
{
    forEachItem(grid, [](IGridItem &item) { item.beginPresetLoading(); });
    forEachItem(grid, [&use](IGridItem &item) {
        if (item.type() != BaseItemType::Proteins)
            return;
        if (auto *proteins = qobject_cast<ProteinOptionsWidget *>(item.widget()))
            updateProteins(proteins, use);
    });
    forEachItem(grid, [&use, &checks](IGridItem &item) {
        if (item.type() != BaseItemType::SamplesProteins || !use.isIntactOrOligo)
            return;
        if (auto *table = dynamic_cast<SamplesProteinsTableItem *>(&item)) {
            table->setCsvImportExtraPreFlightCheck(checks.preFlight);
            table->setCsvImportExtraPostFlightCheck(checks.postFlight);
        }
    });
    forEachItem(grid, [](IGridItem &item) { item.endPresetLoading(); });
}

void find(IGridItem &item, DependentWidgets::Found *found)
{
    QWidget *widget = item.widget();
    if (auto *samples = qobject_cast<SamplesAndTracesInputWidget *>(widget)) {
        if (item.type() == BaseItemType::Samples)
            found->samples = samples;
    } else if (auto *proteins = qobject_cast<ProteinInputWidgetBase *>(widget)) {
        if (item.type() == BaseItemType::IntactProteins)
            found->intactProteins = proteins;
    } else if (auto *options = qobject_cast<GlycanOptionsWidget *>(widget)) {
        found->glycanOptions = options;
    } else if (auto *glycans = qobject_cast<GlycanTableWidget *>(widget)) {
        found->glycans.append(glycans);
    }
}

} // namespace

QList<BaseItemType> DependentWidgets::documents(const Grids &grids)
{
    QList<BaseItemType> documents;
    for (const PropertyGridWidget *grid : grids) {
        for (const IGridItem *item : grid ? grid->items() : QList<IGridItem *>()) {
            if (std::find(std::begin(kDocumentTypes), std::end(kDocumentTypes), item->type()) !=
                std::end(kDocumentTypes))
                documents.append(item->type());
        }
    }
    return documents;
}

DependentWidgets::Found DependentWidgets::update(const Grids &grids, WorkflowType workflowType,
                                                 const ImportChecks &checks)
{
    const QList<BaseItemType> types = documents(grids);
    const ProteinUse use{workflowType == WorkflowType::DigestedOligo,
                         types.contains(BaseItemType::Intact) || types.contains(BaseItemType::Oligo),
                         types.contains(BaseItemType::Senthia)};
    for (const QPointer<PropertyGridWidget> &grid : grids)
        updateGrid(grid, use, checks);
    const QList<SamplesInput::Mode> modes = PropertyEditorUtils::modesFromPropertyTypes(types);
    Found found;
    for (const QPointer<PropertyGridWidget> &grid : grids) {
        forEachItem(grid, [&found, &modes](IGridItem &item) {
            find(item, &found);
            auto *samples = qobject_cast<SamplesAndTracesInputWidget *>(item.widget());
            if (samples && item.type() == BaseItemType::Samples)
                samples->setModes(modes);
        });
    }
    return found;
}

} // namespace orv
