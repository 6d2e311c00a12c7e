#pragma once

#include <QList>
#include <QPlainTextEdit>
#include <QString>

namespace orv {

/// A sequence in a fixed-width font, in blocks of ten with positions, and with marks of meaning. It is text:
/// it can be selected, copied and read aloud.
class SequenceView : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Letters from first to last, counted from 0, that have a name.
    struct Stretch
    {
        int first = 0;
        int last = 0;
        QColor color;
    };

    struct Marks
    {
        QList<int> unknown; ///< letters that stand for nothing
        QList<int> cuts;    ///< letters behind which the chain is cut
        QList<Stretch> stretches;
    };

    explicit SequenceView(QWidget *parent = nullptr);

    /// Longer sequences are shown up to here.
    static constexpr qsizetype kShownLetters = 20'000;

    void showSequence(const QString &sequence, const Marks &marks);
    /// Of a letter, in the text of the view.
    [[nodiscard]] static int placeInText(int letter);

private:
    void addMark(QList<QTextEdit::ExtraSelection> *marks, int first, int last, const QTextCharFormat &format);
};

} // namespace orv
