#include "Console.h"

#include "NativeNames.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace orv::cli {

namespace {

/// A terminal that follows escape sequences.
bool isTerminal(int descriptor)
{
    return isatty(descriptor) == 1 && qgetenv("TERM") != "dumb";
}

bool coloursWanted()
{
    static const bool wanted = standardOutputIsTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR");
    return wanted;
}

const char *escapeOf(Style style)
{
    switch (style) {
    case Style::Heading:
        return "\x1b[1m";
    case Style::Good:
        return "\x1b[32m";
    case Style::Caution:
        return "\x1b[33m";
    case Style::Bad:
        return "\x1b[31m";
    case Style::Faint:
        return "\x1b[2m";
    }
    return "";
}

} // namespace

bool writeStandardOutput(const QByteArray &bytes)
{
    const auto size = static_cast<size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return true;
    // Who reads the first lines alone ("| head") has all that was wanted.
    return errno == EPIPE;
}

bool standardOutputIsTerminal()
{
    return isTerminal(STDOUT_FILENO);
}

bool standardErrorIsTerminal()
{
    return isTerminal(STDERR_FILENO);
}

QString withoutControls(QString text)
{
    text = withEscapedBytes(text);
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return text;
}

QString styled(const QString &text, Style style)
{
    if (!coloursWanted())
        return text;
    return QLatin1String(escapeOf(style)) + text + QLatin1String("\x1b[0m");
}

} // namespace orv::cli
