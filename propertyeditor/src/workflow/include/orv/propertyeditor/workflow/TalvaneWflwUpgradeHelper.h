#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/workflow/WflwUpgradeHelper.h>
#include <orv/resources/ResourceReference.h>
#include <orv/samples/TraceItem.h>

#include <QHash>
#include <QString>

#include <optional>

namespace orv {

/// The steps for documents that are at home on a server. The server is that of TalvaneConnection.
class ORV_WORKFLOW_EXPORT TalvaneWflwUpgradeHelper : public WflwUpgradeHelper
{
public:
    /// As the step of the desktop, with what the server tells of the files. Fails for samples that lie
    /// elsewhere.
    Error upgradeV_5_10_1(PropertyEditorContent *content) override;

    /// From the traces of an acquired sample on the server as an older reader named them to the same traces
    /// as today's reader names them. No value if the sample's metadata are of a form without such mappings.
    /// Blocks until the server has answered; fails as TalvaneDownloadTolqMetadataTask does.
    [[nodiscard]] Result<std::optional<QHash<TraceInfo, TraceInfo>>>
    getCompatibilityMetadata(const ResourceReferenceSPtr &reference, const QString &fileName) const;
};

} // namespace orv
