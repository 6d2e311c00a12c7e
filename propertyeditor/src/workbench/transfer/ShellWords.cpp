#include "ShellWords.h"

#include <algorithm>

namespace orv {

namespace {

bool isPlain(QChar letter)
{
    return (letter.unicode() < 128 && letter.isLetterOrNumber()) ||
           QStringLiteral("_./:=@%+,-").contains(letter);
}

/// Reads one word from \a at on; false where a quote isn't closed.
bool readWord(const QString &line, qsizetype *at, QString *word)
{
    QChar quote;
    for (; *at < line.size(); ++*at) {
        const QChar letter = line.at(*at);
        const QChar next = *at + 1 < line.size() ? line.at(*at + 1) : QChar();
        if (letter == quote) {
            quote = QChar();
        } else if (quote.isNull() && (letter == u'\'' || letter == u'"')) {
            quote = letter;
        } else if (quote.isNull() && letter.isSpace()) {
            return true;
        } else if (letter == u'\\' && !next.isNull() &&
                   (quote.isNull() || (quote == u'"' && QStringLiteral("$`\"\\").contains(next)))) {
            *word += next;
            ++*at;
        } else {
            *word += letter;
        }
    }
    return quote.isNull();
}

} // namespace

std::optional<QString> ShellWords::quoted(const QString &word)
{
    if (word.contains(QChar(0)))
        return {};
    if (!word.isEmpty() && std::ranges::all_of(word, isPlain))
        return word;
    return u'\'' + QString(word).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

std::optional<QStringList> ShellWords::split(const QString &line)
{
    QStringList words;
    for (qsizetype at = 0; at < line.size(); ++at) {
        if (line.at(at) == u'\n' && !words.isEmpty())
            break;
        if (line.at(at).isSpace())
            continue;
        QString word;
        if (!readWord(line, &at, &word))
            return {};
        words.append(word);
        --at;
    }
    return words;
}

} // namespace orv
