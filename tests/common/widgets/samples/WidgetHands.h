#pragma once

#include "TestData.h"

#include <orv/widgets/TableEditor.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <QToolButton>

/// What a person does with a widget, and where they find things in it.
namespace Hands {

inline QJsonObject parsed(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

inline void show(QWidget &widget)
{
    QLocale::setDefault(QLocale::c());
    widget.resize(1000, 700);
    widget.show();
    (void)QTest::qWaitForWindowActive(&widget);
}

/// The table of that accessible name.
inline orv::TableView *table(QWidget &widget, const char *name)
{
    for (orv::TableEditor *const editor : widget.findChildren<orv::TableEditor *>()) {
        if (editor->accessibleName() == QLatin1String(name) && editor->isVisibleTo(&widget))
            return editor->view();
    }
    qFatal("There is no table %s", name);
}

inline void click(orv::TableView *view, int row, int column)
{
    const QModelIndex cell = view->tableModel()->index(row, column);
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
}

/// The first key may open an editor, which gets the others.
inline void type(const char *words)
{
    for (const char *c = words; *c; ++c)
        QTest::keyClick(QApplication::focusWidget(), *c);
}

inline void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

/// Types into a cell and leaves it by Enter.
inline void enter(orv::TableView *view, int row, int column, const char *words)
{
    click(view, row, column);
    type(words);
    key(Qt::Key_Return);
}

inline void press(QWidget &widget, const char *name)
{
    auto *const button = widget.findChild<QAbstractButton *>(QLatin1String(name));
    if (!button)
        qFatal("There is no button %s", name);
    // A check box that is wider than its text hears of clicks on these alone.
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

inline QString notice(QWidget &widget)
{
    auto *const label = widget.findChild<QLabel *>(QStringLiteral("notice"));
    return label->isVisibleTo(&widget) ? label->text() : QString();
}

inline bool drop(orv::TableView *view, const QStringList &paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    const QPoint at = view->viewport()->rect().bottomRight() - QPoint(5, 5);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &drop);
    return move.isAccepted() && drop.isAccepted();
}

/// The values of a property in all cells of one type of all examples, by the name of the example.
inline QList<QPair<QString, QJsonObject>> exampleValues(const QString &type, int property = 0)
{
    QList<QPair<QString, QJsonObject>> values;
    const QDir folder(TestData::examplePath(QStringLiteral("workflows")));
    for (const QString &name : folder.entryList({QStringLiteral("*.wflw")})) {
        const QJsonObject document = parsed(TestData::read(folder.filePath(name)));
        const QJsonArray tabs = document.value(QLatin1String("tabs")).toArray();
        for (const auto tab : tabs) {
            const QJsonArray cells = tab[QLatin1String("cells")].toArray();
            for (const auto cell : cells) {
                if (cell[QLatin1String("type")].toString() == type)
                    values.append(
                        {name,
                         cell[QLatin1String("properties")][property][QLatin1String("value")].toObject()});
            }
        }
    }
    return values;
}

} // namespace Hands
