#include "orv/remote/TalvaneFileDownloadParameters.h"

namespace orv {

TalvaneFileDownloadParameters::TalvaneFileDownloadParameters(QString path, QString fileName, int version)
    : m_path(std::move(path))
    , m_fileName(std::move(fileName))
    , m_version(version)
{}

} // namespace orv
