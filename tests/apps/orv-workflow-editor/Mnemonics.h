#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QStringList>

/// The entries of a window's menus whose letter an entry before them in the same menu has.
inline QStringList entriesWithTakenLetters(const QMainWindow &window)
{
    QStringList taken;
    for (const QMenu *menu : window.menuBar()->findChildren<QMenu *>()) {
        QSet<QChar> letters;
        for (const QAction *action : menu->actions()) {
            const qsizetype mark = action->text().indexOf(u'&');
            if (mark < 0)
                continue;
            const QChar letter = action->text().at(mark + 1).toLower();
            if (letters.contains(letter))
                taken.append(action->text());
            letters.insert(letter);
        }
    }
    return taken;
}
