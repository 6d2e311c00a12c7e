#pragma once

#include "PropertyAddress.h"

#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QVariant>

class KProperty;
class KPropertyEditorView;

namespace Internal {

class EditorDataModel;

/// Paints names and values, and owns the life of the one open editor. Editors that were closed are remembered
/// until they are deleted, since some tell what was typed only when they lose the focus.
class ItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ItemDelegate(KPropertyEditorView *view, const EditorDataModel *model);
    ~ItemDelegate() override;

    [[nodiscard]] QWidget *editor() const;
    [[nodiscard]] QModelIndex editedIndex() const;

    enum class LateInput
    {
        Accepted,
        Refused
    };
    /// The editor is closed; Qt deletes it later. \a late says what becomes of what it tells after that.
    void releaseEditor(LateInput late);
    /// The property that \a editor edits or edited; null when it is gone, and when what the editor tells is
    /// refused.
    [[nodiscard]] KProperty *propertyFor(const QWidget *editor) const;
    /// Whether the row of \a editor had a remark when it opened, and no new one came since.
    [[nodiscard]] bool endsRemark(const QWidget *editor) const;
    void keepRemark(const KProperty &property);
    /// What was told may have been heard by somebody who now deletes the view: the delegate and its editors,
    /// whose functions still run, then live on until the event loop runs again.
    void outliveView();
    /// Takes back what the open editor wrote since it was opened, or since a dialog last gave an answer.
    void restoreValue();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    bool eventFilter(QObject *object, QEvent *event) override;

public Q_SLOTS:
    /// Connected to the commitData signals of editors.
    void editorChanged(QWidget *editor);

private:
    /// While a function that may tell others runs.
    class Running
    {
    public:
        explicit Running(const ItemDelegate *delegate)
            : m_delegate(delegate)
        {
            ++delegate->m_running;
        }
        ~Running()
        {
            if (m_delegate) {
                --m_delegate->m_running;
            }
        }
        Q_DISABLE_COPY_MOVE(Running)

    private:
        QPointer<const ItemDelegate> m_delegate;
    };

    struct Edited
    {
        QPersistentModelIndex index;
        PropertyAddress address;
        QVariant valueBefore;
        /// What the editor showed when a value last went to it or came from it.
        QVariant exchanged;
        bool modifiedBefore = false;
        bool wasClicked = false;
        bool takesLateInput = true;
        bool endsRemark = false;
    };

    [[nodiscard]] static QByteArray userPropertyName(const QWidget *editor);
    /// A list or a text in an editor, or a part of one.
    [[nodiscard]] static bool scrolls(const QWidget *part);
    [[nodiscard]] Edited *edited(const QObject *editor) const;
    void rememberState(Edited *edited, const KProperty &property) const;
    [[nodiscard]] QWidget *editorAround(QObject *object) const;
    void watchMouse(QWidget *editor) const;
    [[nodiscard]] bool filterMouse(QObject *object, QEvent *event) const;
    [[nodiscard]] bool leavesToPress(QObject *object, const QEvent *event);
    bool filterKey(QWidget *editor, int key);
    void takeLateInput(QWidget *editor, Edited *edited);
    void sendEditEvent(QWidget *asking);
    void paintName(QPainter *painter, const QStyleOptionViewItem &option, const KProperty &property,
                   const QModelIndex &index) const;
    void paintRemarkSign(QPainter *painter, QStyleOptionViewItem *option, const KProperty &property) const;
    void paintValue(QPainter *painter, const QStyleOptionViewItem &option, const KProperty &property,
                    const QModelIndex &index) const;
    void prepareEditor(QWidget *editor, const KProperty &property) const;
    [[nodiscard]] bool followsTyping(const KProperty &property) const;

    QPointer<KPropertyEditorView> m_view;
    const EditorDataModel *const m_model; ///< goes with the view
    bool m_isAsking = false;              ///< while a dialog of an editor runs
    mutable int m_running = 0;            ///< functions that may tell others
    // Written by createEditor(), which Qt declares const.
    mutable QPointer<QWidget> m_editor;
    /// An editor whose value the view takes when the press arrives that took the focus from it.
    mutable QPointer<QWidget> m_leftToPress;
    mutable QHash<const QObject *, Edited> m_edited;
};

} // namespace Internal
