#pragma once

#include "kpropertywidgets_export.h"

#include <QWidget>

#include <memory>

/// Base of editors that have a widget on the left and a "..." button on the right.
class KPROPERTYWIDGETS_EXPORT KPropertyGenericSelectionEditor : public QWidget
{
    Q_OBJECT

public:
    explicit KPropertyGenericSelectionEditor(QWidget *parent = nullptr);
    ~KPropertyGenericSelectionEditor() override;

public Q_SLOTS:
    void setSelectionButtonVisible(bool set);

protected:
    /// Takes ownership; \a widget receives the focus. Replaces a former one.
    void setMainWidget(QWidget *widget);

protected Q_SLOTS:
    /// Does nothing here.
    virtual void selectButtonClicked();

private:
    Q_DISABLE_COPY(KPropertyGenericSelectionEditor)
    class Private;
    const std::unique_ptr<Private> d;
};
