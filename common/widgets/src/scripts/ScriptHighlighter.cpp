#include "ScriptHighlighter.h"

#include <orv/widgets/MeaningColors.h>

namespace orv {

namespace {

/// Longer lines are data, and marks in them help nobody.
constexpr qsizetype kMarkedLine = 10'000;

} // namespace

ScriptHighlighter::ScriptHighlighter(QTextDocument *document, const QPalette &palette)
    : QSyntaxHighlighter(document)
    , m_palette(palette)
{}

void ScriptHighlighter::highlightBlock(const QString &text)
{
    if (text.size() > kMarkedLine)
        return;
    QTextCharFormat quiet;
    quiet.setForeground(MeaningColors::quiet(m_palette));
    const QString trimmed = text.trimmed();
    if (trimmed == QLatin1String("<tec>") || trimmed == QLatin1String("</tec>")) {
        setFormat(0, int(text.size()), quiet);
        return;
    }
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    qsizetype open = text.indexOf(u'{');
    while (open >= 0) {
        const qsizetype close = text.indexOf(u'}', open);
        if (close < 0)
            break;
        setFormat(int(open), int(close - open + 1), bold);
        open = text.indexOf(u'{', close);
    }
    if (const qsizetype comment = text.indexOf(QLatin1String("//")); comment >= 0)
        setFormat(int(comment), int(text.size() - comment), quiet);
}

} // namespace orv
