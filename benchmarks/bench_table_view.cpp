// A table that people edit against the widgets and models that one would take for it otherwise.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/table_model/TableClipboard.h>
#include <orv/widgets/TableView.h>

#include <QApplication>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableWidget>

#include <functional>

using namespace orv;

namespace {

constexpr int kColumns = 12;

int rowCount()
{
    return Lifelike::isForAMoment() ? 500 : 100000;
}

enum class Values
{
    MayRepeat,
    MustDiffer, ///< in the first column, where they do
};

QList<TableColumn> columns(Values values = Values::MayRepeat)
{
    QList<TableColumn> result;
    for (int i = 0; i < kColumns; ++i) {
        TableColumn column;
        column.isUnique = i == 0 && values == Values::MustDiffer;
        column.name = QStringLiteral("column%1").arg(i);
        column.title = QStringLiteral("Column %1").arg(i);
        column.kind = i % 3 == 1 ? TableColumnKind::Number : TableColumnKind::Text;
        result.append(column);
    }
    return result;
}

QList<QStringList> rows(int count)
{
    QList<QStringList> result;
    for (int row = 0; row < count; ++row) {
        QStringList texts;
        for (int column = 0; column < kColumns; ++column)
            texts.append(column % 3 == 1 ? QString::number(400 + row * 0.013 + column)
                                         : QStringLiteral("sample_%1_%2").arg(row).arg(column));
        result.append(texts);
    }
    return result;
}

void add(const char *name, const std::function<void()> &work, const std::function<void()> &after = {})
{
    benchmark::RegisterBenchmark(name, [work, after](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            work();
            if (after) {
                state.PauseTiming();
                after();
                state.ResumeTiming();
            }
        }
    })->Unit(benchmark::kMicrosecond);
}

void showInWidget(const QList<QStringList> &content)
{
    QTableWidget table(int(content.size()), kColumns);
    for (int row = 0; row < content.size(); ++row) {
        for (int column = 0; column < kColumns; ++column)
            table.setItem(row, column, new QTableWidgetItem(content[row][column]));
    }
    table.resize(900, 600);
    table.show();
    benchmark::DoNotOptimize(table.grab());
}

void showInView(const QList<QStringList> &content)
{
    TableSheet sheet(columns());
    if (sheet.load(content).hasError())
        qFatal("The table doesn't load");
    TableView view(&sheet);
    view.resize(900, 600);
    view.show();
    benchmark::DoNotOptimize(view.grab());
}

void addFirstFrame()
{
    const auto content = std::make_shared<QList<QStringList>>(rows(rowCount()));
    add("first frame/baseline", [content] { showInWidget(*content); });
    add("first frame/TableView", [content] { showInView(*content); });
}

/// One key after the other, as a person types a number that few rows hold.
void addFilter()
{
    const auto sheet = std::make_shared<TableSheet>(columns());
    if (sheet->load(rows(rowCount())).hasError())
        qFatal("The table doesn't load");
    const auto model = std::make_shared<TableModel>(sheet.get());
    const auto plain = std::make_shared<QStandardItemModel>();
    for (const QStringList &row : rows(rowCount())) {
        QList<QStandardItem *> items;
        for (const QString &text : row)
            items.append(new QStandardItem(text));
        plain->appendRow(items);
    }
    const auto proxy = std::make_shared<QSortFilterProxyModel>();
    proxy->setSourceModel(plain.get());
    proxy->setFilterKeyColumn(-1);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    const QStringList keys = {QStringLiteral("4"), QStringLiteral("42"), QStringLiteral("421"), QString()};
    add("filter, four keys/baseline", [plain, proxy, keys] {
        for (const QString &key : keys)
            proxy->setFilterFixedString(key);
    });
    add("filter, four keys/TableModel", [sheet, model, keys] {
        for (const QString &key : keys)
            model->setFilter({key, false});
    });
    add(
        "filter, first key/baseline", [plain, proxy] { proxy->setFilterFixedString(QStringLiteral("421")); },
        [proxy] { proxy->setFilterFixedString(QString()); });
    add(
        "filter, first key/TableModel",
        [sheet, model] {
            model->setFilter({QStringLiteral("421"), false});
        },
        [model] { model->setFilter({}); });
}

struct PasteBench
{
    PasteBench(int rowCount, Values values)
        : text(TableClipboard::format(rows(rowCount)))
        , sheet(columns(values))
    {
        sheet.insertRows(0, rowCount);
        for (int column = 0; column < kColumns; ++column)
            target.columns.append(column);
        // The first question makes the index, which edits keep up from then on.
        benchmark::DoNotOptimize(sheet.problem(0, 0));
    }

    void paste()
    {
        if (TableClipboard::paste(model, target, text).hasError())
            qFatal("The text has no room");
    }

    QString text;
    TableSheet sheet;
    TableModel model{&sheet};
    TableClipboard::Target target;
};

void addPaste()
{
    const int count = Lifelike::isForAMoment() ? 100 : 10000;
    const auto bench = std::make_shared<PasteBench>(count, Values::MayRepeat);
    const auto unique = std::make_shared<PasteBench>(count, Values::MustDiffer);
    add("paste 10,000 rows/baseline", [bench] {
        QList<QStringList> lines;
        for (const QString &line : bench->text.split(u'\n'))
            lines.append(line.split(u'\t'));
        benchmark::DoNotOptimize(lines);
    });
    add(
        "paste 10,000 rows/paste", [bench] { bench->paste(); }, [bench] { bench->sheet.history()->undo(); });
    add(
        "paste 10,000 rows/paste where values must differ", [unique] { unique->paste(); },
        [unique] { unique->sheet.history()->undo(); });
    add("paste 10,000 rows/undo and redo of it", [bench] {
        TableHistory *const history = bench->sheet.history();
        if (!history->canUndo() && !history->canRedo())
            bench->paste();
        history->redo();
        history->undo();
    });
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    addFirstFrame();
    addFilter();
    addPaste();
    return runRatioBenchmarks(argc, argv);
}
