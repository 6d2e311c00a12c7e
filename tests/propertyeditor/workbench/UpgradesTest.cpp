#include "HistoryFixture.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/workbench/Upgrades.h>

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTreeView>

using namespace orv;
using namespace HistoryFixture;

namespace {

/// A window that shows what was made of an old document.
struct Upgraded : Edited
{
    Upgraded()
    {
        answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
        if (window.openWorkflow(path()) != WindowFixture::kOpened)
            qFatal("The old example doesn't load");
        shownAtFirst = shown();
    }

    static QString path() { return TestData::examplePath(u"workflows/outdated/antibody_search_2018.wflw"_s); }
    [[nodiscard]] QString title() const { return window.findChild<QLabel *>(u"upgradeTitle"_s)->text(); }
    [[nodiscard]] const QAbstractItemModel &steps() const
    {
        return *window.findChild<QTreeView *>(u"upgradeSteps"_s)->model();
    }
    [[nodiscard]] bool isPanelOpen() const
    {
        return window.findChild<QDockWidget *>(u"upgradePanel"_s)->isVisible();
    }

    QByteArray shownAtFirst;
};

QString cellOf(const QModelIndex &row, int column)
{
    return row.siblingAtColumn(column).data().toString();
}

QString captionOf(const char *setting)
{
    return PropertiesNames::displayNameForType(
        PropertiesNames::findPropertyForName(QString::fromUtf8(setting)));
}

/// What a cell needs to show all of its text in its width.
int neededHeight(const QTreeView &view, const QModelIndex &cell)
{
    const int margins = 2 * (view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1);
    const QRect room(0, 0, view.visualRect(cell).width() - margins, QWIDGETSIZE_MAX);
    return view.fontMetrics().boundingRect(room, Qt::TextWordWrap, cell.data().toString()).height();
}

QStringList cutCells(const QTreeView &view)
{
    QStringList cut;
    int rows = 0;
    for (QModelIndex row = view.indexAt({1, 1}); row.isValid(); row = view.indexBelow(row), ++rows) {
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            const QModelIndex cell = row.siblingAtColumn(column);
            const QString text = cell.data().toString();
            if (!view.visualRect(cell).isEmpty() && view.visualRect(cell).height() < neededHeight(view, cell))
                cut.append(text);
        }
    }
    return rows > 20 ? cut : QStringList(u"only %1 rows"_s.arg(rows));
}

/// Looks at the question in a size, and cancels it.
class UpgradeReader : public DialogAnswerer
{
public:
    std::optional<DialogAnswer> answer(const DialogRequest &request) override
    {
        request.dialog->show();
        request.dialog->resize(size);
        (void)QTest::qWaitForWindowExposed(request.dialog);
        wasAsked = true;
        read(*request.dialog);
        return DialogAnswer{u"Cancel"_s, {}};
    }

    QSize size;
    bool wasAsked = false;

private:
    void read(const QDialog &box) const
    {
        QCOMPARE(box.size(), size);
        const auto *view = box.findChild<QTreeView *>(u"upgradeSteps"_s);
        QVERIFY(!view->horizontalScrollBar()->isVisible());
        QTRY_COMPARE(cutCells(*view).join(u'\n'), QString());
        for (const QPushButton *button : box.findChildren<QPushButton *>())
            QVERIFY(box.rect().contains(QRect(button->mapTo(&box, QPoint()), button->size())));
    }
};

/// Reads what the question says of the upgrade, and applies it.
class TitleReader : public DialogAnswerer
{
public:
    std::optional<DialogAnswer> answer(const DialogRequest &request) override
    {
        request.dialog->show();
        if (const auto *label = request.dialog->findChild<QLabel *>(u"upgradeTitle"_s))
            title = label->text();
        const auto *view = request.dialog->findChild<QTreeView *>(u"upgradeSteps"_s);
        hasList = view && view->isVisible();
        return DialogAnswer{u"Apply"_s, {}};
    }

    QString title;
    bool hasList = true;
};

} // namespace

class UpgradesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void upgradesAreTakenBackAndAppliedAgain();
    void editsBehindAnUpgradeAreStepsOfTheirOwn();
    void nothingIsAskedWhereAnUpgradeWasTakenBack();
    void whatIsMadeInPlaceOfAnUpgradeIsANewWorkflow();
    void savedUpgradesAreNoStep();
    void upgradesThatAreSavedAtOnceAreNoStep();
    void thePanelTellsStepByStep();
    void notesStandBehindTheSteps();
    void upgradesThatChangeNothingSaySo();
    void rowsAreCopied();
    void otherDocumentsHaveNoSteps();
    void escapeClosesThePanel();
    void theQuestionCutsNothing_data();
    void theQuestionCutsNothing();
};

void UpgradesTest::upgradesAreTakenBackAndAppliedAgain()
{
    const QByteArray file = TestData::read(Upgraded::path());
    Upgraded edited;
    QVERIFY(edited.history->isModified());
    QCOMPARE(edited.history->undoText(), u"Upgrade from 5.5.0 to 5.47.0"_s);
    QVERIFY(!edited.isPanelOpen());
    edited.key(Qt::Key_Z);
    QCOMPARE(edited.window.tabs().count(), 0);
    QVERIFY(edited.window.workflowFilePath().isNull());
    QVERIFY(!edited.history->isModified());
    QVERIFY(edited.history->isUpgradeTakenBack());
    QVERIFY(edited.window.workflowMetadata().isEmpty());
    QVERIFY(edited.isPanelOpen());
    QVERIFY(edited.title().startsWith(
        u"The upgrade from 5.5.0 to 5.47.0 was taken back; the file is as it was."_s));
    edited.history->redo();
    QCOMPARE(edited.shown(), edited.shownAtFirst);
    QCOMPARE(edited.window.workflowFilePath(), Upgraded::path());
    QVERIFY(edited.history->isModified());
    QVERIFY(!edited.history->isUpgradeTakenBack());
    QCOMPARE(TestData::read(Upgraded::path()), file);
}

void UpgradesTest::editsBehindAnUpgradeAreStepsOfTheirOwn()
{
    Upgraded edited;
    edited.window.tabs().setCurrentIndex(2);
    edited.tree(2).expandAll();
    QVERIFY(LeavingWays::open(edited.tree(2), "KarvonCentroidTopk"));
    LeavingWays::type(u"345"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    edited.history->takeIn();
    const QByteArray shown = edited.shown();
    QCOMPARE(edited.history->count(), 2);
    edited.history->undo();
    QCOMPARE(edited.shown(), edited.shownAtFirst);
    edited.history->undo();
    QCOMPARE(edited.window.tabs().count(), 0);
    edited.history->redo();
    edited.history->redo();
    QCOMPARE(edited.shown(), shown);
    QVERIFY(!edited.history->canRedo());
}

void UpgradesTest::nothingIsAskedWhereAnUpgradeWasTakenBack()
{
    Upgraded edited;
    edited.history->undo();
    edited.window.close();
    QVERIFY(!edited.window.isVisible());
    QVERIFY(edited.answers.isDone());
}

void UpgradesTest::whatIsMadeInPlaceOfAnUpgradeIsANewWorkflow()
{
    Upgraded edited;
    const QSignalSpy dropped(edited.history, &DocumentHistory::upgradeDropped);
    DocumentState other = edited.history->state();
    other.tabs.resize(1);
    other.metadata = {};
    edited.history->undo();
    QVERIFY(edited.history->edit(edited.history->state(), other, u"Another tab"_s));
    QCOMPARE(edited.window.tabs().count(), 1);
    QCOMPARE(dropped.count(), 1);
    QVERIFY(!edited.history->canRedo());
    QVERIFY(edited.window.workflowFilePath().isNull());
    QCOMPARE(edited.title(), u"This workflow needed no upgrade."_s);
    QCOMPARE(edited.steps().rowCount(), 0);
    edited.answers.expectBox(u"Unsaved changes"_s, u"No"_s);
    edited.window.close();
    QVERIFY(edited.answers.isDone());
}

void UpgradesTest::savedUpgradesAreNoStep()
{
    const QTemporaryDir folder;
    Upgraded edited;
    QVERIFY(edited.window.saveWorkflowToJSON(folder.filePath(u"new.wflw"_s)));
    QVERIFY(!edited.history->canUndo());
    QVERIFY(!edited.history->isModified());
    QCOMPARE(edited.title(), u"Upgraded from 5.5.0 to 5.47.0, and saved."_s);
}

void UpgradesTest::upgradesThatAreSavedAtOnceAreNoStep()
{
    const QTemporaryDir folder;
    Edited edited;
    edited.answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s);
    edited.answers.expectPath(u"Save upgraded workflow"_s, folder.filePath(u"new.wflw"_s));
    QCOMPARE(edited.window.openWorkflow(Upgraded::path()), WindowFixture::kOpened);
    QVERIFY(!edited.history->canUndo());
    QVERIFY(!edited.history->isModified());
}

void UpgradesTest::thePanelTellsStepByStep()
{
    const Upgraded edited;
    const QAbstractItemModel &steps = edited.steps();
    QStringList headlines;
    for (int row = 0; row < steps.rowCount(); ++row)
        headlines.append(steps.index(row, 0).data().toString());
    QCOMPARE(headlines, QStringList({u"5.6.0, changes: 25"_s, u"5.15.0, changes: 1"_s,
                                     u"5.21.0, changes: 1"_s, u"5.41.0, changes: 1"_s}));
    const QModelIndex renamed = steps.index(5, 0, steps.index(0, 0));
    QCOMPARE(cellOf(renamed, 0), u"Search › MS/MS search › "_s + captionOf("KarvonFragmentMassError"));
    QCOMPARE(cellOf(renamed, 1), u"renamed"_s);
    QCOMPARE(cellOf(renamed, 2), u"fragment_mass_error"_s);
    QCOMPARE(cellOf(renamed, 3), u"KarvonFragmentMassError"_s);
    const QModelIndex added = steps.index(0, 0, steps.index(3, 0));
    QCOMPARE(cellOf(added, 1), u"added"_s);
    QCOMPARE(cellOf(added, 2), QString());
    QCOMPARE(cellOf(added, 3), u"S, T"_s);
    QCOMPARE(edited.title(),
             u"Upgraded from 5.5.0 to 5.47.0. The file stays as it was until you save over it."_s);
}

void UpgradesTest::notesStandBehindTheSteps()
{
    Edited edited;
    DocumentUpgrade upgrade;
    upgrade.from = QVersionNumber(5, 46, 0);
    upgrade.to = QVersionNumber(5, 47, 0);
    upgrade.notes = {u"The sample file \"a.raw\" can't be read."_s};
    Q_EMIT edited.window.documentUpgraded(upgrade, false);
    const QAbstractItemModel &steps = *edited.window.findChild<QTreeView *>(u"upgradeSteps"_s)->model();
    QCOMPARE(steps.rowCount(), 1);
    QCOMPARE(steps.index(0, 0).data().toString(), u"The sample file \"a.raw\" can't be read."_s);
    QCOMPARE(steps.rowCount(steps.index(0, 0)), 0);
}

void UpgradesTest::upgradesThatChangeNothingSaySo()
{
    const QTemporaryDir folder;
    // The example's own cells need nothing of the steps before.
    QByteArray bytes = TestData::read(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s));
    const QString path = folder.filePath(u"a.wflw"_s);
    QFile file(path);
    bytes.replace(R"(\"version\":\"5.47.0\")", R"(\"version\":\"5.46.0\")");
    QVERIFY(bytes.contains("5.46.0"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    Edited edited;
    TitleReader reader;
    DialogAnswerer *before = DialogService::install(&reader);
    const auto status = edited.window.openWorkflow(path);
    DialogService::install(before);
    QCOMPARE(status, WindowFixture::kOpened);
    QCOMPARE(reader.title, u"The upgrade from 5.46.0 to 5.47.0 changes nothing but the version; nothing is "
                           "written before you save."_s);
    QVERIFY(!reader.hasList);
    const auto *title = edited.window.findChild<QLabel *>(u"upgradeTitle"_s);
    QCOMPARE(title->text(),
             u"Upgraded from 5.46.0 to 5.47.0. The file stays as it was until you save over it. "
             "Nothing but the version changed."_s);
    QCOMPARE(edited.window.statusBar()->currentMessage(),
             u"Upgraded from 5.46.0 to 5.47.0; nothing but the version changed."_s);
}

void UpgradesTest::rowsAreCopied()
{
    Upgraded edited;
    edited.workbench->upgrades()->action()->trigger();
    auto *view = edited.window.findChild<QTreeView *>(u"upgradeSteps"_s);
    view->setFocus();
    view->setCurrentIndex(view->model()->index(0, 0, view->model()->index(1, 0)));
    edited.key(Qt::Key_C);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"Search › MS/MS search › %1\tadded\t\tfalse"_s.arg(captionOf("ExportSearchReport")));
}

void UpgradesTest::otherDocumentsHaveNoSteps()
{
    Upgraded edited;
    QCOMPARE(edited.window.openWorkflow(WindowFixture::documentOf({searchCell()})), WindowFixture::kOpened);
    QCOMPARE(edited.title(), u"This workflow needed no upgrade."_s);
    QCOMPARE(edited.steps().rowCount(), 0);
    QVERIFY(!edited.history->canUndo());
}

void UpgradesTest::escapeClosesThePanel()
{
    Upgraded edited;
    edited.workbench->upgrades()->action()->trigger();
    QVERIFY(edited.isPanelOpen());
    auto *view = edited.window.findChild<QTreeView *>(u"upgradeSteps"_s);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Escape);
    QVERIFY(!edited.isPanelOpen());
}

void UpgradesTest::theQuestionCutsNothing_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("a screen") << QSize(1200, 700);
    QTest::newRow("half of one") << QSize(640, 700);
}

void UpgradesTest::theQuestionCutsNothing()
{
    QFETCH(QSize, size);
    Edited edited;
    UpgradeReader reader;
    reader.size = size;
    DialogAnswerer *before = DialogService::install(&reader);
    (void)edited.window.openWorkflow(Upgraded::path());
    DialogService::install(before);
    QVERIFY(reader.wasAsked);
}

WIDGET_REGISTER_TEST(UpgradesTest)
#include "UpgradesTest.moc"
