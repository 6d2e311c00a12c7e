#include "CurrentSetting.h"

#include "SettingReader.h"
#include "SettingView.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <KPropertyUtils.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace orv {

namespace {

bool isPassing(const QWidget *focus)
{
    return !focus || qobject_cast<const QMenuBar *>(focus) || qobject_cast<const QMenu *>(focus);
}

/// A setting of the set, or the one that a row below it is part of; null for what is none.
const KProperty *settingAt(const QModelIndex &row)
{
    const KProperty *property = KPropertyUtils::propertyForIndex(row);
    while (property && property->parent())
        property = property->parent();
    return property && SettingReader::idOf(*property) != PropertyId::NoProperty ? property : nullptr;
}

/// Adds the settings of chosen rows below \a parent; of a chosen group, all.
void collect(const QItemSelectionModel &chosen, const QModelIndex &parent, bool isWhole,
             QList<QByteArray> *names)
{
    const QAbstractItemModel *rows = chosen.model();
    for (int i = 0; i < rows->rowCount(parent); ++i) {
        const QModelIndex row = rows->index(i, 0, parent);
        const bool isChosen =
            isWhole || (chosen.hasSelection() ? chosen.isSelected(row)
                                              : chosen.currentIndex().siblingAtColumn(0) == row);
        const KProperty *property = isChosen ? settingAt(row) : nullptr;
        if (property && !names->contains(property->name()))
            names->append(property->name());
        collect(chosen, row, isChosen, names);
    }
}

} // namespace

CurrentSetting::CurrentSetting(PropertyEditorWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, QWidget *now) { followFocus(now); });
    followFocus(QApplication::focusWidget());
}

CurrentSetting::~CurrentSetting() = default;

void CurrentSetting::followFocus(QWidget *now)
{
    if (isPassing(now) || !m_window)
        return;
    GridPropertyEditorView *view = nullptr;
    for (QWidget *at = now; at && at != m_window && !view; at = at->parentWidget())
        view = qobject_cast<GridPropertyEditorView *>(at);
    const bool isOurs = SettingView::isIn(m_window, view);
    m_focus = !isOurs ? Focus::Elsewhere : now == view->editorView() ? Focus::Rows : Focus::Editor;
    if (isOurs)
        setView(view);
    else
        tell();
}

void CurrentSetting::setView(GridPropertyEditorView *view)
{
    if (view != m_view) {
        for (const QMetaObject::Connection &connection : std::exchange(m_connections, {}))
            disconnect(connection);
        m_view = view;
        const KPropertyCustomEditorView *rows = view->editorView();
        m_connections = {
            connect(view, &QObject::destroyed, this, &CurrentSetting::tell, Qt::QueuedConnection),
            connect(rows, &KPropertyEditorView::propertySetChanged, this, &CurrentSetting::tell),
            connect(rows->selectionModel(), &QItemSelectionModel::currentChanged, this,
                    &CurrentSetting::tell),
            connect(rows->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                    &CurrentSetting::tell)};
    }
    tell();
}

const KProperty *CurrentSetting::property() const
{
    return m_view ? settingAt(m_view->editorView()->currentIndex()) : nullptr;
}

QList<QByteArray> CurrentSetting::selected() const
{
    QList<QByteArray> names;
    if (!m_view)
        return names;
    collect(*m_view->editorView()->selectionModel(), {}, false, &names);
    return names;
}

} // namespace orv
