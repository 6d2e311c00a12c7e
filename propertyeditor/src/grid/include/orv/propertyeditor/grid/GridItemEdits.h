#pragma once

#include <orv/widgets/Export.h>

#include <QObject>

namespace orv {

/// Tells what a person did to a grid item. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GridItemEdits : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /// The item's content() became another one by a person's hand, in this column or in one that it follows;
    /// never because content was set. May come once too often, never too rarely.
    void edited();
};

} // namespace orv
