#include "NativeNames.h"

#include <QByteArray>

#include <algorithm>
#include <string_view>

namespace orv::cli {

namespace {

constexpr char16_t kForeign = 0xDC00; // plus the byte

bool isForeign(QString::const_iterator c, const QString &name)
{
    const bool isPaired = c != name.begin() && (c - 1)->isHighSurrogate();
    return c->isLowSurrogate() && !isPaired;
}

/// The length of the character that \a bytes begin with; 0 where they begin with none.
size_t characterLength(std::string_view bytes)
{
    constexpr size_t kLongest = 4;
    for (size_t length = 1; length <= std::min(kLongest, bytes.size()); ++length) {
        const QByteArray character(bytes.data(), qsizetype(length));
        if (QString::fromUtf8(character).toUtf8() == character)
            return length;
    }
    return 0;
}

} // namespace

QString nameFromBytes(const char *bytes)
{
    QString plain = QString::fromUtf8(bytes);
    if (plain.toUtf8() == bytes)
        return plain;
    QString name;
    for (std::string_view rest(bytes); !rest.empty();) {
        const size_t length = characterLength(rest);
        name += length > 0 ? QString::fromUtf8(rest.data(), qsizetype(length))
                           : QString(QChar(char16_t(kForeign + uchar(rest.front()))));
        rest.remove_prefix(std::max<size_t>(length, 1));
    }
    return name;
}

bool hasForeignBytes(const QString &name)
{
    for (auto c = name.begin(); c != name.end(); ++c) {
        if (isForeign(c, name))
            return true;
    }
    return false;
}

QString withEscapedBytes(const QString &name)
{
    if (!hasForeignBytes(name))
        return name;
    QString text;
    for (auto c = name.begin(); c != name.end(); ++c) {
        if (isForeign(c, name))
            text += QStringLiteral("\\x%1").arg(c->unicode() - kForeign, 2, 16, QLatin1Char('0'));
        else
            text += *c;
    }
    return text;
}

Outcome<void> checkName(const QString &name, ExitCode exitCode)
{
    if (!hasForeignBytes(name))
        return {};
    return Failure{
        exitCode, 0,
        QStringLiteral("The name holds bytes that are no UTF-8, so that it can't be opened. Rename "
                       "it, for example with convmv.")};
}

} // namespace orv::cli
