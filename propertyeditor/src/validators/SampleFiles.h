#pragma once

#include <orv/core/Result.h>
#include <orv/core_ms/MsDataFormat.h>
#include <orv/remote/SilentServers.h>
#include <orv/resources/ResourceReferenceKey.h>

#include <QHash>
#include <QSet>

namespace orv::PropertyEditor {

/// What one check has learnt of the resources that a document names, so that each is asked for once,
/// whichever validators want to know.
class SampleFiles
{
public:
    SampleFiles() = default;
    Q_DISABLE_COPY_MOVE(SampleFiles)

    /// Looks for all local files among \a references, several at a time. Others wait until they are asked
    /// for, and so do all where a host handles local files.
    void lookAhead(const QList<ResourceReferenceSPtr> &references);

    /// ResourceHandlerUtils::exists of \a reference, which fails for null.
    [[nodiscard]] Result<bool> exists(const ResourceReferenceSPtr &reference);
    /// ResourceHandlerUtils::validateReference of \a reference; null isn't valid.
    [[nodiscard]] bool isValid(const ResourceReferenceSPtr &reference);
    /// MsDataFileUtils::detectPossibleVendorFormats of \a path.
    [[nodiscard]] QSet<msreader::VendorDataFormat> possibleFormats(const QString &path);

private:
    /// What \a ask, a `Result<bool>()`, says of something that may lie on a server; a failure at once where
    /// that server was silent before.
    template<typename Ask>
    Result<bool> asked(const ResourceReferenceSPtr &reference, Ask ask);

    SilentServers m_silentServers;
    QHash<ResourceReferenceKey, Result<bool>> m_exists;
    QHash<ResourceReferenceKey, bool> m_isValid;
    QHash<QString, QSet<msreader::VendorDataFormat>> m_formats;
};

} // namespace orv::PropertyEditor
