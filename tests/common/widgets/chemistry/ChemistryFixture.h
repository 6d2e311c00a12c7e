#pragma once

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/widgets/ScientificTableWidget.h>
#include <orv/widgets/TableEditor.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTest>

/// Tables of the example documents, random ones and hostile ones, and fingers for scientific widgets.
namespace ChemistryFixture {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

struct Cell
{
    QString document;
    QString type;
    QString property;
    QJsonObject value;
};

inline void collect(const QString &document, const QJsonValue &value, QList<Cell> *cells)
{
    if (value.isString() && value.toString().startsWith(u'{')) {
        collect(document, QJsonDocument::fromJson(value.toString().toUtf8()).object(), cells);
    } else if (value.isArray()) {
        for (const QJsonValue &element : value.toArray())
            collect(document, element, cells);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        if (object.contains(u"type") && object.contains(u"properties")) {
            for (const QJsonValue &property : object.value(u"properties").toArray()) {
                if (property[u"value"].isObject())
                    cells->append({document, object.value(u"type").toString(), property[u"name"].toString(),
                                   property[u"value"].toObject()});
            }
        }
        for (const QJsonValue &member : object)
            collect(document, member, cells);
    }
}

/// All values of the examples that are objects, of cells of this type.
inline QList<Cell> cellsOf(const QString &type)
{
    QList<Cell> all;
    const QDir folder(text(ORV_EXAMPLES));
    for (const QString &name : folder.entryList({text("*.wflw")})) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The examples can't be read");
        collect(name, QJsonDocument::fromJson(file.readAll()).object(), &all);
    }
    QList<Cell> found;
    for (const Cell &cell : all) {
        if (cell.type == type)
            found.append(cell);
    }
    return found;
}

inline orv::RowNode nodeOf(const QJsonObject &object)
{
    return orv::PropertyEditorJsonUtils::objectToRowNode(object);
}

inline orv::RowNode nodeOf(const char *json)
{
    return nodeOf(QJsonDocument::fromJson(json).object());
}

inline QJsonObject objectOf(const orv::RowNode &node)
{
    return orv::PropertyEditorJsonUtils::rowNodeToObject(node);
}

inline QVariant randomCell(QRandomGenerator &random)
{
    switch (random.bounded(8)) {
    case 0:
        return {};
    case 1:
        return random.bounded(2) == 1;
    case 2:
        return random.bounded(-1000, 1000);
    case 3:
        return random.generateDouble() * 1e5;
    case 4:
        return QVariantList{1, 2, text("three")};
    case 5:
        return QVariantMap{{text("key"), QVariantList{true}}};
    case 6:
        return text("ACDEFGHIK\n\t\"x\" <b>\u2028");
    default:
        return QString(random.bounded(40), QChar(u'A' + random.bounded(26)));
    }
}

/// A table with these columns, some left out, others added, rows of any length and rows below rows.
inline orv::RowNode randomTable(QRandomGenerator &random, const QStringList &columns)
{
    orv::RowNode table;
    for (const QString &column : columns) {
        if (random.bounded(8) != 0)
            table.data.append(column);
    }
    if (random.bounded(2) == 0)
        table.data.append(text("Strange"));
    for (int row = random.bounded(12); row > 0; --row) {
        orv::VariantItems items;
        for (int cell = random.bounded(int(table.data.size()) + 2); cell > 0; --cell)
            items.append(randomCell(random));
        orv::RowNode *const child = table.addNewChild(items);
        if (random.bounded(6) == 0)
            child->addNewChild({text("below")});
    }
    return table;
}

inline void type(const char *words)
{
    for (const QChar c : text(words))
        QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
}

inline void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

inline void show(QWidget *widget)
{
    widget->resize(1000, 600);
    widget->show();
    (void)QTest::qWaitForWindowActive(widget);
}

inline QModelIndex at(orv::ScientificTableWidget *widget, int row, const char *column)
{
    return widget->model()->index(row, widget->sheet()->columnOf(text(column)));
}

inline void click(orv::ScientificTableWidget *widget, int row, const char *column)
{
    orv::TableView *const view = widget->view();
    view->scrollTo(at(widget, row, column));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(at(widget, row, column)).center());
}

/// Replaces a cell as a person does.
inline void typeInto(orv::ScientificTableWidget *widget, int row, const char *column, const char *words)
{
    click(widget, row, column);
    type(words);
    key(Qt::Key_Return);
}

inline QString shown(orv::ScientificTableWidget *widget, int row, const char *column)
{
    return at(widget, row, column).data().toString();
}

/// Why a cell may not hold what it holds, or nothing.
inline QString problem(orv::ScientificTableWidget *widget, int row, const char *column)
{
    return at(widget, row, column).data(orv::TableModel::ProblemRole).toString();
}

/// What a screen reader has to be told and isn't, by class and object name.
inline QStringList controlsWithoutNames(const QWidget *root)
{
    QStringList nameless;
    for (const QWidget *const widget : root->findChildren<QWidget *>()) {
        const bool isControl = widget->focusPolicy() != Qt::NoFocus && widget->isEnabled() &&
                               !widget->objectName().startsWith(u"qt_") &&
                               !widget->inherits("QComboBoxListView") &&
                               !qobject_cast<const QLabel *>(widget);
        const QString word = widget->property("text").toString();
        if (isControl && widget->accessibleName().isEmpty() && word.isEmpty())
            nameless.append(QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                            widget->objectName());
    }
    return nameless;
}

} // namespace ChemistryFixture
