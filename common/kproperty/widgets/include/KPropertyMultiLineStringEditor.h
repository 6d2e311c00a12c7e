#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QString>
#include <QWidget>

#include <memory>

/*! Edits a text of several lines. Enter starts a line, Ctrl+Enter commits.

    In a view the options "selectButton" and "readOnlyInternalEditor" of the property are applied to it. */
class KPROPERTYWIDGETS_EXPORT KPropertyMultiLineStringEditor : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue USER true)

public:
    explicit KPropertyMultiLineStringEditor(QWidget *parent = nullptr);
    ~KPropertyMultiLineStringEditor() override;

    QString value() const;
    bool isReadOnly() const;

Q_SIGNALS:
    void commitData(QWidget *editor);
    void selectButtonClicked();

public Q_SLOTS:
    void setValue(const QString &value);
    void setReadOnly(bool readOnly);
    void setSelectionButtonVisible(bool set);

private Q_SLOTS:
    void slotTextChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(KPropertyMultiLineStringEditor)
    class Private;
    const std::unique_ptr<Private> d;
};
