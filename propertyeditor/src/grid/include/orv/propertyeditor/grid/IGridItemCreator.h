#pragma once

#include <orv/widgets/Export.h>

#include <QtGlobal>

namespace orv {

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
};

} // namespace orv
