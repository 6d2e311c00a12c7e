#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonObject>
#include <QSharedPointer>
#include <QString>

namespace orv {

/// Access to the resource that a reference names. One class per scheme; ResourceManager makes them. Functions
/// may block on a disk or server unless said otherwise. A handler belongs to one thread at a time, and keeps
/// what it fetched until it is destroyed.
class ORV_WORKFLOW_EXPORT ResourceHandler
{
public:
    explicit ResourceHandler(ResourceReferenceSPtr reference);
    virtual ~ResourceHandler();
    Q_DISABLE_COPY_MOVE(ResourceHandler)

    /// Never null.
    [[nodiscard]] const ResourceReferenceSPtr &reference() const { return m_reference; }

    /// Whether grab() has nothing to fetch. Doesn't ask a server.
    [[nodiscard]] virtual bool isAvailableLocally() const = 0;

    /// Whether there is such a resource. Fails when that can't be found out.
    [[nodiscard]] virtual Result<bool> exists() = 0;

    /// The local path of the resource, fetched if need be. Fails with CannotOpenFile when there is none.
    [[nodiscard]] virtual Result<QString> grab() = 0;

    /// What the resource's home tells of it, such as "name", "size" in bytes and "modified". A home that
    /// tells nothing fails with InvalidContent.
    [[nodiscard]] virtual Result<QJsonObject> metadata();

private:
    const ResourceReferenceSPtr m_reference;
};

using ResourceHandlerSPtr = QSharedPointer<ResourceHandler>;

} // namespace orv
