#pragma once

#include "KPropertyWidgetsFactory.h"
#include "kpropertywidgets_export.h"

#include <QPixmap>
#include <QVariant>

/// A picture, loaded from a file or cleared.
class KPROPERTYWIDGETS_EXPORT KPropertyPixmapEditor : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    explicit KPropertyPixmapEditor(KProperty *prop, QWidget *parent = nullptr);
    ~KPropertyPixmapEditor() override;

    QVariant value() const;

public Q_SLOTS:
    void setValue(const QVariant &value);

Q_SIGNALS:
    void commitData(QWidget *editor);

protected Q_SLOTS:
    /// Asks for a picture file and remembers its folder for the process. Empty when the user gave up.
    QString selectPixmapFileName();
    virtual void selectPixmap();

private:
    Q_DISABLE_COPY(KPropertyPixmapEditor)
    class Private;
    const std::unique_ptr<Private> d;
};

class KPROPERTYWIDGETS_EXPORT KPropertyPixmapDelegate : public KPropertyEditorCreatorInterface,
                                                        public KPropertyValuePainterInterface,
                                                        public KPropertyValueDisplayInterface
{
public:
    KPropertyPixmapDelegate();

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString valueToString(const QVariant &value, const QLocale &locale) const override;
};
