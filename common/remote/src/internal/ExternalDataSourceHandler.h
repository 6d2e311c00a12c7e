#pragma once

#include <orv/resources/ResourceHandler.h>

namespace orv {

/// Files of external data sources, where those are mounted.
class ExternalDataSourceHandler final : public ResourceHandler
{
public:
    using ResourceHandler::ResourceHandler;

    [[nodiscard]] bool isAvailableLocally() const override;
    [[nodiscard]] Result<bool> exists() override;
    [[nodiscard]] Result<QString> grab() override;
    [[nodiscard]] Result<QJsonObject> metadata() override;

private:
    /// The handler of the local path.
    [[nodiscard]] Result<ResourceHandlerSPtr> local() const;
};

} // namespace orv
