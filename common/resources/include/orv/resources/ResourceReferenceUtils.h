#pragma once

#include <orv/core/Export.h>
#include <orv/core/FileTypes.h>
#include <orv/resources/ResourceReference.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>

/// Questions about references that may be null. None touches the disk or a server. Any thread.
namespace orv::ResourceReferenceUtils {

/// The stored form, or with \a readable the form for people; empty for a null reference.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString toString(const ResourceReferenceSPtr &reference,
                                                   bool readable = false);
/// \a text, which may hold several references or addresses, without the users and passwords in front of their
/// servers, as old documents have them. For every text that people or logs get to see.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString withoutCredentials(const QString &text);
/// The texts of all references but null ones.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList toStringList(const QList<ResourceReferenceSPtr> &references,
                                                           bool readable = false);

/// Null for an empty text, and for one that is no reference, which is logged as a warning.
[[nodiscard]] ORV_WORKFLOW_EXPORT ResourceReferenceSPtr fromString(const QString &text);
/// The reference in a property's value, or the one that a text in its place names: upgraded documents hold
/// such texts. Null for anything else.
[[nodiscard]] ORV_WORKFLOW_EXPORT ResourceReferenceSPtr fromVariant(const QVariant &value);
/// As fromString for each text; null ones are left out.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<ResourceReferenceSPtr> fromStringList(const QStringList &texts);

/// Whether both name the same resource, see ResourceReference::key. Two null references are alike, a null and
/// an empty one are not.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool compare(const ResourceReferenceSPtr &a,
                                               const ResourceReferenceSPtr &b);
[[nodiscard]] ORV_WORKFLOW_EXPORT bool contains(const QList<ResourceReferenceSPtr> &references,
                                                const ResourceReferenceSPtr &reference);

/// The last name, by which people call the resource and by which its type is told; empty for null.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString localName(const ResourceReferenceSPtr &reference);
/// The type that the suffix of localName tells, FileTypes::Invalid for none.
[[nodiscard]] ORV_WORKFLOW_EXPORT FileType type(const ResourceReferenceSPtr &reference);

/// The references whose scheme isn't among \a supported, in their order. Null and empty ones name nothing
/// and are left out.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<ResourceReferenceSPtr>
unsupportedReferences(const QList<ResourceReferenceSPtr> &references,
                      const QList<ResourceReference::Scheme> &supported);

/// Whether the reference is a local path that counts from some folder; an empty one isn't.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isRelative(const ResourceReferenceSPtr &reference);

/// \a reference with a relative local path taken from \a baseUrl, whose path counts up to its last slash.
/// The path is joined as a path: "#", "?", "%" and blanks in names survive; backslashes that separate names
/// become slashes. Any other reference, and any with
/// a base that is no file URL, is returned unchanged.
[[nodiscard]] ORV_WORKFLOW_EXPORT ResourceReferenceSPtr resolved(const ResourceReferenceSPtr &reference,
                                                                 const QUrl &baseUrl);

} // namespace orv::ResourceReferenceUtils
