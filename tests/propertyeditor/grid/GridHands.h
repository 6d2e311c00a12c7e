#pragma once

#include "GridFixture.h"

#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/grid/PropertySplitterWidget.h>

#include <QComboBox>
#include <QContextMenuEvent>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>

/// What a person takes hold of in columns of settings and in a grid.
namespace GridHands {

using namespace GridFixture;
using orv::GridPropertyEditorView;
using orv::PropertyGridWidget;
using orv::PropertySplitterWidget;

inline QPushButton *button(const GridPropertyEditorView &view, const char *toolTip)
{
    for (QPushButton *candidate : view.findChildren<QPushButton *>()) {
        if (candidate->toolTip() == text(toolTip))
            return candidate;
    }
    qFatal("There is no button \"%s\"", toolTip);
}

inline void click(const GridPropertyEditorView &view, const char *toolTip)
{
    QTest::mouseClick(button(view, toolTip), Qt::LeftButton);
}

inline void choose(const QDialog &dialog, const char *comboName, const QVariant &data)
{
    combo(dialog, comboName)->setCurrentIndex(combo(dialog, comboName)->findData(data));
}

inline void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("The test's file can't be written");
}

inline std::unique_ptr<PropertyGridWidget> gridOf(const QStringList &names, const char *type = "Karvon")
{
    orv::VariantItems cells;
    for (const QString &name : names)
        cells.append(cellOf(settingsCell(type, {setting("Samples", name)}, qPrintable(name))));
    orv::Result<std::unique_ptr<PropertyGridWidget>> grid = PropertyGridWidget::create(names, cells);
    if (grid.hasError())
        qFatal("The fixture doesn't load: %s", qPrintable(grid.error().errorMessage()));
    return std::move(grid).value();
}

inline PropertySplitterWidget *columnAt(const PropertyGridWidget &grid, int index)
{
    return qobject_cast<PropertySplitterWidget *>(grid.splitter()->widget(index));
}

inline GridPropertyEditorView *viewAt(const PropertyGridWidget &grid, int index)
{
    return qobject_cast<GridPropertyEditorView *>(grid.items().at(index)->widget());
}

inline QAction *action(const PropertyGridWidget &grid, const char *name)
{
    for (QAction *candidate : grid.columnMenu()->actions()) {
        if (candidate->text() == text(name))
            return candidate;
    }
    qFatal("There is no command \"%s\"", name);
}

/// Opens the menu of a column as a right click on its title does.
inline void openMenu(PropertyGridWidget &grid, int index)
{
    QHeaderView *header = columnAt(grid, index)->header();
    const QPoint place = header->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, header->mapToGlobal(place));
    QApplication::sendEvent(header->viewport(), &event);
    QCOMPARE(grid.columnMenu()->property("logicalIndex").toInt(), index);
}

inline void chooseCommand(PropertyGridWidget &grid, int index, const char *name)
{
    openMenu(grid, index);
    QTest::mouseClick(grid.columnMenu(), Qt::LeftButton, {},
                      grid.columnMenu()->actionGeometry(action(grid, name)).center());
}

inline QStringList headerTexts(const PropertyGridWidget &grid)
{
    QStringList texts;
    for (int i = 0; i < grid.splitter()->count(); ++i)
        texts.append(columnAt(grid, i)->headerText());
    return texts;
}

inline QStringList contentsOf(const PropertyGridWidget &grid)
{
    QStringList contents;
    for (const QVariant &cell : grid.cells())
        contents.append(valueIn(Documents::parse(cell.toByteArray()), "Samples").toString());
    return contents;
}

inline QStringList names(const char *utf8)
{
    return text(utf8).split(u',');
}

} // namespace GridHands
