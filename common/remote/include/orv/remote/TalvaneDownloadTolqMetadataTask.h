#pragma once

#include <orv/core_ms/TolqMetadata.h>
#include <orv/remote/TalvaneFileDownloadParameters.h>
#include <orv/remote/TalvaneTask.h>

namespace orv {

/// Fetches what an acquired sample on the server says of itself, without the sample.
class ORV_WORKFLOW_EXPORT TalvaneDownloadTolqMetadataTask : public TalvaneTask
{
    Q_OBJECT

public:
    explicit TalvaneDownloadTolqMetadataTask(TalvaneFileDownloadParameters parameters);

    /// Empty until the task has succeeded.
    [[nodiscard]] const TolqMetadata &metadata() const { return m_metadata; }

private:
    [[nodiscard]] QString path() const override;
    [[nodiscard]] Query query() const override;
    [[nodiscard]] Error readAnswer(const QByteArray &json) override;

    TalvaneFileDownloadParameters m_parameters;
    TolqMetadata m_metadata;
};

} // namespace orv
