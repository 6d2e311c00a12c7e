#pragma once

#include "KProperty.h"
#include "KPropertyFactory.h"
#include "KPropertyUtils.h"
#include "kpropertywidgets_export.h"

#include <QHash>
#include <QLabel>
#include <QObject>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QVariant>

#include <memory>

/// How an editor is placed in a view.
class KPROPERTYWIDGETS_EXPORT KPropertyEditorCreatorOptions
{
public:
    KPropertyEditorCreatorOptions();
    KPropertyEditorCreatorOptions(const KPropertyEditorCreatorOptions &other);
    ~KPropertyEditorCreatorOptions();

    /// False at first: the cell is the frame.
    bool bordersVisible() const;
    void setBordersVisible(bool visible);

    KPropertyEditorCreatorOptions &operator=(const KPropertyEditorCreatorOptions &other);
    bool operator==(const KPropertyEditorCreatorOptions &other) const;
    bool operator!=(const KPropertyEditorCreatorOptions &other) const { return !operator==(other); }

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/*! Makes editors for properties of a type.

    An editor is a widget with a user property, mostly "value", through which a view reads and writes the
    value, and a signal commitData(QWidget *) for changes of the user. */
class KPROPERTYWIDGETS_EXPORT KPropertyEditorCreatorInterface
{
public:
    KPropertyEditorCreatorInterface();
    virtual ~KPropertyEditorCreatorInterface();

    /// Owned by \a parent. Null when the value cannot be edited in its cell, as it is here.
    virtual QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const;

    const KPropertyEditorCreatorOptions *options() const;
    KPropertyEditorCreatorOptions *options();

private:
    Q_DISABLE_COPY(KPropertyEditorCreatorInterface)
    class Private;
    const std::unique_ptr<Private> d;
};

/// Paints values of a type in their cells.
class KPROPERTYWIDGETS_EXPORT KPropertyValuePainterInterface
{
public:
    KPropertyValuePainterInterface();
    virtual ~KPropertyValuePainterInterface();
    Q_DISABLE_COPY_MOVE(KPropertyValuePainterInterface)

    virtual void paint(QPainter *painter, const QStyleOptionViewItem &option,
                       const QModelIndex &index) const = 0;

    /// Paints the text that \a iface has for the property at \a index.
    static void paint(const KPropertyValueDisplayInterface *iface, QPainter *painter,
                      const QStyleOptionViewItem &option, const QModelIndex &index);
};

/// In place of an editor, for values that are edited through their children.
class KPROPERTYWIDGETS_EXPORT KPropertyLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    /// \a iface must outlive the label.
    KPropertyLabel(QWidget *parent, const KProperty *property, const KPropertyValueDisplayInterface *iface);
    ~KPropertyLabel() override;

    QVariant value() const;

Q_SIGNALS:
    void commitData(QWidget *editor);

public Q_SLOTS:
    void setValue(const QVariant &value);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(KPropertyLabel)
    class Private;
    const std::unique_ptr<Private> d;
};

/// Makes editors of a class that is constructed from parent, property and display.
template<class Widget>
class KPropertyEditorCreator : public KPropertyEditorCreatorInterface,
                               public KPropertyValueDisplayInterface,
                               public KPropertyValuePainterInterface
{
public:
    KPropertyEditorCreator() = default;
    ~KPropertyEditorCreator() override = default;

    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        Q_UNUSED(type)
        Q_UNUSED(option)
        return new Widget(parent, KPropertyUtils::propertyForIndex(index), this);
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        KPropertyValuePainterInterface::paint(this, painter, option, index);
    }
};

using KPropertyLabelCreator = KPropertyEditorCreator<KPropertyLabel>;

/*! Editors and painters by type, in addition to what a KPropertyFactory holds.

    An editor creator that is also a display, a painter or a composed property creator serves as these too.
    What is added is owned by the factory, and may be added for several types. */
class KPROPERTYWIDGETS_EXPORT KPropertyWidgetsFactory : public KPropertyFactory
{
public:
    KPropertyWidgetsFactory();
    ~KPropertyWidgetsFactory() override;

    QHash<int, KPropertyEditorCreatorInterface *> editorCreators() const;
    QHash<int, KPropertyValuePainterInterface *> valuePainters() const;

    void addEditor(int type, KPropertyEditorCreatorInterface *creator);
    void addPainter(int type, KPropertyValuePainterInterface *painter);

    /// A line in the colour of the view's grid along the top of \a widget.
    static void paintTopGridLine(QWidget *widget);
    static void setTopAndBottomBordersUsingStyleSheet(QWidget *widget,
                                                      const QString &extraStyleSheet = QString());

protected:
    /// With \a own false the caller keeps ownership.
    void addEditorInternal(int type, KPropertyEditorCreatorInterface *editor, bool own = true);
    void addPainterInternal(int type, KPropertyValuePainterInterface *painter, bool own = true);

    Q_DISABLE_COPY(KPropertyWidgetsFactory)

private:
    class Private;
    const std::unique_ptr<Private> d;
};
