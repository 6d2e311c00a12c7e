#pragma once

#include "KPropertyComposedUrl.h"
#include "KPropertyGenericSelectionEditor.h"
#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QUrl>

#include <memory>

class KPropertyUrlEditorPrivate;

/// A file, folder or URL, typed or chosen in a dialog. The option "fileMode" says which.
class KPROPERTYWIDGETS_EXPORT KPropertyUrlEditor : public KPropertyGenericSelectionEditor
{
    Q_OBJECT
    Q_PROPERTY(QUrl value READ value WRITE setValue USER true)

public:
    explicit KPropertyUrlEditor(const KProperty &property, QWidget *parent = nullptr);
    ~KPropertyUrlEditor() override;

    virtual QUrl value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    virtual void setValue(const QUrl &value);

protected Q_SLOTS:
    void selectButtonClicked() override;

protected:
    bool eventFilter(QObject *o, QEvent *event) override;

private:
    Q_DISABLE_COPY(KPropertyUrlEditor)
    const std::unique_ptr<KPropertyUrlEditorPrivate> d;
};

/// A path relative to the base URL of the value, or an absolute URL.
class KPROPERTYWIDGETS_EXPORT KPropertyComposedUrlEditor : public KPropertyGenericSelectionEditor
{
    Q_OBJECT
    Q_PROPERTY(KPropertyComposedUrl value READ value WRITE setValue USER true)

public:
    explicit KPropertyComposedUrlEditor(const KProperty &property, QWidget *parent = nullptr);
    ~KPropertyComposedUrlEditor() override;

    virtual KPropertyComposedUrl value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    virtual void setValue(const KPropertyComposedUrl &value);

protected Q_SLOTS:
    void selectButtonClicked() override;

protected:
    bool eventFilter(QObject *o, QEvent *event) override;

private:
    Q_DISABLE_COPY(KPropertyComposedUrlEditor)
    const std::unique_ptr<KPropertyUrlEditorPrivate> d;
};

/// For the types Url and ComposedUrl.
class KPROPERTYWIDGETS_EXPORT KPropertyUrlDelegate : public KPropertyEditorCreatorInterface,
                                                     public KPropertyValueDisplayInterface
{
public:
    KPropertyUrlDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
