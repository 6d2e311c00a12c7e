#pragma once

#include <QAbstractButton>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QStringList>
#include <QTabWidget>

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

/// What each control with a letter of its own shows; labels lead to the field beside them.
inline QMultiHash<QChar, QString> lettersOfControls(const QWidget &part)
{
    QMultiHash<QChar, QString> letters;
    const auto add = [&letters](const QString &text) {
        const qsizetype mark = text.indexOf(u'&');
        if (mark >= 0 && text.size() > mark + 1 && text.at(mark + 1) != u'&')
            letters.insert(text.at(mark + 1).toLower(), text);
    };
    for (const auto *button : part.findChildren<QAbstractButton *>()) {
        if (button->isVisibleTo(&part))
            add(button->text());
    }
    for (const auto *group : part.findChildren<QGroupBox *>()) {
        if (group->isVisibleTo(&part))
            add(group->title());
    }
    for (const auto *label : part.findChildren<QLabel *>()) {
        if (label->buddy() && label->isVisibleTo(&part))
            add(label->text());
    }
    return letters;
}

/// Of controls that are on the screen at the same time, those which share their letter with a menu or with
/// each other.
inline QStringList takenLetters(const QMainWindow &window, QMultiHash<QChar, QString> letters)
{
    for (const QAction *menu : window.menuBar()->actions()) {
        const QChar letter = menu->text().at(menu->text().indexOf(u'&') + 1).toLower();
        if (letters.contains(letter))
            letters.insert(letter, menu->text());
    }
    QStringList taken;
    for (const QChar letter : letters.uniqueKeys()) {
        if (letters.count(letter) > 1)
            taken.append(QStringList(letters.values(letter)).join(QStringLiteral(" ~ ")));
    }
    taken.sort();
    return taken;
}

/// Of the panels, any of which may be open beside any other, and of each tab.
inline QStringList controlsWithTakenLetters(QMainWindow &window)
{
    QMultiHash<QChar, QString> ofPanels;
    for (const QDockWidget *panel : window.findChildren<QDockWidget *>())
        ofPanels += lettersOfControls(*panel);
    QStringList taken = takenLetters(window, ofPanels);
    auto *tabs = window.centralWidget()->findChild<QTabWidget *>();
    for (int tab = 0; tabs && tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        taken += takenLetters(window, lettersOfControls(*window.centralWidget()));
    }
    taken.removeDuplicates();
    return taken;
}
