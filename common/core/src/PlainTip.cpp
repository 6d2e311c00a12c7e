#include "orv/core/PlainTip.h"

QString orv::PlainTip::of(const QString &text)
{
    // Whatever holds neither is shown as it is.
    if (!text.contains(QLatin1Char('<')) && !text.contains(QLatin1String("&lt;")))
        return text;
    return QStringLiteral("<p>%1</p>")
        .arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
}
