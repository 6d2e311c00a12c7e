#include "orv/resources/ResourceReferenceUtils.h"

#include "internal/LocalPath.h"

#include <orv/core/Logging.h>

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace orv::ResourceReferenceUtils {

QString toString(const ResourceReferenceSPtr &reference, bool readable)
{
    if (!reference)
        return {};
    return readable ? reference->readableText() : reference->text();
}

QString withoutCredentials(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"((?:(\bunifi:/{1,3})[^/"<>\n]*|(\b[a-z][a-z0-9+.-]*://)[^/\s"<>]*)(?:@|%40))"),
        QRegularExpression::CaseInsensitiveOption);
    return QString(text).replace(pattern, QStringLiteral("\\1\\2"));
}

QStringList toStringList(const QList<ResourceReferenceSPtr> &references, bool readable)
{
    QStringList texts;
    texts.reserve(references.size());
    for (const ResourceReferenceSPtr &reference : references) {
        if (reference)
            texts.append(toString(reference, readable));
    }
    return texts;
}

ResourceReferenceSPtr fromString(const QString &text)
{
    if (text.isEmpty())
        return {};
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    if (reference.hasError())
        qCWarning(genericLog()).noquote() << reference.error().errorMessage();
    return reference.valueOr({});
}

ResourceReferenceSPtr fromVariant(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? fromString(value.toString())
                                                : value.value<ResourceReferenceSPtr>();
}

QList<ResourceReferenceSPtr> fromStringList(const QStringList &texts)
{
    QList<ResourceReferenceSPtr> references;
    references.reserve(texts.size());
    for (const QString &text : texts) {
        if (const ResourceReferenceSPtr reference = fromString(text))
            references.append(reference);
    }
    return references;
}

bool compare(const ResourceReferenceSPtr &a, const ResourceReferenceSPtr &b)
{
    if (!a || !b || a == b)
        return a == b;
    return a->keyHash() == b->keyHash() && a->key() == b->key();
}

bool contains(const QList<ResourceReferenceSPtr> &references, const ResourceReferenceSPtr &reference)
{
    return std::any_of(
        references.begin(), references.end(),
        [&reference](const ResourceReferenceSPtr &other) { return compare(other, reference); });
}

QString localName(const ResourceReferenceSPtr &reference)
{
    return reference ? reference->name() : QString();
}

FileType type(const ResourceReferenceSPtr &reference)
{
    return FileTypes::typeOfPath(localName(reference));
}

QList<ResourceReferenceSPtr> unsupportedReferences(const QList<ResourceReferenceSPtr> &references,
                                                   const QList<ResourceReference::Scheme> &supported)
{
    QList<ResourceReferenceSPtr> unsupported;
    for (const ResourceReferenceSPtr &reference : references) {
        if (reference && !reference->isEmpty() && !supported.contains(reference->scheme()))
            unsupported.append(reference);
    }
    return unsupported;
}

bool isRelative(const ResourceReferenceSPtr &reference)
{
    return reference && reference->isScheme(ResourceReference::Scheme::LocalFile) && !reference->isEmpty() &&
           !LocalPath::isAbsolute(reference->text());
}

ResourceReferenceSPtr resolved(const ResourceReferenceSPtr &reference, const QUrl &baseUrl)
{
    if (!isRelative(reference) || !baseUrl.isLocalFile())
        return reference;
    const QString base = baseUrl.toLocalFile();
    const QString folder = base.left(base.lastIndexOf(QLatin1Char('/')) + 1);
    return fromString(QDir::cleanPath(folder + LocalPath::withSlashes(reference->text())));
}

} // namespace orv::ResourceReferenceUtils
