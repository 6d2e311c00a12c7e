#pragma once

#include <orv/propertyeditor/grid/GridMessage.h>
#include <orv/widgets/Export.h>

#include <QObject>
#include <QPointer>

namespace orv {

class GridCommunicationManager;

/// A member of the bus between columns, from its construction to its destruction. GUI thread.
///
/// An item that takes part inherits this class first and IGridItem second.
class ORV_PROPERTY_EDITOR_EXPORT GridCommunicative : public QObject
{
    Q_OBJECT

public:
    /// A null \a manager makes an item that neither speaks nor hears.
    explicit GridCommunicative(GridCommunicationManager *manager, QObject *parent = nullptr);
    ~GridCommunicative() override;

    /// Hears what all others on the bus send, whatever it is about.
    virtual void messageReceived(const GridMessage &message) = 0;

Q_SIGNALS:
    void sendMessage(const orv::GridMessage &message);

private:
    QPointer<GridCommunicationManager> m_manager;
};

} // namespace orv
