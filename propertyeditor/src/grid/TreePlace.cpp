#include "orv/propertyeditor/grid/TreePlace.h"

#include <KProperty.h>
#include <KPropertyEditorView.h>
#include <KPropertyUtils.h>

#include <QScrollBar>

namespace orv {

namespace {

/// Calls \a visit with each group row of \a view.
template<typename Visit>
void forEachGroup(const KPropertyEditorView &view, Visit visit)
{
    const QAbstractItemModel *model = view.model();
    for (int row = 0; model && row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        if (!KPropertyUtils::propertyForIndex(index))
            visit(index);
    }
}

QModelIndex rowOf(const QAbstractItemModel &model, const QByteArray &name, const QModelIndex &parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const KProperty *property = KPropertyUtils::propertyForIndex(index);
        if (property && property->name() == name)
            return index;
        if (!property) {
            if (const QModelIndex found = rowOf(model, name, index); found.isValid())
                return found;
        }
    }
    return {};
}

QModelIndex indexOf(const KPropertyEditorView &view, const QByteArray &name)
{
    return name.isEmpty() || !view.model() ? QModelIndex() : rowOf(*view.model(), name);
}

} // namespace

TreePlace::TreePlace(const KPropertyEditorView &view)
    : m_folds(folds(view))
    , m_scroll(view.verticalScrollBar()->value())
{
    if (const KProperty *property = KPropertyUtils::propertyForIndex(view.currentIndex()))
        m_current = property->name();
}

void TreePlace::restore(KPropertyEditorView *view, const QByteArray &current) const
{
    forEachGroup(*view, [&](const QModelIndex &group) {
        view->setExpanded(group, m_folds.value(group.data().toString(), true));
    });
    const QByteArray &name = current.isEmpty() ? m_current : current;
    const QModelIndex index = indexOf(*view, name);
    if (index.isValid())
        view->setCurrentIndex(index);
    view->verticalScrollBar()->setValue(m_scroll);
    if (index.isValid() && !current.isEmpty())
        view->scrollTo(index);
}

TreePlace::Folds TreePlace::folds(const KPropertyEditorView &view)
{
    Folds folds;
    forEachGroup(view, [&](const QModelIndex &group) {
        folds.insert(group.data().toString(), view.isExpanded(group));
    });
    return folds;
}

void TreePlace::setFolds(KPropertyEditorView *view, const Folds &folds)
{
    forEachGroup(*view, [&](const QModelIndex &group) {
        const auto isExpanded = folds.constFind(group.data().toString());
        if (isExpanded != folds.cend())
            view->setExpanded(group, *isExpanded);
    });
}

bool TreePlace::goTo(KPropertyEditorView *view, const QByteArray &name)
{
    const QModelIndex index = indexOf(*view, name);
    if (!index.isValid())
        return false;
    view->expand(index.parent());
    view->setCurrentIndex(index);
    view->scrollTo(index);
    return true;
}

} // namespace orv
