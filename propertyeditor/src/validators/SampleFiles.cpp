#include "SampleFiles.h"

#include <orv/core/Logging.h>
#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/remote/ServerSettings.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>

#include <QtConcurrentMap>

namespace orv::PropertyEditor {

namespace {

/// Below it, threads cost more than they save.
constexpr qsizetype kWorthThreads = 32;

/// That is asked for what \a reference names; none where a disk is.
std::optional<ServerSettings> serverOf(const ResourceReferenceSPtr &reference)
{
    if (!reference)
        return {};
    switch (reference->scheme()) {
    case ResourceReference::Scheme::ServerFile:
    case ResourceReference::Scheme::ManagedResource:
        return ServerSettings::talvane();
    case ResourceReference::Scheme::UNIFI:
        return ServerSettings::unifi();
    default:
        return {};
    }
}

} // namespace

void SampleFiles::lookAhead(const QList<ResourceReferenceSPtr> &references)
{
    if (!ResourceManager::isBuiltIn(ResourceReference::Scheme::LocalFile))
        return; // a host's handler is asked on this thread alone
    QList<ResourceReferenceSPtr> unknown;
    unknown.reserve(references.size());
    QSet<ResourceReferenceKey> seen;
    seen.reserve(references.size());
    for (const ResourceReferenceSPtr &reference : references) {
        if (!reference || !reference->isScheme(ResourceReference::Scheme::LocalFile) ||
            m_exists.contains(reference))
            continue;
        const qsizetype seenBefore = seen.size();
        seen.insert(reference);
        if (seen.size() > seenBefore)
            unknown.append(reference);
    }
    if (unknown.size() < kWorthThreads)
        return;
    using Answers = std::vector<Result<bool>>;
    const Answers answers = QtConcurrent::blockingMapped<Answers>(unknown, &ResourceHandlerUtils::exists);
    m_exists.reserve(m_exists.size() + unknown.size());
    for (qsizetype i = 0; i < unknown.size(); ++i)
        m_exists.insert(unknown.at(i), answers.at(size_t(i)));
}

template<typename Ask>
Result<bool> SampleFiles::asked(const ResourceReferenceSPtr &reference, Ask ask)
{
    const std::optional<ServerSettings> server = serverOf(reference);
    if (!server)
        return ask();
    Result<bool> answer = false;
    if (Error error = m_silentServers.ask(*server, [&]() -> Error {
            answer = ask();
            return answer.hasError() ? answer.error() : Error();
        }))
        return error.ecatch();
    return answer;
}

Result<bool> SampleFiles::exists(const ResourceReferenceSPtr &reference)
{
    const auto known = m_exists.constFind(reference);
    if (known != m_exists.cend())
        return *known;
    return *m_exists.insert(reference,
                            asked(reference, [&] { return ResourceHandlerUtils::exists(reference); }));
}

bool SampleFiles::isValid(const ResourceReferenceSPtr &reference)
{
    const auto known = m_isValid.constFind(reference);
    if (known != m_isValid.cend())
        return *known;
    const Result<bool> exists = this->exists(reference);
    if (exists.hasError())
        qCWarning(genericLog()).noquote() << exists.error().errorMessage();
    else if (!*exists)
        qCWarning(genericLog()).noquote() << "There is no" << reference->readableText();
    return *m_isValid.insert(reference, exists.valueOr(false));
}

QSet<msreader::VendorDataFormat> SampleFiles::possibleFormats(const QString &path)
{
    const auto known = m_formats.constFind(path);
    if (known != m_formats.cend())
        return *known;
    return *m_formats.insert(path, MsDataFileUtils::detectPossibleVendorFormats(path));
}

} // namespace orv::PropertyEditor
