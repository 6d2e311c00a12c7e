#include "orv/resources/ResourceReference.h"

#include "internal/LocalPath.h"
#include "internal/SchemeText.h"

#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QHash>

#include <algorithm>

namespace orv {

namespace {

using Scheme = ResourceReference::Scheme;
using Parts = ResourceReference::Parts;

struct ResourceReferenceTr
{
    Q_DECLARE_TR_FUNCTIONS(ResourceReference)
};

Error notAReference(const QString &text, const QString &reason)
{
    return Error(ErrorCode::InvalidContent, ResourceReferenceTr::tr("\"%1\" is not a reference to a file.")
                                                .arg(ResourceReferenceUtils::withoutCredentials(text)))
        .addDetail(reason);
}

QString withWord(const SchemeText::Row &row, const QString &rest)
{
    return row.word + QLatin1String(":/") + rest;
}

bool isFileUrl(const QString &text)
{
    return text.startsWith(QLatin1String("file:"), Qt::CaseInsensitive);
}

/// One letter in front of "://" is a drive.
bool isUrlOfUnknownScheme(const QString &text)
{
    const QStringView word =
        QStringView(text).left(std::max<qsizetype>(text.indexOf(QLatin1String("://")), 0));
    const auto isLetter = [](QChar c) { return c.unicode() < 128 && c.isLetter(); };
    const auto isOfAWord = [&isLetter](QChar c) {
        return isLetter(c) || (c.unicode() < 128 && c.isDigit()) || QStringView(u"+.-").contains(c);
    };
    return word.size() >= 2 && isLetter(word.front()) && std::all_of(word.begin(), word.end(), isOfAWord);
}

/// A name taken out of a file URL may look like another form, which a folder in front prevents.
QString asPath(const QString &path)
{
    const bool looksOtherwise = isFileUrl(path) || SchemeText::rowOfText(path) || isUrlOfUnknownScheme(path);
    return looksOtherwise ? QLatin1String("./") + path : path;
}

/// Paths hold no zero character, so that no path has the key of another scheme.
QString keyOf(const SchemeText::Row &row, Parts parts)
{
    if (row.scheme == Scheme::UNIFI)
        parts.server = parts.server.toCaseFolded();
    else if (row.scheme != Scheme::ManagedResource)
        parts.folder = QDir::cleanPath(parts.folder);
    return QChar::Null + withWord(row, row.write(parts));
}

/// With one seed for the whole run, whatever is done to that of Qt.
size_t hashOf(const QString &key)
{
    static const size_t seed = QHashSeed::globalSeed();
    return qHash(key, seed);
}

} // namespace

ResourceReference::ResourceReference(Scheme scheme, QString text, Parts parts, QString key)
    : m_scheme(scheme)
    , m_text(std::move(text))
    , m_parts(std::move(parts))
    , m_key(std::move(key))
    , m_keyHash(hashOf(m_key))
{}

Result<ResourceReferenceSPtr> ResourceReference::fromString(const QString &text)
{
    if (text.contains(QChar::Null))
        return notAReference(text, ResourceReferenceTr::tr("It holds a zero character; take that out."));
    if (const SchemeText::Row *row = SchemeText::rowOfText(text)) {
        const QString rest = text.mid(row->word.size() + 1);
        if (!rest.startsWith(QLatin1Char('/')))
            return notAReference(
                text,
                ResourceReferenceTr::tr("Put a slash behind the colon, or \"./\" in front of a file name."));
        Result<Parts> parts = row->read(rest.mid(1));
        if (parts.hasError())
            return parts.ecatch();
        if (const QString fault = row->fault(*parts); !fault.isEmpty())
            return notAReference(text, ResourceReferenceTr::tr("It has no %1.").arg(fault));
        return ResourceReferenceSPtr(
            new ResourceReference(row->scheme, withWord(*row, rest.mid(1)), *parts, keyOf(*row, *parts)));
    }
    if (isFileUrl(text)) {
        const std::optional<QString> path = LocalPath::fromFileUrl(text);
        if (!path || path->contains(QChar::Null))
            return notAReference(
                text, ResourceReferenceTr::tr("Its percent codes are no UTF-8; name the file by its path."));
        const QString plain = asPath(*path);
        return ResourceReferenceSPtr(
            new ResourceReference(Scheme::LocalFile, plain, {}, LocalPath::key(plain)));
    }
    if (isUrlOfUnknownScheme(text))
        return notAReference(
            text, ResourceReferenceTr::tr("It is the address of a service that isn't known here."));
    return ResourceReferenceSPtr(new ResourceReference(Scheme::LocalFile, text, {}, LocalPath::key(text)));
}

bool ResourceReference::isReference(const QString &text)
{
    // Every other form has a colon behind a word, and a word has more than the one letter of a drive.
    const bool isPath = text.indexOf(QLatin1Char(':'), 2) < 0;
    return isPath ? !text.contains(QChar::Null) : !fromString(text).hasError();
}

Result<ResourceReferenceSPtr> ResourceReference::create(Scheme scheme, const Parts &parts)
{
    const SchemeText::Row *row = SchemeText::rowOf(scheme);
    if (!row)
        return Error(ErrorCode::InvalidContent,
                     ResourceReferenceTr::tr("A reference of scheme %1 has no parts.").arg(int(scheme)));
    if (const QString fault = row->fault(parts); !fault.isEmpty()) {
        return Error(ErrorCode::InvalidContent,
                     ResourceReferenceTr::tr("A reference needs its %1.").arg(fault))
            .addDetail(ResourceReferenceTr::tr("It is to be of the form \"%1\".")
                           .arg(withWord(*row, row->writeReadable(parts))));
    }
    // Read back, so that a part which the form can't hold is refused rather than changed.
    Result<ResourceReferenceSPtr> reference = fromString(withWord(*row, row->write(parts)));
    if (reference.hasError())
        return reference.ecatch();
    if ((*reference)->parts() != parts)
        return notAReference((*reference)->text(),
                             ResourceReferenceTr::tr("A part holds what separates parts."));
    return reference;
}

QString ResourceReference::readableText() const
{
    const SchemeText::Row *row = SchemeText::rowOf(m_scheme);
    return row ? withWord(*row, row->writeReadable(m_parts)) : QDir::toNativeSeparators(m_text);
}

QString ResourceReference::name() const
{
    if (m_scheme == Scheme::LocalFile)
        return LocalPath::lastName(m_text);
    return m_parts.name.isEmpty() ? m_parts.id : m_parts.name;
}

} // namespace orv
