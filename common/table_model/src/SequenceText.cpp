#include "orv/table_model/SequenceText.h"

#include <algorithm>

namespace orv::SequenceText {

namespace {

bool opensBracket(QChar c)
{
    return c == u'(' || c == u'[' || c == u'{';
}

bool closesBracket(QChar c)
{
    return c == u')' || c == u']' || c == u'}';
}

/// Walks over residues; a bracket that isn't closed holds the rest.
class Residues
{
public:
    explicit Residues(QStringView sequence)
        : m_sequence(sequence)
    {}

    [[nodiscard]] bool isAtEnd() const { return m_at == m_sequence.size(); }
    [[nodiscard]] qsizetype at() const { return m_at; }

    /// Behind the next residue and what belongs to it; false for a stretch without one.
    bool step()
    {
        const bool isResidue = !opensBracket(m_sequence[m_at]);
        if (isResidue)
            ++m_at;
        while (!isAtEnd() && opensBracket(m_sequence[m_at]))
            skipBracket();
        return isResidue;
    }

private:
    void skipBracket()
    {
        int depth = 0;
        do {
            depth += int(opensBracket(m_sequence[m_at])) - int(closesBracket(m_sequence[m_at]));
            ++m_at;
        } while (!isAtEnd() && depth > 0);
    }

    QStringView m_sequence;
    qsizetype m_at = 0;
};

bool isPosition(QStringView word)
{
    return std::all_of(word.cbegin(), word.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

QList<Block> blocks(QStringView sequence, qsizetype atMost)
{
    QList<Block> result;
    Residues residues(sequence);
    qsizetype position = 0;
    while (!residues.isAtEnd() && result.size() != atMost) {
        const qsizetype begin = residues.at();
        for (int count = 0; count < kBlock && !residues.isAtEnd();)
            count += residues.step() ? 1 : 0;
        const QStringView text = sequence.sliced(begin, residues.at() - begin);
        position += residueCount(text);
        result.append({text, position});
    }
    return result;
}

qsizetype residueCount(QStringView sequence)
{
    qsizetype count = 0;
    for (Residues residues(sequence); !residues.isAtEnd();)
        count += residues.step() ? 1 : 0;
    return count;
}

QString blocked(QStringView sequence)
{
    QString text;
    for (const Block &block : blocks(sequence)) {
        if (!text.isEmpty())
            text += u' ';
        text += block.text;
    }
    return text;
}

QString lines(QStringView sequence, int blocksPerLine, int atMostLines)
{
    const QList<Block> all = blocks(sequence, qsizetype(blocksPerLine) * atMostLines + 1);
    const qsizetype count = std::min(all.size(), qsizetype(blocksPerLine) * atMostLines);
    if (count == 0)
        return {};
    const auto digits = int(QString::number(all[count - 1].lastPosition).size());
    QString text;
    qsizetype next = 1;
    for (qsizetype i = 0; i < count; ++i) {
        if (i % blocksPerLine == 0)
            text += (i > 0 ? QStringLiteral("\n") : QString()) + QString::number(next).rightJustified(digits);
        text += u' ';
        text += all[i].text;
        next = all[i].lastPosition + 1;
    }
    return count < all.size() ? text + QStringLiteral("\n...") : text;
}

QString plain(QStringView typed, LetterCase letterCase)
{
    QString kept;
    kept.reserve(typed.size());
    const bool hasModifications =
        std::any_of(typed.cbegin(), typed.cend(), [](QChar c) { return c == u'(' || c == u'['; });
    qsizetype at = 0;
    while (at < typed.size()) {
        qsizetype end = at;
        while (end < typed.size() && !typed[end].isSpace())
            ++end;
        // A number that is all there is may be what somebody is typing.
        const QStringView word = typed.sliced(at, end - at);
        if (!isPosition(word) || word.size() == typed.trimmed().size())
            kept += word;
        at = end + 1;
    }
    return hasModifications || letterCase == LetterCase::Kept ? kept : kept.toUpper();
}

} // namespace orv::SequenceText
