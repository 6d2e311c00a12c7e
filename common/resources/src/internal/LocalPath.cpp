#include "LocalPath.h"

#include <orv/core/FilePathUtils.h>

#include <QDir>
#include <QStringDecoder>

namespace orv::LocalPath {

namespace {

/// -1 for a character that is no hexadecimal digit.
int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

QByteArray percentDecoded(const QByteArray &bytes)
{
    QByteArray result;
    result.reserve(bytes.size());
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const bool hasDigits = bytes[i] == '%' && i + 2 < bytes.size();
        const int high = hasDigits ? hexDigit(bytes[i + 1]) : -1;
        const int low = hasDigits ? hexDigit(bytes[i + 2]) : -1;
        const bool isCode = high >= 0 && low >= 0;
        result.append(isCode ? char(high * 16 + low) : bytes[i]);
        i += isCode ? 2 : 0;
    }
    return result;
}

bool isWindowsPath(const QString &path)
{
    return FilePathUtils::hasDriveLetter(path) || FilePathUtils::isUncPath(path);
}

} // namespace

std::optional<QString> fromFileUrl(const QString &url)
{
    QString rest = url.mid(url.indexOf(QLatin1Char(':')) + 1);
    const QLatin1String localHost("//localhost/");
    if (rest.startsWith(localHost, Qt::CaseInsensitive))
        rest.remove(0, localHost.size() - 1);
    else if (rest.startsWith(QLatin1String("///")))
        rest.remove(0, 2);
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString path = decoder(percentDecoded(rest.toUtf8()));
    if (decoder.hasError())
        return std::nullopt;
    if (path.startsWith(QLatin1Char('/')) && FilePathUtils::hasDriveLetter(path.mid(1)))
        path.remove(0, 1);
    return path;
}

bool hasBackslashSeparators(const QString &path)
{
    return !path.startsWith(QLatin1Char('/')) || isWindowsPath(path);
}

QString withSlashes(const QString &path)
{
    const QString plain = FilePathUtils::withoutWinLongPathPrefix(path);
    const QLatin1Char backslash('\\');
    const bool separates = plain.contains(backslash) && hasBackslashSeparators(plain);
    return separates ? QString(plain).replace(backslash, QLatin1Char('/')) : plain;
}

QString lastName(const QString &path)
{
    const QString slashed = withSlashes(path);
    QStringView rest = slashed;
    while (rest.endsWith(QLatin1Char('/')))
        rest.chop(1);
    return rest.sliced(rest.lastIndexOf(QLatin1Char('/')) + 1).toString();
}

QString key(const QString &path)
{
    if (path.isEmpty())
        return {};
    const QString slashed = withSlashes(path);
    const bool isUnc = FilePathUtils::isUncPath(path);
    // cleanPath takes the two slashes in front of a server's name for one.
    QString clean = QDir::cleanPath(isUnc ? slashed.mid(1) : slashed);
    if (isUnc)
        clean.prepend(QLatin1Char('/'));
    return isWindowsPath(path) ? clean.toCaseFolded() : clean;
}

bool isAbsolute(const QString &path)
{
    return path.startsWith(QLatin1Char('/')) || isWindowsPath(path) ||
           FilePathUtils::hasWinLongPathPrefix(path) || path.startsWith(QLatin1String("\\\\"));
}

} // namespace orv::LocalPath
