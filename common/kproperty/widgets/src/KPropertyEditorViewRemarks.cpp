// What is said at a row beside its value.
#include "KProperty.h"
#include "KPropertyEditorView_p.h"
#include "internal/Painting.h"

#include <QAccessible>
#include <QStyle>

#include <algorithm>
#include <array>

using Internal::EditorDataModel;

void KPropertyEditorView::setRemark(const KProperty &property, const QString &text, RemarkKind kind)
{
    d->delegate->keepRemark(property);
    const bool isNew = !text.isEmpty() && text != d->model->remark(&property);
    d->model->setRemark(&property, text, kind);
    if (isNew) {
        announceRemark(property);
    }
}

QString KPropertyEditorView::remark(const KProperty &property) const
{
    return d->model->remark(&property);
}

KPropertyEditorView::RemarkKind KPropertyEditorView::remarkKind(const KProperty &property) const
{
    return d->model->remarkKind(&property);
}

void KPropertyEditorView::setRemark(const QWidget *editor, const QString &text, RemarkKind kind)
{
    if (const KProperty *const property = d->delegate->propertyFor(editor)) {
        setRemark(*property, text, kind);
    }
}

void KPropertyEditorView::setRemarkIcon(RemarkKind kind, const QIcon &icon)
{
    d->remarkIcons.at(static_cast<size_t>(kind)) = icon;
    viewport()->update();
}

QIcon KPropertyEditorView::remarkIcon(RemarkKind kind) const
{
    const QIcon &own = d->remarkIcons.at(static_cast<size_t>(kind));
    if (!own.isNull()) {
        return own;
    }
    constexpr std::array kStandard = {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
                                      QStyle::SP_MessageBoxCritical};
    return style()->standardIcon(kStandard.at(static_cast<size_t>(kind)), nullptr, this);
}

/// Behind the caption, where it is seen however wide the column is.
void KPropertyEditorView::drawRemarkSign(QPainter *painter, const QStyleOptionViewItem &option,
                                         const QRect &row, const QModelIndex &group) const
{
    QFont bold = option.font;
    bold.setBold(true);
    const int size = option.fontMetrics.height();
    const int margin = Internal::Painting::textMargin();
    const int icon = group.data(Qt::DecorationRole).isNull() ? 0 : size + margin;
    const int caption = QFontMetrics(bold).horizontalAdvance(group.data().toString());
    const int left = std::min(row.left() + 16 + icon + caption + 2 * margin, row.right() - margin - size);
    const QRect sign(left, row.center().y() - size / 2, size, size);
    Internal::Painting::drawSign(painter, QStyle::visualRect(layoutDirection(), row, sign), option,
                                 remarkIcon(d->model->worstRemarkIn(group)));
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
