#include "orv/propertyeditor/grid/GridCommunicationManager.h"

#include "orv/propertyeditor/grid/GridCommunicative.h"

namespace orv {

GridCommunicative::GridCommunicative(GridCommunicationManager *manager, QObject *parent)
    : QObject(parent)
    , m_manager(manager)
{
    if (m_manager)
        m_manager->registerCommunicative(this);
}

GridCommunicative::~GridCommunicative()
{
    if (m_manager)
        m_manager->unregisterCommunicative(this);
}

GridCommunicationManager::GridCommunicationManager(QObject *parent)
    : QObject(parent)
{}

GridCommunicationManager::~GridCommunicationManager() = default;

void GridCommunicationManager::registerCommunicative(GridCommunicative *member)
{
    if (!member || m_members.contains(member))
        return;
    m_members.append(member);
    connect(member, &GridCommunicative::sendMessage, this, &GridCommunicationManager::newMessage);
}

void GridCommunicationManager::unregisterCommunicative(GridCommunicative *member)
{
    if (m_members.removeAll(member) > 0)
        disconnect(member, &GridCommunicative::sendMessage, this, &GridCommunicationManager::newMessage);
}

void GridCommunicationManager::newMessage(const GridMessage &message)
{
    const QPointer<GridCommunicationManager> self(this);
    const QList<GridCommunicative *> members = m_members;
    for (GridCommunicative *member : members) {
        if (!self)
            return;
        if (member != message.sender && m_members.contains(member))
            member->messageReceived(message);
    }
}

} // namespace orv
