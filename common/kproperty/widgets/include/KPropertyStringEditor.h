#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QLineEdit>
#include <QString>

#include <memory>

/*! Edits a text of one line.

    In a view the options "selectButton" and "readOnlyInternalEditor" of the property are applied to it. */
class KPROPERTYWIDGETS_EXPORT KPropertyStringEditor : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue USER true)

public:
    explicit KPropertyStringEditor(QWidget *parent = nullptr);
    ~KPropertyStringEditor() override;

    QString value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);
    void selectButtonClicked();

public Q_SLOTS:
    void setValue(const QString &value);
    void setSelectionButtonVisible(bool set);

private Q_SLOTS:
    void slotTextChanged(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(KPropertyStringEditor)
    class Private;
    const std::unique_ptr<Private> d;
};

/// Texts: one line, or several with the option "multiLine".
class KPROPERTYWIDGETS_EXPORT KPropertyStringDelegate : public KPropertyEditorCreatorInterface,
                                                        public KPropertyValuePainterInterface,
                                                        public KPropertyValueDisplayInterface
{
public:
    KPropertyStringDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    /// Paints the text of \a option if it has one, else that of the value.
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
