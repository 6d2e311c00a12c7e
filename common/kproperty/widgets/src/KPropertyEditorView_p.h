#pragma once

#include "KPropertyEditorView.h"
#include "KPropertySet.h"
#include "internal/EditorDataModel.h"
#include "internal/ItemDelegate.h"

#include <QPersistentModelIndex>
#include <QPointer>

class KPropertyEditorView::Private
{
public:
    QPointer<KPropertySet> set;
    Internal::EditorDataModel *model = nullptr;
    Internal::ItemDelegate *delegate = nullptr;
    QColor gridLineColor = KPropertyEditorView::defaultGridLineColor();
    QPersistentModelIndex pressed;
    bool childItemsExpanded = true;
    bool groupItemsExpanded = true;
    bool groupsVisible = true;
    bool toolTipsVisible = false;
    bool valueSync = true;
    bool columnsSized = false;
    bool closing = false;

    [[nodiscard]] KProperty *property(const QModelIndex &index) const { return model->property(index); }

    /// The value cell that an editor can open in, for any cell of its row.
    [[nodiscard]] QModelIndex editableCell(const QModelIndex &index) const
    {
        const QModelIndex value = index.siblingAtColumn(Internal::EditorDataModel::ValueColumn);
        return value.flags().testFlag(Qt::ItemIsEditable) ? value : QModelIndex();
    }
};
