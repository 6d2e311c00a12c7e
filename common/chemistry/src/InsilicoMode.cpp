#include "orv/chemistry/InsilicoMode.h"

#include <orv/core/Logging.h>

#include <array>

namespace orv {

namespace {

struct Word
{
    QLatin1String text;
    InsilicoMode mode;
};

constexpr std::array kWords = {
    Word{QLatin1String("0"), InsilicoMode::Off},
    Word{QLatin1String("1"), InsilicoMode::TheoreticalDigest},
    Word{QLatin1String("false"), InsilicoMode::Off},
    Word{QLatin1String("true"), InsilicoMode::TheoreticalDigest},
    Word{QLatin1String(""), InsilicoMode::Off},
};

} // namespace

InsilicoMode modeFromString(const QString &text)
{
    for (const Word &word : kWords) {
        if (text == word.text)
            return word.mode;
    }
    qCWarning(genericLog()) << "Unknown in-silico mode, taken as off:" << text;
    return InsilicoMode::Off;
}

} // namespace orv
