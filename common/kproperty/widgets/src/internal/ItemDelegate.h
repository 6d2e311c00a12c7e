#pragma once

#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QVariant>

class KProperty;
class KPropertyEditorView;

namespace Internal {

class EditorDataModel;

/// Paints names and values, and owns the life of the one open editor.
class ItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ItemDelegate(KPropertyEditorView *view, const EditorDataModel *model);
    ~ItemDelegate() override;

    [[nodiscard]] QWidget *editor() const;
    [[nodiscard]] QModelIndex editedIndex() const { return m_index; }
    /// The editor is closed; Qt deletes it later.
    void releaseEditor();
    /// Takes back what the open editor wrote since it was opened.
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
    void sendEditEvent();
    void paintName(QPainter *painter, const QStyleOptionViewItem &option, const KProperty &property,
                   const QModelIndex &index) const;
    void paintValue(QPainter *painter, const QStyleOptionViewItem &option, const KProperty &property,
                    const QModelIndex &index) const;
    void prepareEditor(QWidget *editor, const KProperty &property) const;
    [[nodiscard]] bool followsTyping(const KProperty &property) const;

    KPropertyEditorView *const m_view;
    const EditorDataModel *const m_model;
    // Written by createEditor(), which Qt declares const.
    mutable QPointer<QWidget> m_editor;
    mutable QPersistentModelIndex m_index;
    mutable QVariant m_valueBefore;
    /// What the open editor showed when a value last went to it or came from it.
    mutable QVariant m_exchanged;
    mutable bool m_modifiedBefore = false;
};

} // namespace Internal
