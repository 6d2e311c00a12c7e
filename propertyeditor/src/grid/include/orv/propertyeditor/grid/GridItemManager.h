#pragma once

#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/widgets/Export.h>

#include <QSharedPointer>
#include <QtGlobal>

namespace orv {

class GridCommunicationManager;
class IGridItem;
class IGridItemCreator;

/// Knows how columns are made. Applications call registerCreators() when they start:
/// \code
///     GridItemManager::instance()->registerCreators();
/// \endcode
/// An application with columns of its own derives a manager, whose registerCreators() adds them, and installs
/// it with setCustomManager() before anything else. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GridItemManager
{
public:
    /// Knows the columns of settings; tables come with registerCreators().
    GridItemManager();
    virtual ~GridItemManager();
    Q_DISABLE_COPY_MOVE(GridItemManager)

    /// The one that was installed, else the library's own.
    [[nodiscard]] static GridItemManager *instance();
    /// Not owned; must outlive its items. Null brings the library's own back.
    static void setCustomManager(GridItemManager *manager);

    virtual void registerCreators();

    /// Owned from here, also where it replaces the creator that the type has.
    void registerCreator(BaseItemType type, IGridItemCreator *creator);

    /// Owned by the caller. Of a type without a creator it is a column of settings, which keeps the type that
    /// its cell has.
    /// With a \a bus its columns talk over that one, with null over the manager's.
    [[nodiscard]] IGridItem *createItem(BaseItemType type, GridCommunicationManager *bus = nullptr) const;

    /// The bus of items that aren't given another one.
    [[nodiscard]] GridCommunicationManager *communicationManager() const;

private:
    class Private;
    QSharedPointer<Private> d;
};

} // namespace orv
