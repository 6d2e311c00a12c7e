#include "SequenceView.h"

#include <orv/widgets/MeaningColors.h>
#include <orv/widgets/SequencePainting.h>

#include <QTextBlock>

namespace orv {

namespace {

constexpr int kLettersInBlock = 10;
constexpr int kLettersInLine = 50;
constexpr int kPositionWidth = 7; ///< digits and blank in front of a line
constexpr int kLineWidth = kPositionWidth + kLettersInLine + kLettersInLine / kLettersInBlock;

QString linesOf(const QString &sequence)
{
    QString lines;
    for (qsizetype at = 0; at < sequence.size(); at += kLettersInLine) {
        lines += QString::number(at + 1).rightJustified(kPositionWidth - 1) + u' ';
        for (qsizetype block = at; block < std::min(at + kLettersInLine, sequence.size());
             block += kLettersInBlock)
            lines += sequence.mid(block, kLettersInBlock) + u' ';
        lines.chop(1);
        lines += u'\n';
    }
    lines.chop(1);
    return lines;
}

} // namespace

SequenceView::SequenceView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QStringLiteral("sequence"));
    setAccessibleName(tr("Sequence"));
    setToolTip(
        tr("Underlined: the enzyme cuts behind the residue. Waves: the letter has no mass. Coloured: the "
           "residue belongs to an annotation."));
    setReadOnly(true);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setPlaceholderText(tr("Select a row to see its sequence."));
    setFont(SequencePainting::fontLike(font()));
}

int SequenceView::placeInText(int letter)
{
    const int inLine = letter % kLettersInLine;
    // Each line but the last ends with its last block and a line break in the place of the blank.
    return letter / kLettersInLine * kLineWidth + kPositionWidth + inLine + inLine / kLettersInBlock;
}

void SequenceView::addMark(QList<QTextEdit::ExtraSelection> *marks, int first, int last,
                           const QTextCharFormat &format)
{
    QTextEdit::ExtraSelection mark;
    mark.format = format;
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(placeInText(first));
    mark.cursor.setPosition(placeInText(last) + 1, QTextCursor::KeepAnchor);
    marks->append(mark);
}

void SequenceView::showSequence(const QString &sequence, const Marks &marks)
{
    const QString shown = sequence.left(kShownLetters);
    if (const QString lines = linesOf(shown); lines != toPlainText())
        setPlainText(lines);
    QList<QTextEdit::ExtraSelection> selections;
    for (const Stretch &stretch : marks.stretches) {
        if (stretch.first < 0 || stretch.first > stretch.last || stretch.last >= shown.size())
            continue;
        QTextCharFormat format;
        QColor color = stretch.color.isValid() ? stretch.color : palette().color(QPalette::Highlight);
        constexpr int kThin = 70;
        color.setAlpha(kThin);
        format.setBackground(color);
        // Positions between lines have no part in it.
        for (int first = stretch.first; first <= stretch.last;) {
            const int last = std::min(stretch.last, first - first % kLettersInLine + kLettersInLine - 1);
            addMark(&selections, first, last, format);
            first = last + 1;
        }
    }
    QTextCharFormat cut;
    cut.setFontWeight(QFont::Bold);
    cut.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    for (const int place : marks.cuts) {
        if (place < shown.size())
            addMark(&selections, place, place, cut);
    }
    QTextCharFormat unknown;
    unknown.setBackground(MeaningColors::errorBackground(palette()));
    unknown.setForeground(MeaningColors::error(palette()));
    unknown.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    unknown.setUnderlineColor(MeaningColors::error(palette()));
    for (const int place : marks.unknown) {
        if (place < shown.size())
            addMark(&selections, place, place, unknown);
    }
    setExtraSelections(selections);
}

} // namespace orv
