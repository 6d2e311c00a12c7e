#include "orv/widgets/TECWrapper.h"

#include <QLatin1String>

namespace orv::TECWrapper {

namespace {

constexpr QLatin1String kBegin("<tec>\n");
constexpr QLatin1String kEnd("\n</tec>");

bool isWrapped(const QString &text)
{
    return text.size() >= kBegin.size() + kEnd.size() && text.startsWith(kBegin) && text.endsWith(kEnd);
}

} // namespace

QString wrapTEC(const QString &script)
{
    return isWrapped(script) ? script : kBegin + script + kEnd;
}

QString unwrapTEC(const QString &text)
{
    return isWrapped(text) ? text.sliced(kBegin.size(), text.size() - kBegin.size() - kEnd.size()) : text;
}

} // namespace orv::TECWrapper
