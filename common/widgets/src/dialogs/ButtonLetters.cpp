#include "ButtonLetters.h"

#include <QAbstractButton>
#include <QSet>

#include <optional>

namespace orv::ButtonLetters {

namespace {

std::optional<QChar> markedLetter(const QString &text)
{
    const qsizetype mark = text.indexOf(u'&');
    return mark >= 0 && mark + 1 < text.size() ? std::optional(text.at(mark + 1).toLower()) : std::nullopt;
}

/// Where the mark goes; -1 if all letters are taken.
qsizetype freeLetter(const QString &text, const QSet<QChar> &taken)
{
    qsizetype free = -1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (!letter.isLetter() || taken.contains(letter.toLower()))
            continue;
        if (i == 0 || text.at(i - 1).isSpace())
            return i;
        free = free < 0 ? i : free;
    }
    return free;
}

} // namespace

void give(const QList<QAbstractButton *> &buttons)
{
    QSet<QChar> taken;
    for (const QAbstractButton *button : buttons) {
        if (const auto letter = markedLetter(button->text()))
            taken.insert(*letter);
    }
    for (QAbstractButton *button : buttons) {
        const QString text = button->text();
        const qsizetype place = markedLetter(text) ? -1 : freeLetter(text, taken);
        if (place < 0)
            continue;
        taken.insert(text.at(place).toLower());
        button->setText(QString(text).insert(place, u'&'));
    }
}

} // namespace orv::ButtonLetters
