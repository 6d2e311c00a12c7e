#include "SchemeText.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace orv::SchemeText {

namespace {

using Parts = ResourceReference::Parts;
using Scheme = ResourceReference::Scheme;

constexpr QLatin1Char kSlash('/');

struct SchemeTextTr
{
    Q_DECLARE_TR_FUNCTIONS(ResourceReference)
};

/// Splits at the first slash; the second part keeps it.
std::pair<QString, QString> splitFirst(const QString &text)
{
    const qsizetype slash = text.indexOf(kSlash);
    return slash < 0 ? std::pair{text, QString()} : std::pair{text.left(slash), text.mid(slash)};
}

/// Splits at the last slash, which belongs to neither part.
std::pair<QString, QString> splitLast(const QString &text)
{
    const qsizetype slash = text.lastIndexOf(kSlash);
    return {text.left(std::max<qsizetype>(slash, 0)), text.mid(slash + 1)};
}

/// A name may hold what separates parts; percent codes keep it whole.
QString encoded(QString text)
{
    return text.replace(QLatin1Char('%'), QLatin1String("%25"))
        .replace(kSlash, QLatin1String("%2F"))
        .replace(QLatin1Char('}'), QLatin1String("%7D"));
}

QString decoded(QString text)
{
    return text.replace(QLatin1String("%7D"), QLatin1String("}"), Qt::CaseInsensitive)
        .replace(QLatin1String("%2F"), QLatin1String("/"), Qt::CaseInsensitive)
        .replace(QLatin1String("%25"), QLatin1String("%"));
}

/// "/FOLDER/NAME": folders end without a slash, and the file's name may be missing for a folder itself.
Parts readPath(const QString &path)
{
    QString rest = path;
    while (rest.size() > 1 && rest.endsWith(kSlash))
        rest.chop(1);
    const auto [folder, name] = splitLast(rest);
    return {{}, {}, folder.isEmpty() ? QString(kSlash) : folder, name};
}

QString writePath(const Parts &parts)
{
    return parts.folder.endsWith(kSlash) ? parts.folder + parts.name : parts.folder + kSlash + parts.name;
}

QString folderFault(const Parts &parts)
{
    if (!parts.folder.startsWith(kSlash))
        return SchemeTextTr::tr("folder");
    return parts.name.isEmpty() || parts.name.contains(kSlash) ? SchemeTextTr::tr("name") : QString();
}

Result<Parts> readServerFile(const QString &rest)
{
    return readPath(kSlash + rest);
}

QString writeServerFile(const Parts &parts)
{
    return writePath(parts).mid(1);
}

Result<Parts> readExternal(const QString &rest)
{
    const auto [source, path] = splitFirst(rest);
    Parts parts = readPath(path);
    parts.server = source;
    return parts;
}

QString writeExternal(const Parts &parts)
{
    return parts.server + writePath(parts);
}

QString externalFault(const Parts &parts)
{
    return parts.server.isEmpty() || parts.server.contains(kSlash) ? SchemeTextTr::tr("source")
                                                                   : folderFault(parts);
}

Result<Parts> readManaged(const QString &rest)
{
    const auto [id, name] = splitFirst(rest);
    return Parts{{}, decoded(id), {}, decoded(name.mid(1))};
}

QString writeManaged(const Parts &parts)
{
    const QString id = encoded(parts.id);
    return parts.name.isEmpty() ? id : id + kSlash + encoded(parts.name);
}

QString readableManaged(const Parts &parts)
{
    return parts.name.isEmpty() ? parts.id : parts.name;
}

QString managedFault(const Parts &parts)
{
    return parts.id.isEmpty() ? SchemeTextTr::tr("identifier") : QString();
}

/// With an identifier in braces in the second place; without one it is the form of old documents, whose
/// characters all stand for themselves.
Result<Parts> readUnifi(const QString &rest)
{
    const auto [server, tail] = splitFirst(rest);
    if (!tail.startsWith(QLatin1String("/{"))) {
        const auto [folder, name] = splitLast(tail.mid(1));
        return Parts{server, {}, folder, name};
    }
    const qsizetype end = tail.indexOf(QLatin1String("}/"));
    if (end < 0) {
        return Error(ErrorCode::InvalidContent, SchemeTextTr::tr("The identifier has no end."))
            .addDetail(SchemeTextTr::tr("Write it in braces, \"unifi:/SERVER/{ID}/FOLDER/NAME\"."));
    }
    const auto [folder, name] = splitLast(tail.mid(end + 2));
    return Parts{server, decoded(tail.mid(2, end - 2)), folder, decoded(name)};
}

QString writeOldUnifi(const Parts &parts)
{
    const QString tail = parts.folder.isEmpty() ? parts.name : parts.folder + kSlash + parts.name;
    return parts.server + kSlash + tail;
}

/// Old documents may hold the user and the password with which a server was asked.
QString readableUnifi(const Parts &parts)
{
    static const QRegularExpression atSign(QStringLiteral("@|%40"));
    Parts shown = parts;
    shown.server = parts.server.section(atSign, -1);
    return writeOldUnifi(shown);
}

QString writeUnifi(const Parts &parts)
{
    if (parts.id.isEmpty())
        return writeOldUnifi(parts);
    return parts.server + QLatin1String("/{") + encoded(parts.id) + QLatin1String("}/") + parts.folder +
           kSlash + encoded(parts.name);
}

QString unifiFault(const Parts &parts)
{
    if (parts.server.isEmpty() || parts.server.contains(kSlash))
        return SchemeTextTr::tr("server");
    return parts.name.isEmpty() ? SchemeTextTr::tr("name") : QString();
}

// clang-format off
constexpr std::array kRows = {
    Row{Scheme::ServerFile, QLatin1String("talvane"), readServerFile, writeServerFile, writeServerFile, folderFault},
    Row{Scheme::ExternalDataSource, QLatin1String("eds"), readExternal, writeExternal, writeExternal, externalFault},
    Row{Scheme::ManagedResource, QLatin1String("managed"), readManaged, writeManaged, readableManaged, managedFault},
    Row{Scheme::UNIFI, QLatin1String("unifi"), readUnifi, writeUnifi, readableUnifi, unifiFault},
};
// clang-format on

} // namespace

const Row *rowOf(Scheme scheme)
{
    const auto *const row =
        std::find_if(kRows.begin(), kRows.end(), [scheme](const Row &r) { return r.scheme == scheme; });
    return row == kRows.end() ? nullptr : row;
}

const Row *rowOfText(const QString &text)
{
    const QStringView word = QStringView(text).left(std::max<qsizetype>(text.indexOf(QLatin1Char(':')), 0));
    const auto *const row = std::find_if(kRows.begin(), kRows.end(), [word](const Row &r) {
        return word.compare(r.word, Qt::CaseInsensitive) == 0;
    });
    return row == kRows.end() ? nullptr : row;
}

} // namespace orv::SchemeText
