#include "orv/remote/TalvaneDownloadTolqMetadataTask.h"

namespace orv {

TalvaneDownloadTolqMetadataTask::TalvaneDownloadTolqMetadataTask(TalvaneFileDownloadParameters parameters)
    : m_parameters(std::move(parameters))
{}

QString TalvaneDownloadTolqMetadataTask::path() const
{
    return QStringLiteral("api/%1/files/tolq-metadata").arg(m_parameters.version());
}

TalvaneTask::Query TalvaneDownloadTolqMetadataTask::query() const
{
    return {{QStringLiteral("path"), m_parameters.path()}, {QStringLiteral("name"), m_parameters.fileName()}};
}

Error TalvaneDownloadTolqMetadataTask::readAnswer(const QByteArray &json)
{
    Result<TolqMetadata> metadata = TolqMetadata::fromJson(json);
    if (metadata.hasError())
        return metadata.ecatch();
    m_metadata = *metadata;
    return Error::NoError;
}

} // namespace orv
