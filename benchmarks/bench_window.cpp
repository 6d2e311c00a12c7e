// The desktop application's start against a bare program with widgets, a large document in a window against
// the load alone and a bare table of its rows, and what many rounds of opening and closing leave behind.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorDesktopWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/Workbench.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

using namespace orv;

namespace {

QString programPath(const char *name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QString::fromLatin1(name);
}

/// One that needs no upgrade, which windows ask about.
QByteArray current(QByteArray document)
{
    return document.replace("5.46.0", WflwMetaData::currentWorkflowVersion().toString().toLatin1());
}

QString written(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The benchmark's files can't be written");
    return path;
}

void add(const std::string &name, const std::function<bool()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            if (!work())
                state.SkipWithError("the work failed");
        }
    })->Unit(benchmark::kMicrosecond);
}

bool runs(const char *program, const QStringList &arguments, QByteArray *output = nullptr)
{
    QProcess process;
    process.start(programPath(program), arguments);
    const bool isDone = process.waitForFinished(300000) && process.exitCode() == 0;
    if (output)
        *output = process.readAllStandardOutput();
    return isDone;
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The load that every road begins with, and the rows of its samples as texts in a view of Qt's.
bool showBareTable(const QString &path, int rows)
{
    PropertyEditor::Content content;
    if (content.assignFromJson(QJsonDocument::fromJson(read(path)).object()).hasError())
        return false;
    constexpr int kColumns = 6;
    QStandardItemModel model;
    for (int row = 0; row < rows; ++row) {
        QList<QStandardItem *> items;
        for (int column = 0; column < kColumns; ++column)
            items.append(new QStandardItem(QStringLiteral("sample %1 %2").arg(row).arg(column)));
        model.appendRow(items);
    }
    QTableView view;
    view.setModel(&model);
    view.resize(1280, 800);
    return !view.grab().isNull();
}

class Window : public PropertyEditorDesktopWindow
{
public:
    Window()
        : PropertyEditorDesktopWindow(nullptr)
    {
        resize(1280, 800);
    }
};

bool showWindow(const QString &path)
{
    Window window;
    new Workbench(&window);
    return window.openWorkflow(path) == PropertyEditorWindow::OpenStatus::Opened && !window.grab().isNull();
}

/// A window in which the first column of the second tab was renamed, which its history takes back and forth.
struct Edited
{
    explicit Edited(const QString &path)
        : workbench(new Workbench(&window))
    {
        if (window.openWorkflow(path) != PropertyEditorWindow::OpenStatus::Opened)
            qFatal("The benchmark's document doesn't open");
        window.show();
        rename();
    }

    void rename()
    {
        const DocumentHistory::Group group(workbench->history(), QStringLiteral("Rename"));
        window.workflowTabs()->grid(1)->renameColumn(0, QStringLiteral("Another name"));
        Q_EMIT window.metadataEdited();
    }
    bool undoAndRedo()
    {
        workbench->history()->undo();
        workbench->history()->redo();
        return workbench->history()->count() == 1;
    }

    Window window;
    Workbench *workbench;
};

/// Documents of many samples: opening them, right ones and such in which everything is wrong, and a step of
/// the history that isn't about the samples.
void addLarge(const QTemporaryDir &folder)
{
    const int count = Lifelike::sized(10000);
    const QString large =
        written(folder.filePath(QStringLiteral("large.wflw")), current(Lifelike::document(count, 2)));
    add("10,000 samples/baseline", [=] { return showBareTable(large, count); });
    add("10,000 samples/window", [=] { return showWindow(large); });
    const QString wrong = written(folder.filePath(QStringLiteral("wrong.wflw")),
                                  current(Lifelike::allWrong(Lifelike::document(count, 2))));
    add("10,000 wrong samples/baseline", [=] { return showBareTable(wrong, count); });
    add("10,000 wrong samples/window", [=] { return showWindow(wrong); });
    const QString small =
        written(folder.filePath(QStringLiteral("few.wflw")), current(Lifelike::document(50, 2)));
    const auto few = std::make_shared<Edited>(small);
    const auto many = std::make_shared<Edited>(large);
    add("undo and redo/baseline", [=] { return few->undoAndRedo(); });
    add("undo and redo/beside 10,000 samples", [=] { return many->undoAndRedo(); });
}

void addStart(const QTemporaryDir &folder)
{
    const QString file =
        written(folder.filePath(QStringLiteral("35 kB.wflw")), current(Lifelike::document(6, 2)));
    const QString journals = folder.filePath(QStringLiteral("journals"));
    add("start/baseline", [] { return runs("bare_widgets_program", {}); });
    add("start/editor", [=] { return runs("editor_program", {journals, file}); });
}

/// What further rounds leave in memory, against the first ones, in which everything is made that stays.
bool measureRounds(const QTemporaryDir &folder)
{
    const QString file = folder.filePath(QStringLiteral("35 kB.wflw"));
    const QString journals = folder.filePath(QStringLiteral("journals"));
    const bool isForAMoment = Lifelike::isForAMoment();
    const int few = isForAMoment ? 1 : 10;
    const int many = isForAMoment ? 2 : 100;
    long base = 0;
    std::printf("%-52s %10s %8s\n", "memory held", "kB", "ratio");
    for (const int rounds : {few, many}) {
        QByteArray held;
        if (!runs("editor_program", {journals, file, QString::number(rounds)}, &held))
            return false;
        const long kilobytes = held.trimmed().toLong();
        base = base ? base : kilobytes;
        std::printf("%-52s %10ld %8.2f\n", rounds == few ? "few rounds" : "100 rounds of opening and closing",
                    kilobytes, double(kilobytes) / double(base));
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    GridItemManager::instance()->registerCreators();
    const QTemporaryDir folder;
    addStart(folder);
    addLarge(folder);
    const int result = runRatioBenchmarks(argc, argv);
    benchmark::ClearRegisteredBenchmarks();
    return result == 0 && measureRounds(folder) ? 0 : 1;
}
