#pragma once

#include "KPropertyEditorView.h"
#include "KPropertySet.h"
#include "internal/EditorDataModel.h"
#include "internal/ItemDelegate.h"

#include <QIcon>
#include <QPersistentModelIndex>
#include <QPointer>

#include <array>
#include <optional>

class KPropertyEditorView::Private
{
public:
    QPointer<KPropertySet> set;
    Internal::EditorDataModel *model = nullptr;
    Internal::ItemDelegate *delegate = nullptr;
    QColor gridLineColor = KPropertyEditorView::defaultGridLineColor();
    std::array<QIcon, 3> remarkIcons; ///< by RemarkKind; a null one is that of the style
    QPersistentModelIndex pressed;
    bool childItemsExpanded = true;
    bool groupItemsExpanded = true;
    bool groupsVisible = true;
    /// What the user gave the name column, in pixels; before that it has a share of the width.
    std::optional<int> nameWidth;
    /// Signals of cells since the event loop last ran.
    int changesInTurn = 0;
    bool toolTipsVisible = true;
    bool valueSync = true;
    bool sizingColumns = false;
    bool movingDivider = false;
    bool scrollsLater = false;
    bool closing = false;
    bool committing = false;

    [[nodiscard]] KProperty *property(const QModelIndex &index) const { return model->property(index); }

    /// The value cell that an editor can open in, for any cell of its row.
    [[nodiscard]] QModelIndex editableCell(const QModelIndex &index) const
    {
        const QModelIndex value = index.siblingAtColumn(Internal::EditorDataModel::ValueColumn);
        return value.flags().testFlag(Qt::ItemIsEditable) ? value : QModelIndex();
    }
};
