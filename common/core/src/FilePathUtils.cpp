#include "orv/core/FilePathUtils.h"

namespace orv::FilePathUtils {

namespace {

bool isSeparator(QChar c)
{
    return c == QLatin1Char('/') || c == QLatin1Char('\\');
}

/// "UNC" and a separator behind the long-path prefix stand for the two separators of a share.
bool hasLongUncPrefix(const QString &path)
{
    constexpr qsizetype kPrefix = 4;
    return hasWinLongPathPrefix(path) && path.size() > kPrefix + 3 && isSeparator(path[kPrefix + 3]) &&
           QStringView(path).sliced(kPrefix, 3).compare(QLatin1String("UNC"), Qt::CaseInsensitive) == 0;
}

} // namespace

int winMaxPathLength()
{
    return 260;
}

bool isWinLongPath(const QString &path)
{
    return path.size() > winMaxPathLength();
}

bool hasWinLongPathPrefix(const QString &path)
{
    return path.startsWith(QLatin1String(R"(\\?\)")) || path.startsWith(QLatin1String("//?/"));
}

QString withoutWinLongPathPrefix(const QString &path)
{
    if (hasLongUncPrefix(path))
        return path.left(2) + path.mid(8);
    return hasWinLongPathPrefix(path) ? path.mid(4) : path;
}

bool hasDriveLetter(const QString &path)
{
    const QString plain = withoutWinLongPathPrefix(path);
    const auto isLetter = [](QChar c) { return c.unicode() < 128 && c.isLetter(); };
    return plain.size() >= 2 && isLetter(plain[0]) && plain[1] == QLatin1Char(':') &&
           (plain.size() == 2 || isSeparator(plain[2]));
}

bool isUncPath(const QString &path)
{
    const QString plain = withoutWinLongPathPrefix(path);
    if (hasWinLongPathPrefix(path) && !hasLongUncPrefix(path))
        return false;
    const bool hasServer =
        plain.size() > 2 && isSeparator(plain[0]) && plain[0] == plain[1] && !isSeparator(plain[2]);
    // "\\.\" leads to devices of this machine.
    return hasServer && !(plain[2] == QLatin1Char('.') && (plain.size() == 3 || isSeparator(plain[3])));
}

} // namespace orv::FilePathUtils
