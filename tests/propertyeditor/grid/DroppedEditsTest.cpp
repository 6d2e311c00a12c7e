#include "LogCapture.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/table_model/TableModel.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>

#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QFile>
#include <QHeaderView>
#include <QMimeData>
#include <QTemporaryDir>

using namespace orv;
using namespace GridFixture;

namespace {

/// Counts what a column tells, and asks it what it holds.
class EditListener
{
public:
    explicit EditListener(IGridItem *item)
        : m_item(item)
        , m_content(item->content())
    {
        QObject::connect(item->edits(), &GridItemEdits::edited, &m_context, [this] { ++m_told; });
    }
    /// Since the last call.
    int told()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_told, 0);
    }
    bool isChanged()
    {
        const QJsonObject now = m_item->content();
        return now != std::exchange(m_content, now);
    }

private:
    IGridItem *m_item;
    QJsonObject m_content;
    QObject m_context;
    int m_told = 0;
};

bool dropOn(QAbstractItemView *view, const QPoint &place, const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    if (enter.isAccepted())
        QApplication::sendEvent(view->viewport(), &move);
    if (!enter.isAccepted() || !move.isAccepted())
        return false;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(view->viewport(), &drop);
    return drop.isAccepted();
}

QPoint below(const QAbstractItemView *view)
{
    return {view->viewport()->width() / 2, view->viewport()->height() - 3};
}

TableView *firstTable(const IGridItem &item)
{
    return const_cast<IGridItem &>(item).widget()->findChildren<TableView *>().value(0);
}

/// As a person selects: press in one cell, draw to another, let go.
void drawSelection(QAbstractItemView *view, const QModelIndex &from, const QModelIndex &to)
{
    QWidget *port = view->viewport();
    QTest::mousePress(port, Qt::LeftButton, {}, view->visualRect(from).center());
    QTest::mouseMove(port, view->visualRect(to).center());
    QMouseEvent move(QEvent::MouseMove, view->visualRect(to).center(),
                     port->mapToGlobal(view->visualRect(to).center()), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(port, &move);
    QTest::mouseRelease(port, Qt::LeftButton, {}, view->visualRect(to).center());
}

void show(QWidget *widget)
{
    widget->resize(800, 600);
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget));
    QCoreApplication::processEvents();
}

} // namespace

/// Edits by the mouse alone are told once each, and what changes nothing isn't told.
class DroppedEditsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ORVPropertyFactory::init(); }
    void filesOnTables_data();
    void filesOnTables();
    void aFileOnASetting();
    void nothingFitsATableOfMasses();
    void selectionsAreNoEdits_data();
    void selectionsAreNoEdits();
    void copiedTablesKnowTheFolder_data();
    void copiedTablesKnowTheFolder();
};

void DroppedEditsTest::filesOnTables_data()
{
    QTest::addColumn<BaseItemType>("kind");
    QTest::addColumn<QString>("file");
    QTest::newRow("samples") << BaseItemType::Samples << text("lot.mzML");
    QTest::newRow("databases") << BaseItemType::Database << text("human.fasta");
}

void DroppedEditsTest::filesOnTables()
{
    QFETCH(BaseItemType, kind);
    QFETCH(QString, file);
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(file);
    QFile made(path);
    QVERIFY(made.open(QIODevice::WriteOnly));
    const WholeWorkflow::HostManager manager;
    const std::unique_ptr<IGridItem> item(manager.createItem(kind));
    QVERIFY(!item->setContent(WholeWorkflow::defaultCell(kind)).hasError());
    show(item->widget());
    TableView *table = firstTable(*item);
    EditListener listener(item.get());
    QVERIFY(dropOn(table, below(table), {path}));
    QTRY_VERIFY(table->tableModel()->rowCount() > 0);
    QCOMPARE(listener.told(), 1);
    QVERIFY(listener.isChanged());
    // The same file on its own cell.
    const int column = [&] {
        for (int i = 0; i < table->tableModel()->columnCount(); ++i) {
            if (table->tableModel()->index(0, i).data().toString().contains(file.section(u'.', 0, 0)) &&
                table->sheet()->columns().at(i).kind == TableColumnKind::File)
                return i;
        }
        return -1;
    }();
    QVERIFY(column >= 0);
    const QPoint cell = table->visualRect(table->tableModel()->index(0, column)).center();
    QVERIFY(dropOn(table, cell, {path}));
    QCOMPARE(listener.told(), 0);
    QVERIFY(!listener.isChanged());
    // Nothing that could be dropped.
    QVERIFY(!dropOn(table, below(table), {}));
    QCOMPARE(listener.told(), 0);
    QVERIFY(!listener.isChanged());
}

void DroppedEditsTest::aFileOnASetting()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("wide.ini"));
    QFile made(path);
    QVERIFY(made.open(QIODevice::WriteOnly));
    Column column;
    EditListener listener(&column.item);
    KPropertyCustomEditorView *tree = column.view->editorView();
    const auto place = [&](const char *name) { return tree->visualRect(indexOf(*tree, name)).center(); };
    QVERIFY(dropOn(tree, place("KarvonLayout"), {path}));
    QCOMPARE(listener.told(), 1);
    QVERIFY(listener.isChanged());
    QVERIFY(dropOn(tree, place("KarvonLayout"), {path}));
    QCOMPARE(listener.told(), 0);
    QVERIFY(!listener.isChanged());
    QVERIFY(!dropOn(tree, place("Samples"), {path}));
    QCOMPARE(listener.told(), 0);
}

void DroppedEditsTest::nothingFitsATableOfMasses()
{
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType::Masses));
    QVERIFY(!item->setContent(WholeWorkflow::defaultCell(BaseItemType::Masses)).hasError());
    show(item->widget());
    EditListener listener(item.get());
    QVERIFY(!dropOn(firstTable(*item), below(firstTable(*item)), {text("/data/lot.mzML")}));
    QCOMPARE(listener.told(), 0);
    QVERIFY(!listener.isChanged());
}

void DroppedEditsTest::selectionsAreNoEdits_data()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds())
        QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
}

void DroppedEditsTest::selectionsAreNoEdits()
{
    QFETCH(BaseItemType, kind);
    const LogCapture log;
    WholeWorkflow::Columns columns;
    IGridItem &item = columns.item(kind);
    show(item.widget());
    for (TableView *table : item.widget()->findChildren<TableView *>()) {
        if (table->isVisible() && table->sheet()->rowCount() == 0)
            QVERIFY(!table->sheet()->insertRows(0, {{}, {}}, text("add")).hasError());
    }
    QCoreApplication::processEvents();
    EditListener listener(&item);
    int drawn = 0;
    for (QAbstractItemView *view : item.widget()->findChildren<QAbstractItemView *>()) {
        const QAbstractItemModel *model = view->model();
        if (!view->isVisible() || !model || model->rowCount() == 0 || qobject_cast<QHeaderView *>(view))
            continue;
        const QModelIndex first = model->index(0, 0);
        const QModelIndex last = model->index(model->rowCount() - 1, model->columnCount() - 1);
        drawSelection(view, first, last);
        drawSelection(view, last, first);
        ++drawn;
    }
    for (QHeaderView *header : item.widget()->findChildren<QHeaderView *>()) {
        if (header->isVisible())
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {header->sectionSize(0) / 2, 3});
    }
    QCOMPARE(listener.told(), 0);
    QVERIFY(!listener.isChanged());
    QVERIFY(drawn > 0);
}

void DroppedEditsTest::copiedTablesKnowTheFolder_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QJsonArray samples;
    QJsonArray databases;
    for (const char *file : {"missing.raw", "lot.raw"}) {
        samples.append(QJsonObject{{text("SamplesId"), int(samples.size()) + 1},
                                   {text("SampleName"), text(file)},
                                   {text("SamplePath"), text(file)}});
        databases.append(QJsonObject{{text("fasta"), text(file)}});
    }
    QTest::newRow("samples") << settingsCell(
        "Samples", {setting("SamplesTable", QJsonObject{{text("Samples"), samples}})});
    QTest::newRow("databases") << settingsCell(
        "Database", {setting("SequenceDatabases", QJsonObject{{text("sequences"), databases}})});
}

void DroppedEditsTest::copiedTablesKnowTheFolder()
{
    QFETCH(QJsonObject, cell);
    const LogCapture log;
    const WholeWorkflow::HostManager manager;
    const QTemporaryDir folder;
    QFile made(folder.filePath(text("lot.raw")));
    QVERIFY(made.open(QIODevice::WriteOnly));
    const auto grid = PropertyGridWidget::create({text("A")}, {cellOf(cell)});
    QVERIFY2(!grid.hasError(), qPrintable(grid.hasError() ? grid.error().errorMessage() : QString()));
    (*grid)->updateBaseUrlForRelativeUrls(QUrl::fromLocalFile(folder.path() + u'/'));
    (*grid)->copyColumn(0);
    QCOMPARE((*grid)->items().size(), 2);
    show(grid->get());
    for (IGridItem *item : (*grid)->items()) {
        const TableModel *model = firstTable(*item)->tableModel();
        const auto notes = [model](int row) {
            QStringList texts;
            for (int column = 0; column < model->columnCount(); ++column)
                texts.append(model->index(row, column).data(TableModel::NoteRole).toString());
            return texts;
        };
        // Both are looked for at once, in the background.
        (void)notes(1);
        QTRY_VERIFY(notes(0).contains(text("not found")));
        QVERIFY(!notes(1).contains(text("not found")));
    }
}

WIDGET_REGISTER_TEST(DroppedEditsTest)
#include "DroppedEditsTest.moc"
