#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>

#include <QMenu>
#include <QPointer>

#include <functional>

namespace orv {

/// The menu of a column's title, for the column whose number stands in its dynamic property "logicalIndex".
class ColumnMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ColumnMenu(QWidget *parent);
    ~ColumnMenu() override;

    [[nodiscard]] int index() const;
    void setIndex(int index);

    /// Shows what fits a column of \a count whose widget is \a column; null for a column that has no
    /// settings.
    void prepare(int count, GridPropertyEditorView *column);

Q_SIGNALS:
    void removeRequested(int index);
    void renameRequested(int index);
    void copyRequested(int index);
    /// By 1 to the right, or by -1.
    void moveRequested(int index, int by);
    void karvonRequested(int index);
    void previewRequested(int index);
    void foldRequested(int index);

private:
    QAction *addCommand(const QString &text, const QIcon &icon, void (ColumnMenu::*requested)(int));

    QAction *m_fold;
    QAction *m_moveLeft = nullptr;
    QAction *m_moveRight = nullptr;
    QAction *m_karvon = nullptr;
    QAction *m_preview = nullptr;
};

} // namespace orv
