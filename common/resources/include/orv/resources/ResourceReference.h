#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace orv {

class ResourceReference;

/// How references travel. A null pointer means that there is none. == on these pointers tells whether they
/// are one object; whether two references name one resource is told by ResourceReferenceUtils::compare.
using ResourceReferenceSPtr = QSharedPointer<ResourceReference>;

/// The name of a file, folder or server object that a document points at. Never touches the disk or a server.
///
/// Text forms (docs/formats.md); words before the colon are read in any case:
///     ServerFile          talvane:/FOLDER/NAME
///     ExternalDataSource  eds:/SOURCE/FOLDER/NAME
///     LocalFile           a path of either system, or file:///..., which becomes a path
///     ManagedResource     managed:/ID/NAME, managed:/ID
///     UNIFI               unifi:/SERVER/{ID}/FOLDER/NAME, and from old documents unifi:/SERVER/FOLDER/NAME
/// Immutable, and safe on any thread.
class ORV_WORKFLOW_EXPORT ResourceReference
{
public:
    /// Stored in hosts' settings, never renumber.
    enum class Scheme : int
    {
        ServerFile = 1,
        ExternalDataSource = 2,
        LocalFile = 3,
        ManagedResource = 4,
        UNIFI = 5,
    };

    /// What a reference to something on a server consists of. Parts that a scheme doesn't have are empty.
    struct Parts
    {
        QString server; ///< UNIFI: the authority; ExternalDataSource: the name of the source
        QString id;     ///< UNIFI and ManagedResource
        QString folder; ///< not for ManagedResource; for the two file schemes it begins with a slash
        QString name;   ///< may hold slashes with UNIFI and ManagedResource

        bool operator==(const Parts &) const = default;
    };

    /// Empty text gives an empty reference, which is a local one. Fails with InvalidContent for a text with a
    /// zero character, for "word://..." of a word that is no scheme, and for one whose parts don't fit its
    /// scheme. Any other text is a path.
    [[nodiscard]] static Result<ResourceReferenceSPtr> fromString(const QString &text);

    /// Whether fromString would read \a text; far quicker where it is a path.
    [[nodiscard]] static bool isReference(const QString &text);

    /// A reference to something on a server; the parts that the scheme needs must be there. LocalFile fails:
    /// a path has no parts. InvalidContent names the part.
    [[nodiscard]] static Result<ResourceReferenceSPtr> create(Scheme scheme, const Parts &parts);

    [[nodiscard]] Scheme scheme() const { return m_scheme; }
    [[nodiscard]] bool isScheme(Scheme scheme) const { return m_scheme == scheme; }

    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }
    /// The stored form, which fromString reads back; a local reference's path, as it was given.
    [[nodiscard]] const QString &text() const { return m_text; }
    /// For people: a local path with the separators of its system, the others without what only machines
    /// read.
    [[nodiscard]] QString readableText() const;

    /// Empty for a local reference.
    [[nodiscard]] const Parts &parts() const { return m_parts; }
    /// The last name: of the file, folder or object. Trailing separators don't count.
    [[nodiscard]] QString name() const;

    /// Two references name the same resource exactly if their keys are equal: separators, "." and "..", and
    /// trailing separators don't count, nor case in paths with a drive letter or a server's share. Links are
    /// not followed. Fit for hashing.
    [[nodiscard]] const QString &key() const { return m_key; }
    /// A hash of the key, another one in each run of a program.
    [[nodiscard]] size_t keyHash() const { return m_keyHash; }

private:
    ResourceReference(Scheme scheme, QString text, Parts parts, QString key);

    const Scheme m_scheme;
    const QString m_text;
    const Parts m_parts;
    const QString m_key;
    const size_t m_keyHash;
};

} // namespace orv

Q_DECLARE_METATYPE(orv::ResourceReferenceSPtr)
