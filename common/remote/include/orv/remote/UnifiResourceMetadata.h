#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QString>

namespace orv {

/// What a UNIFI server tells of an item; a sample keeps it beside its reference. A plain value. JSON form in
/// docs/servers.md; members that this version doesn't know are kept.
struct ORV_WORKFLOW_EXPORT UnifiResourceMetadata
{
    /// A folder by its own name, and by its whole path from the root, with slashes between and none at the
    /// ends.
    struct ORV_WORKFLOW_EXPORT Folder
    {
        QString name;
        QString path;

        /// Fails with InvalidContent when the path is missing, or a member is no text.
        [[nodiscard]] static Result<Folder> fromJson(const QJsonObject &json);
        bool operator==(const Folder &) const = default;
    };

    struct Item
    {
        QString id; ///< without braces
        QString name;
        QString path;  ///< of the folder in which it lies, as far as it was known
        Folder folder; ///< that folder, once the server was asked for it

        bool operator==(const Item &) const = default;
    };

    QString server; ///< host
    Item item;
    /// The object that the metadata were read from.
    QJsonObject stored;

    /// Fails with InvalidContent when there is no item, it has no name, or a member is of the wrong type.
    [[nodiscard]] static Result<UnifiResourceMetadata> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;
};

} // namespace orv
