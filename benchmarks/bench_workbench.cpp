// What a person waits for in a window that shows 20 columns of 79 settings and 10,000 samples, against the
// bare parse of the document: processor time of the thread that the window lives on.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <KPropertySet.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorDesktopWindow.h>
#include <orv/propertyeditor/window/PropertyEditorWindowPrivate.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/Comparison.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/FindSettings.h>
#include <orv/propertyeditor/workbench/Findings.h>
#include <orv/propertyeditor/workbench/JournalKeeper.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/propertyeditor/workbench/Workbench.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QJsonDocument>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <functional>
#include <memory>

using namespace orv;

namespace {

constexpr int kSampleTab = 0;
constexpr int kSettingTab = 1;

class LargeWindow : public PropertyEditorDesktopWindow
{
public:
    LargeWindow()
        : PropertyEditorDesktopWindow(nullptr)
    {
        resize(1280, 800);
    }
    [[nodiscard]] QJsonObject saved() { return dFunc()->getLastSavedWorkflow(); }
};

QString writtenTo(const QTemporaryDir &folder, const QString &name, QByteArray document)
{
    // One that needs no upgrade, which windows ask about.
    document.replace("5.46.0", WflwMetaData::currentWorkflowVersion().toString().toLatin1());
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size())
        qFatal("The benchmark's files can't be written");
    return file.fileName();
}

void handleEvents()
{
    // What follows an edit comes behind the events that are there.
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

class Everyday
{
public:
    Everyday(const QString &file, const QTemporaryDir &folder)
        : m_workbench(new Workbench(&m_window))
        , m_keeper(new JournalKeeper(
              &m_window, std::make_shared<RecoveryStore>(folder.filePath(QStringLiteral("journals"))),
              {[this] { return m_workbench->history()->state().content(m_window.extendedMetadata()); },
               [this] { return m_window.saved(); }}))
    {
        if (m_window.openWorkflow(file) != PropertyEditorWindow::OpenStatus::Opened)
            qFatal("The benchmark's document doesn't open");
        // As if nobody waited between two states.
        m_keeper->setInterval(1000000);
        m_window.show();
        handleEvents();
    }

    bool typeKey()
    {
        m_workbench->find()->action()->trigger();
        auto *field = m_window.findChild<QLineEdit *>(QStringLiteral("findField"));
        field->setText(field->text() == QLatin1String("mass t") ? QStringLiteral("mass to")
                                                                : QStringLiteral("mass t"));
        handleEvents();
        return field->isVisible();
    }

    bool editSetting()
    {
        m_window.workflowTabs()->widget()->setCurrentIndex(kSettingTab);
        auto *view = qobject_cast<GridPropertyEditorView *>(
            m_window.workflowTabs()->grid(kSettingTab)->items().constFirst()->widget());
        for (KPropertySetIterator property(*view->propertySet()); *property; ++property) {
            if ((*property)->value().typeId() != QMetaType::Int)
                continue;
            const DocumentHistory::Group group(m_workbench->history(), QStringLiteral("Edit"));
            (*property)->setValue((*property)->value().toInt() + 1);
            Q_EMIT view->propertyChanged(*view->propertySet(), **property);
            return true;
        }
        return false;
    }

    bool editSample()
    {
        m_window.workflowTabs()->widget()->setCurrentIndex(kSampleTab);
        const auto *view = m_window.workflowTabs()
                               ->grid(kSampleTab)
                               ->items()
                               .constFirst()
                               ->widget()
                               ->findChild<TableView *>();
        const Error error = view->sheet()->setCells({{7, 0, QStringLiteral("sample %1").arg(++m_edits)}},
                                                    QStringLiteral("Edit"));
        handleEvents();
        return !error.hasError();
    }

    bool undoAndRedo()
    {
        m_workbench->history()->undo();
        handleEvents();
        m_workbench->history()->redo();
        handleEvents();
        return m_workbench->history()->canUndo();
    }

    bool keepState()
    {
        m_keeper->noteEdit();
        m_keeper->flush();
        return true;
    }

    bool changeTabs()
    {
        for (const int tab : {kSampleTab, kSettingTab}) {
            m_window.workflowTabs()->widget()->setCurrentIndex(tab);
            handleEvents();
        }
        return true;
    }

    bool startCheck()
    {
        m_workbench->findings()->checkAction()->trigger();
        return m_workbench->findings()->state() == Findings::State::Checking;
    }

    bool check() { return startCheck() && awaitCheck(); }

    bool awaitCheck()
    {
        while (m_workbench->findings()->state() == Findings::State::Checking)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        handleEvents();
        return m_workbench->findings()->state() == Findings::State::Checked;
    }

    bool compareWith(const QString &file)
    {
        Comparison *comparison = m_workbench->comparison();
        comparison->compareWith(file);
        while (comparison->isBusy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        handleEvents();
        comparison->end();
        return true;
    }

private:
    LargeWindow m_window;
    Workbench *m_workbench;
    JournalKeeper *m_keeper; ///< the window's
    int m_edits = 0;
};

using Work = std::function<bool(Everyday &window)>;

struct Figure
{
    const char *name;
    Work work;
    Work prepare = {}; ///< once, not measured
    Work finish = {};  ///< each time, not measured
};

void add(const Figure &figure, const std::function<std::shared_ptr<Everyday>()> &window)
{
    const std::string name = std::string("a large document/") + figure.name;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State &state) {
                                     const std::shared_ptr<Everyday> shown = window();
                                     bool isRight = !figure.prepare || figure.prepare(*shown);
                                     for ([[maybe_unused]] auto iteration : state) {
                                         isRight = figure.work(*shown) && isRight;
                                         if (figure.finish) {
                                             state.PauseTiming();
                                             isRight = figure.finish(*shown) && isRight;
                                             state.ResumeTiming();
                                         }
                                     }
                                     if (!isRight)
                                         state.SkipWithError("the work failed");
                                 })
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(Lifelike::isForAMoment() ? 1 : 5);
}

void addAll(const QString &file, const QString &other, const QTemporaryDir &folder)
{
    const auto kept = std::make_shared<Everyday>(file, folder);
    for (const Figure &figure : {
             Figure{"a key of the search", &Everyday::typeKey},
             Figure{"undo and redo of a setting", &Everyday::undoAndRedo, &Everyday::editSetting},
             Figure{"undo and redo of a sample", &Everyday::undoAndRedo, &Everyday::editSample},
             Figure{"an edit of a sample", &Everyday::editSample},
             Figure{"a state for the journal", &Everyday::keepState},
             Figure{"two changes of tabs", &Everyday::changeTabs},
         })
        add(figure, [kept] { return kept; });
    // What these show follows each edit, so that their windows are their own.
    const auto compare = [other](Everyday &window) { return window.compareWith(other); };
    for (const Figure &figure : {
             Figure{"start of a check", &Everyday::startCheck, {}, &Everyday::awaitCheck},
             Figure{"a check with its findings", &Everyday::check},
             Figure{"a comparison with everything different", compare},
         })
        add(figure, [file, &folder] { return std::make_shared<Everyday>(file, folder); });
}

} // namespace

int main(int argc, char *argv[])
{
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    GridItemManager::instance()->registerCreators();
    const QTemporaryDir folder;
    const QByteArray document = Lifelike::document(Lifelike::sized(10'000), 20);
    const QString file = writtenTo(folder, QStringLiteral("large.wflw"), document);
    const QString other = writtenTo(folder, QStringLiteral("wrong.wflw"), Lifelike::allWrong(document));
    benchmark::RegisterBenchmark("a large document/baseline", [document](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            benchmark::DoNotOptimize(QJsonDocument::fromJson(document));
    })->Unit(benchmark::kMicrosecond);
    addAll(file, other, folder);
    const int result = runRatioBenchmarks(argc, argv, Clock::Processor);
    benchmark::ClearRegisteredBenchmarks();
    return result;
}
