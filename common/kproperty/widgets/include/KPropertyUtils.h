#pragma once

#include "kpropertywidgets_export.h"

#include <QModelIndex>
#include <QString>
#include <QWidget>

#include <memory>

class KProperty;
class KPropertyEditorView;

/// A titled section whose contents are shown and hidden by its header, for panes beside a property tree.
class KPROPERTYWIDGETS_EXPORT KPropertyGroupWidget : public QWidget
{
    Q_OBJECT

public:
    explicit KPropertyGroupWidget(const QString &title, QWidget *parent = nullptr);
    ~KPropertyGroupWidget() override;

public Q_SLOTS:
    /// Takes ownership and deletes the former contents.
    void setContents(QWidget *contents);

protected:
    bool event(QEvent *e) override;

private:
    Q_DISABLE_COPY(KPropertyGroupWidget)
    class Private;
    const std::unique_ptr<Private> d;
};

namespace KPropertyUtils {

/// The property of a row of a KPropertyEditorView, in any column; null for group rows and foreign models.
KPROPERTYWIDGETS_EXPORT KProperty *propertyForIndex(const QModelIndex &index);

/// The view in which \a editor edits a property, or null. Also for widgets inside an editor.
KPROPERTYWIDGETS_EXPORT KPropertyEditorView *viewForEditor(const QWidget *editor);

} // namespace KPropertyUtils
