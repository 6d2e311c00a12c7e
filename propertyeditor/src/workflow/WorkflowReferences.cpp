#include "orv/propertyeditor/workflow/WorkflowReferences.h"

#include "ReferenceWalk.h"

#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QDir>
#include <QSet>

namespace orv::WorkflowReferences {

namespace {

using Kind = ReferenceWalk::Kind;

QStringList pathsOf(Kind kind, const QString &text, const QUrl &baseUrl)
{
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (reference.hasError())
        return {};
    const bool isRelative = ResourceReferenceUtils::isRelative(*reference);
    if (isRelative && (kind == Kind::PlainText || !baseUrl.isLocalFile()))
        return {};
    const QString path =
        ResourceHandlerUtils::fullPath(ResourceReferenceUtils::resolved(*reference, baseUrl));
    if (path.isEmpty())
        return {};
    QStringList paths{QDir::cleanPath(path)};
    // Portable workflows name their databases as if they lay at the root.
    if (kind == Kind::GlycanDatabase && !isRelative && baseUrl.isLocalFile())
        paths.append(QDir::cleanPath(baseUrl.toLocalFile() + path));
    return paths;
}

} // namespace

QStringList localPaths(const QJsonObject &document, const QUrl &baseUrl)
{
    QSet<QString> paths;
    const ReferenceWalk walk([&](Kind kind, const ReferenceWalk::Place & /*place*/, const QString &text) {
        for (const QString &path : pathsOf(kind, text, baseUrl))
            paths.insert(path);
        return std::optional<QString>();
    });
    [[maybe_unused]] const QJsonObject same = walk.walk(document);
    return paths.values();
}

QJsonObject withAbsolutePaths(const QJsonObject &document, const QUrl &baseUrl)
{
    if (!baseUrl.isLocalFile())
        return document;
    const ReferenceWalk walk([&](Kind kind, const ReferenceWalk::Place & /*place*/, const QString &text) {
        const Result<ResourceReferenceSPtr> reference =
            kind == Kind::PlainText ? Result<ResourceReferenceSPtr>(ResourceReferenceSPtr())
                                    : ResourceReference::fromString(text);
        if (reference.hasError() || !*reference || !ResourceReferenceUtils::isRelative(*reference))
            return std::optional<QString>();
        const QString path =
            ResourceHandlerUtils::fullPath(ResourceReferenceUtils::resolved(*reference, baseUrl));
        return path.isEmpty() ? std::optional<QString>() : std::optional(QDir::cleanPath(path));
    });
    return walk.walk(document);
}

} // namespace orv::WorkflowReferences
