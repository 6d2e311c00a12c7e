#include "FindingMarks.h"

#include "FindingSigns.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/widgets/TableView.h>

#include <algorithm>

namespace orv {

using PropertyEditor::LocatedFinding;

namespace {

/// A sign that says more is one for the panel.
constexpr qsizetype kMostRemarked = 1000;

} // namespace

FindingMarks::FindingMarks(PropertyEditorWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{}

FindingMarks::~FindingMarks() = default;

void FindingMarks::addTo(Remark *remark, const LocatedFinding &finding)
{
    if (finding.isError())
        remark->level = Level::Error;
    if (remark->text.size() > kMostRemarked)
        return;
    if (!remark->text.isEmpty())
        remark->text += u'\n';
    remark->text += FindingSigns::told(finding.level, finding.message.left(kMostRemarked));
    if (!finding.hint.isEmpty())
        remark->text += u' ' + finding.hint.left(kMostRemarked);
}

void FindingMarks::show(const QList<LocatedFinding> &findings, const QList<FindingTarget> &targets)
{
    QHash<QWidget *, Remarks> settings;
    QHash<TableView *, QHash<quint32, Remark>> rows;
    QHash<QWidget *, Badge> badges;
    for (qsizetype i = 0; i < targets.size(); ++i) {
        const FindingTarget &target = targets.at(i);
        if (!target.column)
            continue;
        Badge &badge = badges[target.column];
        ++(findings.at(i).isError() ? badge.errors : badge.warnings);
        if (target.settings() && !target.setting.isEmpty())
            addTo(&settings[target.column][target.setting], findings.at(i));
        if (target.table && target.row)
            addTo(&rows[target.table][*target.row], findings.at(i));
    }
    m_badges.clear();
    for (auto badge = badges.cbegin(); badge != badges.cend(); ++badge)
        m_badges.append({badge.key(), badge.value()});
    showSettings(settings);
    showRows(rows);
    showTabs();
}

/// A remark that an editor made meanwhile stays.
void FindingMarks::remark(GridPropertyEditorView *view, const Remarks &before, const Remarks &now)
{
    const KPropertySet *set = view->propertySet();
    if (!set)
        return;
    QList<QByteArray> names = before.keys();
    names.append(now.keys());
    for (const QByteArray &name : std::as_const(names)) {
        if (!set->contains(name))
            continue;
        const KProperty &property = set->property(name);
        const QString shown = view->editorView()->remark(property);
        const Remark wanted = now.value(name);
        if (shown.isEmpty() || shown == before.value(name).text)
            view->editorView()->setRemark(property, wanted.text, FindingSigns::remarkKind(wanted.level));
    }
}

void FindingMarks::showSettings(const QHash<QWidget *, Remarks> &remarks)
{
    QList<Column> columns;
    for (auto each = remarks.cbegin(); each != remarks.cend(); ++each)
        columns.append({qobject_cast<GridPropertyEditorView *>(each.key()), each.value()});
    const QList<Column> before = std::exchange(m_columns, columns);
    for (const Column &column : before) {
        if (!column.view)
            continue;
        column.view->editorView()->disconnect(this);
        if (!remarks.contains(column.view))
            remark(column.view, column.remarks, {});
    }
    for (const Column &column : std::as_const(columns)) {
        const auto known =
            std::ranges::find_if(before, [&column](const Column &each) { return each.view == column.view; });
        remark(column.view, known == before.cend() ? Remarks() : known->remarks, column.remarks);
        follow(column.view);
    }
}

/// Rows that are made anew, such as those of advanced settings, get their signs then.
void FindingMarks::follow(GridPropertyEditorView *view)
{
    connect(view->editorView(), &KPropertyEditorView::propertySetChanged, this, [this, view] {
        const auto known =
            std::ranges::find_if(m_columns, [view](const Column &each) { return each.view == view; });
        if (known != m_columns.cend())
            remark(view, {}, known->remarks);
    });
}

void FindingMarks::showRows(const QHash<TableView *, QHash<quint32, Remark>> &rows)
{
    for (const QPointer<TableView> &table : std::as_const(m_tables)) {
        if (table && !rows.contains(table))
            table->tableModel()->setRowRemarks({});
    }
    m_tables.clear();
    for (auto table = rows.cbegin(); table != rows.cend(); ++table) {
        QHash<quint32, TableRowRemark> remarks;
        for (auto row = table->cbegin(); row != table->cend(); ++row)
            remarks.insert(row.key(), {row->text, row->level == Level::Error});
        table.key()->tableModel()->setRowRemarks(remarks);
        m_tables.append(table.key());
    }
}

void FindingMarks::showTabs()
{
    if (!m_window)
        return;
    const WorkflowTabs *tabs = m_window->workflowTabs();
    QTabWidget *widget = tabs->widget();
    QList<QPointer<QWidget>> marked;
    for (int i = 0; i < widget->count(); ++i) {
        Badge sum;
        for (const auto &[column, badge] : std::as_const(m_badges)) {
            if (column && widget->widget(i)->isAncestorOf(column)) {
                sum.errors += badge.errors;
                sum.warnings += badge.warnings;
            }
        }
        const bool isMarked = sum.errors + sum.warnings > 0;
        if (isMarked) {
            widget->setTabIcon(i, FindingSigns::icon(sum.errors > 0 ? Level::Error : Level::Warning));
            widget->setTabToolTip(i, tr("Errors: %1, warnings: %2")
                                         .arg(m_window->locale().toString(sum.errors),
                                              m_window->locale().toString(sum.warnings)));
            marked.append(widget->widget(i));
        } else if (m_tabs.contains(widget->widget(i))) {
            widget->setTabIcon(i, {});
            widget->setTabToolTip(i, {});
        }
    }
    m_tabs = marked;
}

bool FindingMarks::isMarked(const QWidget *column, const QByteArray &setting) const
{
    return std::ranges::any_of(
        m_columns, [&](const Column &each) { return each.view == column && each.remarks.contains(setting); });
}

} // namespace orv
