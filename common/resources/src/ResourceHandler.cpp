#include "orv/resources/ResourceHandler.h"

#include <QCoreApplication>

namespace orv {

ResourceHandler::ResourceHandler(ResourceReferenceSPtr reference)
    : m_reference(std::move(reference))
{
    Q_ASSERT(m_reference);
}

ResourceHandler::~ResourceHandler() = default;

Result<QJsonObject> ResourceHandler::metadata()
{
    return Error(ErrorCode::InvalidContent,
                 QCoreApplication::translate("ResourceHandler", "\"%1\" has no metadata.")
                     .arg(m_reference->readableText()));
}

} // namespace orv
