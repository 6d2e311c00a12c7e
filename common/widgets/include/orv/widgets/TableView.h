#pragma once

#include <orv/table_model/TableModel.h>
#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QTableView>

#include <functional>
#include <memory>
#include <optional>

namespace orv {

/// The view of a table that people edit, with what their fingers know from spreadsheets: typing replaces,
/// Enter goes down, Tab goes on and leaves the table at its last cell (Ctrl+Tab at any), blocks are copied
/// and pasted as text, files are dropped. Every command is one QAction with its shortcut; the context menu
/// shows them. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TableView : public QTableView
{
    Q_OBJECT

public:
    enum class Command
    {
        Undo,
        Redo,
        Cut,
        Copy,
        CopyWithHeaders,
        Paste,
        Clear,
        FillDown,
        AddRow,
        DuplicateRows,
        RemoveRows,
        MoveUp,
        MoveDown,
        SortAscending,
        SortDescending,
        OwnOrder,
        KeepOrder,
        Find,
        Replace,
        NextProblem,
        PreviousProblem,
        HideColumns,
        ShowAllColumns,
        Import,
        Export,
    };

    /// Where \a sheet goes first, an empty one with its columns takes its place.
    explicit TableView(TableSheet *sheet, QWidget *parent = nullptr);
    ~TableView() override;

    /// Rows of the sheet from a text that has them in another form than columns, such as FASTA; nothing for a
    /// text of any other form.
    using TextReader = std::function<std::optional<Result<QList<QStringList>>>(const QByteArray &text)>;

    [[nodiscard]] TableSheet *sheet() const;
    [[nodiscard]] TableModel *tableModel() const;
    [[nodiscard]] QAction *action(Command command) const;

    /// What an empty table says; tells the ways to fill it at first.
    [[nodiscard]] QString emptyText() const;
    void setEmptyText(const QString &text);

    /// Asked first for every text that is pasted, dropped or imported.
    void setTextReader(TextReader reader);
    [[nodiscard]] std::optional<Result<QList<QStringList>>> readText(const QByteArray &text) const;

    /// The columns that aren't hidden, from the beginning of a line on.
    [[nodiscard]] QList<int> shownColumns() const;
    enum class ChosenBy
    {
        Program,
        Person,
    };
    void setColumnShown(int column, bool isShown, ChosenBy by = ChosenBy::Program);
    /// Makes columns as wide as their headers and first rows need. Columns whose texts are longer than what
    /// they get then share the room that is left, also when that changes, until a person arranges columns.
    void fitColumns();
    /// Whether a person has chosen columns, or some were moved or sized since they were last fitted.
    [[nodiscard]] bool isArranged() const;

    /// Makes a cell the only selected one, and visible.
    void goTo(const QModelIndex &index);

Q_SIGNALS:
    /// What a command has done or why it hasn't, for a line below the table.
    void said(const QString &text);
    void findWanted(bool withReplacement);
    /// An empty path: one is to be chosen.
    void importWanted(const QString &path);
    void exportWanted();

protected:
    void initViewItemOption(QStyleOptionViewItem *option) const override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool focusNextPrevChild(bool next) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setUpHeaders();
    void showHeaderMenu(QPoint position);
    void shareRoom();
    [[nodiscard]] QString shownEmptyText() const;
    void paintEmptyText(QPainter *painter) const;
    void stepFrom(const QModelIndex &from, int rows, int columns);
    /// Moves the focus out of the table.
    bool leave(bool next);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
