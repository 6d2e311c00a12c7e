#include "ComparedDocuments.h"
#include "ComparisonPanel.h"
#include "Comparison_p.h"
#include "SecondDocument.h"
#include "StatusLine.h"
#include "TakeOverText.h"
#include "orv/propertyeditor/workbench/DocumentHistory.h"
#include "settings/SettingJump.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <utility>

// What a person does with the differences.

namespace orv {

void Comparison::Private::takeOver()
{
    const QPointer<Comparison> self(q);
    if (m_window)
        m_window->commitTyping();
    if (!self || !m_window || !m_second || isTaking || m_panel->model()->checkedKeys().isEmpty())
        return;
    const DocumentState left = m_history->state();
    if (!self || !m_second)
        return;
    isTaking = true;
    const ComparisonModel &model = *m_panel->model();
    const QSet<QString> keys = model.checkedKeys();
    const TakeOverTexts texts{TakeOverText::ofStep(model, m_second->name),
                              TakeOverText::ofOutcome(model, m_second->name)};
    using Taken = Result<TakenOver>;
    m_work.run<TakenOver>(
        [left, second = m_second, keys](const auto &isCancelled) -> Taken {
            return TakenOver{left, ComparedDocuments::takenOver(left, second->state, keys, isCancelled)};
        },
        [this, texts](const Taken &taken) { finishTakingOver(taken, texts); });
    tell();
}

void Comparison::Private::finishTakingOver(const Result<TakenOver> &taken, const TakeOverTexts &texts)
{
    const QPointer<Comparison> self(q);
    const int number = m_number;
    isTaking = false;
    if (taken.hasError()) {
        fail(tr("Nothing could be taken over from %1.").arg(m_second->name), taken.error());
        return;
    }
    const bool isDone = m_history->edit(taken->from, taken->to, texts.step);
    if (!self || number != m_number)
        return;
    // Somebody typed meanwhile; what is checked still stands.
    if (!isDone) {
        takeOver();
    } else {
        m_panel->model()->uncheckAll();
        m_panel->tellOutcome(texts.outcome);
        StatusLine::tell(m_window, texts.outcome);
    }
    if (self)
        tell();
}

void Comparison::Private::goTo(const QModelIndex &index)
{
    const ComparisonNode node = m_panel->model()->node(index);
    const QByteArray setting = m_panel->model()->settingAt(index);
    if (!m_window || node.tab < 0)
        return;
    const QPointer<Comparison> self(q);
    const QPointer<PropertyGridWidget> grid = m_window->workflowTabs()->grid(node.tab);
    m_window->workflowTabs()->widget()->setCurrentIndex(node.tab);
    IGridItem *item = self && grid && node.column >= 0 ? grid->items().value(node.column) : nullptr;
    const QPointer<QWidget> column = item ? item->widget() : nullptr;
    auto *view = qobject_cast<GridPropertyEditorView *>(column.data());
    if (view)
        m_visits.begin(view);
    const bool isThere = view && !setting.isEmpty() && SettingJump::toSetting(m_window, view, setting);
    if (self && m_window && column && !isThere) {
        SettingJump::show(m_window, column);
        if (column)
            column->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace orv
