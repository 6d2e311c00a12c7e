#pragma once

#include <orv/resources/ResourceHandler.h>

#include <optional>

namespace orv {

/// Files and folders of this machine. A relative path is taken from the current folder; links are followed. A
/// path whose backslashes lead nowhere here is tried with slashes, as documents travel between systems.
class LocalResourceHandler final : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    [[nodiscard]] bool isAvailableLocally() const override;
    [[nodiscard]] Result<bool> exists() override;
    [[nodiscard]] Result<QString> grab() override;
    /// "name", "path", "modified" (UTC, ISO 8601) and, for a file, "size".
    [[nodiscard]] Result<QJsonObject> metadata() override;

private:
    /// The spelling of the path that exists.
    [[nodiscard]] std::optional<QString> path() const;
};

} // namespace orv
