#pragma once

#include <KPropertyEditorView.h>
#include <orv/widgets/Export.h>

#include <QFileInfo>

namespace orv {

/// The tree of a column of settings, in which several rows can be selected: takes a file or folder of the
/// desktop where it is dropped on the row of a reference, if the reference can hold it. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT KPropertyCustomEditorView : public KPropertyEditorView
{
    Q_OBJECT

public:
    explicit KPropertyCustomEditorView(QWidget *parent = nullptr);
    ~KPropertyCustomEditorView() override;

protected:
    /// Of structured values, of which a cell shows few lines.
    QString wholeValueText(const KProperty &property, const QString &shown) const override;

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event = nullptr) const override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QFileInfo m_dragged;
};

} // namespace orv
