#include "SettingColumns.h"

#include "SettingEdit.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace orv {

SettingColumns::SettingColumns(PropertyEditorWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    const auto savedAnew = [this] {
        keepAsSaved();
        m_isStale = true;
        tellSoon();
    };
    connect(window, &PropertyEditorWindow::documentShown, this, savedAnew);
    connect(window, &PropertyEditorWindow::documentSaved, this, savedAnew);
    connect(window->workflowTabs(), &WorkflowTabs::columnsChanged, this, &SettingColumns::tellSoon);
    connect(window->workflowTabs(), &WorkflowTabs::edited, this, &SettingColumns::tellSoon);
    // A window that becomes read only says so in its title. One that goes changes it, too.
    connect(
        window, &QWidget::windowTitleChanged, this,
        [this] {
            const bool wasReadOnly = std::exchange(m_wasReadOnly, isReadOnly());
            if (wasReadOnly == m_wasReadOnly)
                return;
            m_isStale = true;
            tellSoon();
        },
        Qt::QueuedConnection);
    keepAsSaved();
}

SettingColumns::~SettingColumns() = default;

void SettingColumns::keepAsSaved()
{
    m_saved.clear();
    for (const Column &column : SettingView::all(m_window)) {
        if (const KPropertySet *set = column.view->propertySet())
            m_saved.append({column, SettingReader::stored(*set), {}});
        hear(column.view);
    }
}

void SettingColumns::takeSaved(const DocumentState &document)
{
    m_saved.clear();
    for (const DocumentState::Tab &tab : document.tabs) {
        for (qsizetype i = 0; i < tab.cells.size(); ++i) {
            const Column column{{}, 0, 0, tab.title, tab.columns.value(i)};
            m_saved.append({column, std::nullopt, tab.cells.at(i)});
        }
    }
    m_isStale = true;
    tellSoon();
}

/// Null for a column that has no settings.
const StoredSettings *SettingColumns::valuesOf(Saved *saved)
{
    const StateCell cell = std::exchange(saved->unread, {});
    if (cell.isNull())
        return saved->values ? &*saved->values : nullptr;
    const Result<KPropertySet *> made = PropertySetCreator::objectToPropertySet(cell.object(), std::nullopt);
    if (made.hasError())
        return nullptr;
    const std::unique_ptr<KPropertySet> set(*made);
    saved->values = SettingReader::stored(*set);
    return &*saved->values;
}

/// The very column, else the one of its name: a step back may have made it anew.
const StoredSettings *SettingColumns::savedOf(const Column &column)
{
    const auto isSame = [&column](const Saved &each) { return each.column.view == column.view; };
    if (const auto same = std::ranges::find_if(m_saved, isSame); same != m_saved.end())
        return valuesOf(&*same);
    for (Saved &each : m_saved) {
        if (each.column.tabName != column.tabName || each.column.columnName != column.columnName)
            continue;
        if (const StoredSettings *values = valuesOf(&each))
            return values;
    }
    return nullptr;
}

bool SettingColumns::isReadOnly() const
{
    return m_window && m_window->isReadOnly();
}

SettingIndex::Column SettingColumns::read(const Column &column)
{
    const KPropertySet *set = column.view ? column.view->propertySet() : nullptr;
    QList<SettingTexts> settings = set ? m_reader.read(*set, savedOf(column)) : QList<SettingTexts>();
    for (SettingTexts &texts : settings)
        texts.isReadOnly = texts.isReadOnly || isReadOnly();
    return {column.tab, column.column, column.tabName, column.columnName, settings};
}

SettingColumns::Change SettingColumns::refresh()
{
    const QList<Column> columns = SettingView::all(m_window);
    const QList<QPointer<GridPropertyEditorView>> touched = std::exchange(m_touched, {});
    const bool isSame = columns == m_columns && !std::exchange(m_isStale, false);
    if (isSame && touched.isEmpty())
        return Change::None;
    if (isSame) {
        for (const Column &column : columns) {
            if (touched.contains(column.view))
                m_index.replace(read(column));
        }
        return Change::Values;
    }
    m_columns = columns;
    m_index.clear();
    for (const Column &column : columns) {
        hear(column.view);
        m_index.append(read(column));
    }
    return Change::Places;
}

void SettingColumns::hear(GridPropertyEditorView *view)
{
    view->disconnect(this);
    const auto touched = [this, view] { touch(view); };
    connect(view, &GridPropertyEditorView::propertySetChanged, this, touched);
    connect(view, &GridPropertyEditorView::propertyChanged, this, touched);
    connect(view, &GridPropertyEditorView::contentEdited, this, touched);
}

void SettingColumns::touch(GridPropertyEditorView *view)
{
    if (!m_touched.contains(view))
        m_touched.append(view);
    tellSoon();
}

void SettingColumns::tellSoon()
{
    if (std::exchange(m_isTelling, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isTelling = false;
            Q_EMIT changed();
        },
        Qt::QueuedConnection);
}

GridPropertyEditorView *SettingColumns::view(const SettingPlace &place) const
{
    const auto found = std::ranges::find_if(m_columns, [&place](const Column &column) {
        return column.tab == place.tab && column.column == place.column;
    });
    return found == m_columns.cend() ? nullptr : found->view.data();
}

bool SettingColumns::setBack(const SettingPlace &place, Former former)
{
    refresh();
    const auto column = std::ranges::find_if(m_columns, [&place](const Column &each) {
        return each.tab == place.tab && each.column == place.column;
    });
    KPropertySet *set = column == m_columns.cend() || !column->view ? nullptr : column->view->propertySet();
    if (isReadOnly() || !SettingEdit::refusal(set, place.name).isEmpty())
        return false;
    const PropertyId id = SettingReader::idOf(set->property(place.name));
    const StoredSettings *saved = savedOf(*column);
    const QJsonValue wanted = former == Former::Default ? m_reader.storedDefault(id)
                              : saved ? saved->value(place.name, QJsonValue(QJsonValue::Undefined))
                                      : QJsonValue(QJsonValue::Undefined);
    return !wanted.isUndefined() &&
           SettingEdit::setStored(set, place.name, wanted) == SettingEdit::Outcome::Changed;
}

} // namespace orv
