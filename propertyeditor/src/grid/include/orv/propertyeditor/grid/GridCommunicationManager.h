#pragma once

#include <orv/propertyeditor/grid/GridMessage.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QObject>

namespace orv {

/// The bus between columns: each message reaches every other member at once, in the order in which they
/// registered, inside the emission of the sender. What a receiver sends in its turn comes first. Members that
/// go away while a message is on its way don't hear it any more. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GridCommunicationManager : public QObject
{
    Q_OBJECT

public:
    explicit GridCommunicationManager(QObject *parent = nullptr);
    ~GridCommunicationManager() override;

    /// A member registers itself; twice is once. Not owned.
    void registerCommunicative(GridCommunicative *member);
    void unregisterCommunicative(GridCommunicative *member);

private Q_SLOTS:
    void newMessage(const orv::GridMessage &message);

private:
    QList<GridCommunicative *> m_members;
};

} // namespace orv
