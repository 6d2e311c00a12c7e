#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

namespace orv {

class GridItemEdits;
class IGridItem;
class PropertyEditorWindow;
class TableHistory;

/// A table that went through steps of its own.
struct TableMove
{
    QPointer<TableHistory> history;
    int before = 0;
    int after = 0;
};

/// The text of a cell as it stands in a state.
[[nodiscard]] QByteArray textOf(const IGridItem &item);

/// Reads what a window shows. Of columns that nobody has edited since it knows the text already.
class ShownState : public QObject
{
    Q_OBJECT

public:
    explicit ShownState(PropertyEditorWindow *window);

    [[nodiscard]] DocumentState read();
    /// Of all tables that were read anew since the last call.
    [[nodiscard]] QList<TableMove> takeMoves();
    /// The next call of read() reads everything.
    void forget();
    /// The same for the columns that \a change, which led to \a shown, is about: what a program does isn't
    /// told.
    void forget(const StateChange &change, const DocumentState &shown);

Q_SIGNALS:
    /// Somebody edits a setting; an editor in its row may be open.
    void settingEdited();

private:
    struct Column
    {
        QByteArray cell;
        QString name;
        bool isRead = false;
        QList<std::pair<QPointer<TableHistory>, int>> histories; ///< and how many of their steps were done
    };

    [[nodiscard]] DocumentState::Tab readTab(int index);
    [[nodiscard]] QByteArray readColumn(IGridItem &item);
    /// A column that has this text stays known.
    void forgetUnless(int tab, int column, const QByteArray *text);
    Column &known(IGridItem &item);
    void follow(IGridItem &item, Column *column);
    void noteMoves(Column *column);

    PropertyEditorWindow *m_window;
    QHash<const GridItemEdits *, Column> m_columns;
    QList<TableMove> m_moves;
};

} // namespace orv
