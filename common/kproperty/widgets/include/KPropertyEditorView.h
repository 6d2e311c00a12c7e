#pragma once

#include "kpropertywidgets_export.h"

#include <QColor>
#include <QTreeView>

#include <memory>

class KProperty;
class KPropertyEditorItemEvent;
class KPropertySet;

/*! Shows and edits a property set: names on the left, values on the right, a header row per group.

    The name column has a share of the width until the user moves the divider, which can be dragged in the
   rows as well as in the header.

    Keyboard: F2, Enter or typing edits the current row, Enter commits, Escape takes back what was typed since
    the editor opened, Tab and Shift+Tab commit and edit the next or previous row, Ctrl+Z takes a modified
    value back to its old one; Left and Right collapse and expand, Ctrl+Enter commits a text of several lines.

    The view does not own the set. It follows changes and removals; properties that are added, shown or hidden
    later appear with the next changeSet(). When the set is cleared or deleted the view lets go of it.
    Use it in the GUI thread. */
class KPROPERTYWIDGETS_EXPORT KPropertyEditorView : public QTreeView
{
    Q_OBJECT

public:
    explicit KPropertyEditorView(QWidget *parent = nullptr);
    ~KPropertyEditorView() override;

    enum class SetOption
    {
        None = 0,
        PreservePreviousSelection = 1, //!< stand where the view last stood in this set
        AlphabeticalOrder = 2          //!< by caption within each group, in place of the order of insertion
    };
    Q_DECLARE_FLAGS(SetOptions, SetOption)

    /// How bad is what a remark tells, from least to worst.
    enum class RemarkKind
    {
        Hint,
        Warning,
        Error,
    };

    /// An invalid colour means no lines.
    QColor gridLineColor() const;
    static QColor defaultGridLineColor() { return Qt::gray; }

    QSize sizeHint() const override;

    /// Null when there is none.
    KPropertySet *propertySet() const;

    bool childPropertyItemsExpanded() const;
    bool isValueSyncEnabled() const;
    bool groupsVisible() const;
    bool groupItemsExpanded() const;
    bool toolTipsVisible() const;

    /// Says at the row of \a property, in words for people, what its value doesn't tell: a sign in the cell,
    /// the text in the tool tip and for screen readers. It stays until the value changes, an editor of the
    /// row is left other than by Escape, or another set comes; an empty text takes it away. A folded group
    /// shows the sign of its rows.
    void setRemark(const KProperty &property, const QString &text, RemarkKind kind = RemarkKind::Warning);
    QString remark(const KProperty &property) const;
    /// Warning without a remark.
    RemarkKind remarkKind(const KProperty &property) const;
    /// The sign of such remarks in this view, in place of that of the style.
    void setRemarkIcon(RemarkKind kind, const QIcon &icon);
    QIcon remarkIcon(RemarkKind kind) const;

    /// The same for what \a editor of this view edits or edited: why a text was put back, say. Nothing is
    /// said after Escape.
    void setRemark(const QWidget *editor, const QString &text, RemarkKind kind = RemarkKind::Warning);

public Q_SLOTS:
    /// Builds the tree anew, also for the same set. An open editor commits first.
    void changeSet(KPropertySet *set, SetOptions options = SetOption::None);
    /// Stands at the property named \a propertyToSelect, if there is one.
    void changeSet(KPropertySet *set, const QByteArray &propertyToSelect,
                   SetOptions options = SetOption::None);

    /// For rows of composed properties that later calls of changeSet() make; true at first.
    void setChildPropertyItemsExpanded(bool set);

    /// With true, the default, values follow what is typed; else they change when an editor is left or Enter
    /// is pressed. The policy of a property goes before this.
    void setValueSyncEnabled(bool set);

    /// Commits and closes the open editor, if there is one.
    void acceptInput();

    void setGridLineColor(const QColor &color);

    /// For later calls of changeSet(). With false, or when "common" is the only group, there are no group
    /// rows.
    void setGroupsVisible(bool set);

    /// For group rows that later calls of changeSet() make; true at first.
    void setGroupItemsExpanded(bool set);

    /// Captions, in full, and descriptions as tool tips; true at first.
    void setToolTipsVisible(bool set);

Q_SIGNALS:
    /// May be null.
    void propertySetChanged(KPropertySet *set);

    /// An editor asks; answer during the emission. The view owns \a event.
    void handlePropertyEditorItemEvent(KPropertyEditorItemEvent *event);

protected:
    /// The value of a property for its tool tip, where that is more than its cell shows.
    virtual QString wholeValueText(const KProperty &property, const QString &shown) const;

    void initViewItemOption(QStyleOptionViewItem *option) const override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

protected Q_SLOTS:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles = QList<int>()) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

    void slotSetWillBeCleared();
    void slotSetWillBeDeleted();
    void slotReadOnlyFlagChanged();
    void slotPropertyChanged(KPropertySet &set, KProperty &property);
    void slotPropertyReset(KPropertySet &set, KProperty &property);

private:
    void changeSetInternal(KPropertySet *set, SetOptions options, const QByteArray &propertyToSelect);
    void connectSet(KPropertySet *set);
    void letGoOfSet();
    void dropRow(const KProperty &property);
    void scrollToCurrentLater();
    void announceRemark(const KProperty &property);
    void endRemark(const QWidget *editor);
    void sizeColumns();
    QRect dividerArea() const;
    void drawGroup(QPainter *painter, const QStyleOptionViewItem &option, const QRect &row,
                   const QModelIndex &index) const;
    void drawRemarkSign(QPainter *painter, const QStyleOptionViewItem &option, const QRect &row,
                        const QModelIndex &group) const;
    void drawGridLines(QPainter *painter, const QRect &row, const QModelIndex &index) const;
    void expandItems();
    void expandChildren(const QModelIndex &index);
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void letEditorSpeak(QWidget *editor);
    void editNext(QAbstractItemDelegate::EndEditHint hint);
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    bool withinRevertButtonArea(const QPoint &position, const QModelIndex &index) const;
    QString cutValue(const QModelIndex &index) const;
    QRect revertButtonArea(const QModelIndex &index) const;
    void undo();

    Q_DISABLE_COPY(KPropertyEditorView)
    class Private;
    const std::unique_ptr<Private> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(KPropertyEditorView::SetOptions)
