#pragma once

#include <orv/widgets/Export.h>

#include <QtGlobal>

namespace orv {

class GridCommunicationManager;
class IGridItem;

/// Makes grid items of one kind. Holds nothing but what tells the kind.
class ORV_PROPERTY_EDITOR_EXPORT IGridItemCreator
{
public:
    IGridItemCreator() = default;
    virtual ~IGridItemCreator();
    Q_DISABLE_COPY_MOVE(IGridItemCreator)

    /// Owned by the caller; null where the kind can't be made.
    [[nodiscard]] virtual IGridItem *createGridItem() const = 0;
    /// The same for columns that talk over \a bus alone, such as those of one of several documents. Creators
    /// that don't override it make items on the bus that they know.
    [[nodiscard]] virtual IGridItem *createGridItemOn(GridCommunicationManager *bus) const;
};

/// Makes items that talk over the bus of the manager, unless they are given another one.
class ORV_PROPERTY_EDITOR_EXPORT TalkingItemCreator : public IGridItemCreator
{
public:
    [[nodiscard]] IGridItem *createGridItem() const override;
    [[nodiscard]] IGridItem *createGridItemOn(GridCommunicationManager *bus) const override = 0;
};

} // namespace orv
