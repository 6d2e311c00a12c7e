// What is said at a row beside its value.
#include "KProperty.h"
#include "KPropertyEditorView_p.h"

#include <QAccessible>

using Internal::EditorDataModel;

void KPropertyEditorView::setRemark(const KProperty &property, const QString &text)
{
    d->delegate->keepRemark(property);
    const bool isNew = !text.isEmpty() && text != d->model->remark(&property);
    d->model->setRemark(&property, text);
    if (isNew) {
        announceRemark(property);
    }
}

QString KPropertyEditorView::remark(const KProperty &property) const
{
    return d->model->remark(&property);
}

void KPropertyEditorView::setRemark(const QWidget *editor, const QString &text)
{
    if (const KProperty *const property = d->delegate->propertyFor(editor)) {
        setRemark(*property, text);
    }
}

void KPropertyEditorView::endRemark(const QWidget *editor)
{
    if (!d->delegate->endsRemark(editor)) {
        return;
    }
    if (const KProperty *const property = d->delegate->propertyFor(editor)) {
        d->model->setRemark(property, QString());
    }
}

void KPropertyEditorView::announceRemark(const KProperty &property)
{
    const QModelIndex cell = d->model->indexForProperty(&property, EditorDataModel::NameColumn);
    if (!QAccessible::isActive() || !cell.isValid()) {
        return;
    }
    // Screen readers count the rows that are unfolded.
    int row = 0;
    for (QModelIndex above = indexAbove(cell); above.isValid(); above = indexAbove(above)) {
        ++row;
    }
    QAccessibleInterface *const tree = QAccessible::queryAccessibleInterface(this);
    QAccessibleTableInterface *const table = tree ? tree->tableInterface() : nullptr;
    if (QAccessibleInterface *const spoken = table ? table->cellAt(row, cell.column()) : nullptr) {
        QAccessibleEvent event(spoken, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}
