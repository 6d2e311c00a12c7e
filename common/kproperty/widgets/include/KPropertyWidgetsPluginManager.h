#pragma once

#include "kpropertywidgets_export.h"

#include <QObject>

#include <memory>

class KPropertyWidgetsFactory;
class QModelIndex;
class QPainter;
class QStyleOptionViewItem;
class QWidget;

/*! The editors of the process, by type of property. Those of the built-in types are registered at first use.

    A type belongs to the factory that was registered last for it. Use it in the GUI thread. */
class KPROPERTYWIDGETS_EXPORT KPropertyWidgetsPluginManager : public QObject
{
    Q_OBJECT

public:
    static KPropertyWidgetsPluginManager *self();

    bool isEditorForTypeAvailable(int type) const;

    /// Owned by \a parent. Null when the type has no editor or the editor's creator makes none for the
    /// property.
    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const;

    /// False when the type has no painter.
    bool paint(int type, QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const;

    /// Takes ownership. The factory is known to KPropertyFactoryManager from then on, too.
    void registerFactory(KPropertyWidgetsFactory *factory);

    KPropertyWidgetsPluginManager();
    ~KPropertyWidgetsPluginManager() override;

private:
    Q_DISABLE_COPY(KPropertyWidgetsPluginManager)
    class Private;
    const std::unique_ptr<Private> d;
};
