#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/window/PropertyEditorDirLocations.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogService.h>
#include <orv/widgets/HostServices.h>
#include <orv/widgets/ProteinInputWidgetBase.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QDir>
#include <QSignalSpy>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

using OpenStatus = PropertyEditorWindow::OpenStatus;

class OpeningTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void statusNumbersAreStored();
    void filesAreChosenAndOpened();
    void nothingChosenOpensNothing();
    void unreadableFilesLeaveTheOldDocument();
    void portableFoldersOpenTheirDocument();
    void contentsAndObjectsOpenUnderTheirName();
    void emptyContentsAreNotOpened();
    void examplesComeBackAsTheyWere_data();
    void examplesComeBackAsTheyWere();
    void refusedUpgradesLeaveAnEmptyWindow();
    void upgradesAreSavedElsewhere();
    void cancelledSavesKeepTheOldPath();
    void brokenCellsEmptyTheWindow();
    void documentTypesAreTold_data();
    void documentTypesAreTold();
    void everyWorkflowTypeHasItsDocumentType();
    void namesOfColumnsAreToldByPeptideMapsAlone();
    void serverFormsAreShownInDesktopForm();
    void serverFormsThatCantBeConvertedWholeAreShownAsTheyAre();
    void brokenExtendedMetadataAreReplaced();
    void allGroupsAreFolded();
    void typeIsThatOfTheFile();
    void windowsMayGoInEveryBox_data();
    void windowsMayGoInEveryBox();
    void foldersAreRemembered();
};

void OpeningTest::statusNumbersAreStored()
{
    QCOMPARE(int(OpenStatus::Opened), 0);
    QCOMPARE(int(OpenStatus::NotOpened), 1);
    QCOMPARE(int(OpenStatus::Rejected), 2);
    QCOMPARE(QMetaType::fromType<OpenStatus>().name(), "orv::PropertyEditorWindow::OpenStatus");
}

void OpeningTest::filesAreChosenAndOpened()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "a.wflw", documentOf({karvonCell()}));
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, path);
    Window window;
    window.show();
    QCOMPARE(window.selectAndOpenWorkflow(), OpenStatus::Opened);
    QCOMPARE(window.windowTitle(), QDir::toNativeSeparators(path) + u" - Project Creation"_s);
    QCOMPARE(window.state().workflowFilePath(), path);
    QCOMPARE(window.state().workflowBaseUrl(), QUrl::fromLocalFile(folder.path() + u'/'));
    QVERIFY(log.texts(QtDebugMsg).contains(u"Selected workflow: "_s + path));
    QVERIFY(log.texts(QtInfoMsg).contains(u"Workflow was upgraded"_s));
    QCOMPARE(answers.transcript().size(), 1);
}

void OpeningTest::nothingChosenOpensNothing()
{
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), OpenStatus::Opened);
    answers.expectPath(u"Launch Workflow"_s, {});
    QCOMPARE(window.selectAndOpenWorkflow(), OpenStatus::NotOpened);
    QCOMPARE(window.tabs().count(), 1);
}

void OpeningTest::unreadableFilesLeaveTheOldDocument()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({karvonCell()}))), OpenStatus::Opened);
    const QString title = window.windowTitle();
    for (const char *bytes : {"{", "[]", "{\"tabs\": [], \"tabs\": []}"}) {
        QCOMPARE(window.openWorkflow(write(folder, "b.wflw", QByteArray(bytes))), OpenStatus::NotOpened);
        QCOMPARE(window.windowTitle(), title);
        QCOMPARE(window.tabs().count(), 1);
    }
    QVERIFY(answers.transcript().isEmpty());
}

void OpeningTest::portableFoldersOpenTheirDocument()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"a.wflwp"_s));
    const QString inner = write(folder, "a.wflwp/property_table.wflw", documentOf({karvonCell()}));
    Window window;
    QCOMPARE(window.openWorkflow(folder.filePath(u"a.wflwp"_s)), OpenStatus::Opened);
    QCOMPARE(window.state().workflowFilePath(), inner);
    QCOMPARE(window.state().workflowBaseUrl(), QUrl::fromLocalFile(folder.filePath(u"a.wflwp/"_s)));
}

void OpeningTest::contentsAndObjectsOpenUnderTheirName()
{
    Window window;
    PropertyEditor::Content content;
    QVERIFY(!content.assignFromJson(documentOf({karvonCell()})).hasError());
    QCOMPARE(window.openWorkflow(content), OpenStatus::Opened);
    QCOMPARE(window.state().workflowFilePath(), u"Mixture"_s);
    QCOMPARE(window.windowTitle(), u"Mixture - Project Creation"_s);
    QCOMPARE(window.openWorkflow(documentOf({previewCell()}, metadata("5.47.0", "Preview"))),
             OpenStatus::Opened);
    QCOMPARE(window.state().workflowFilePath(), u"Preview"_s);
    QCOMPARE(window.grid(0)->items().first()->type(), BaseItemType::Preview);
}

void OpeningTest::emptyContentsAreNotOpened()
{
    const ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), OpenStatus::Opened);
    QCOMPARE(window.openWorkflow(PropertyEditor::Content()), OpenStatus::NotOpened);
    QCOMPARE(window.tabs().count(), 1);
    QVERIFY(answers.transcript().isEmpty());
}

void OpeningTest::examplesComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {u"antibody_peptide_map.wflw"_s, u"de_novo_antibody.wflw"_s,
                                u"intact_mass_check.wflw"_s, u"oligonucleotide_map.wflw"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void OpeningTest::examplesComeBackAsTheyWere()
{
    QFETCH(const QString, name);
    const LogCapture log;
    const ScriptedAnswerer answers;
    Window window;
    const QString path = TestData::examplePath(u"workflows/"_s + name);
    QCOMPARE(window.openWorkflow(path), OpenStatus::Opened);
    QVERIFY(answers.transcript().isEmpty());
    const QJsonObject before = Documents::parse(TestData::read(path));
    const QJsonObject after = window.content().document();
    QCOMPARE(PropertyEditorJsonUtils::withoutStamps(after)[u"tabs"_s],
             PropertyEditorJsonUtils::withoutStamps(before)[u"tabs"_s]);
    QCOMPARE(log.texts(QtCriticalMsg), QStringList());
}

void OpeningTest::refusedUpgradesLeaveAnEmptyWindow()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), OpenStatus::Opened);
    const QString path = write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.46.0")));
    answers.expectBox(u"Workflow upgrade"_s, u"Cancel"_s);
    QCOMPARE(window.openWorkflow(path), OpenStatus::NotOpened);
    QCOMPARE(window.tabs().count(), 0);
    QCOMPARE(window.windowTitle(), QDir::toNativeSeparators(path) + u" - Project Creation"_s);
    // That line is the first document's.
    QCOMPARE(log.texts(QtInfoMsg).count(u"Workflow was upgraded"_s), 1);
    QVERIFY(window.content().tabsAndContent().isEmpty());
}

void OpeningTest::upgradesAreSavedElsewhere()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.46.0")));
    const QByteArray before = TestData::read(path);
    const QString saved = folder.filePath(u"new.wflw"_s);
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s);
    answers.expectPath(u"Save upgraded workflow"_s, saved);
    Window window;
    QCOMPARE(window.openWorkflow(path), OpenStatus::Opened);
    QCOMPARE(answers.transcript().at(1).startPath, folder.path());
    QCOMPARE(TestData::read(path), before);
    QCOMPARE(window.state().workflowFilePath(), saved);
    const PropertyEditorContent written(TestData::read(saved));
    QCOMPARE(WflwMetaData::versionFromMetaDataObject(written.metadata()), u"5.47.0"_s);
    QCOMPARE(window.tabs().count(), 1);
}

void OpeningTest::cancelledSavesKeepTheOldPath()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.46.0")));
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s);
    answers.expectPath(u"Save upgraded workflow"_s, {});
    Window window;
    QCOMPARE(window.openWorkflow(path), OpenStatus::Opened);
    QCOMPARE(window.state().workflowFilePath(), path);
    QVERIFY(answers.isDone());
}

void OpeningTest::brokenCellsEmptyTheWindow()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "a.wflw", documentOf({karvonCell(), settingsCell("Nonsense", {})}));
    ScriptedAnswerer answers;
    answers.expectBox({}, u"OK"_s);
    Window window;
    QCOMPARE(window.openWorkflow(path), OpenStatus::NotOpened);
    QCOMPARE(window.tabs().count(), 0);
    QVERIFY(answers.transcript().first().text.startsWith(u"Failed to launch the specified workflow: "_s));
    QCOMPARE(window.state().workflowFilePath(), path);
}

void OpeningTest::documentTypesAreTold_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("documentType");
    QTest::addColumn<bool>("hasOwnNames");
    QTest::newRow("none") << u"Unknown"_s << 0 << false;
    QTest::newRow("protein search") << u"ProteinSearch"_s << 2 << false;
    QTest::newRow("glycoproteins") << u"GlycoproteinSearch"_s << 2 << false;
    QTest::newRow("peptide map") << u"PeptideMap"_s << 3 << false;
    QTest::newRow("digested oligo") << u"DigestedOligo"_s << 3 << true;
    QTest::newRow("cross-links") << u"CrossLinkedPeptides"_s << 3 << false;
    QTest::newRow("compounds") << u"CompoundProfiling"_s << 4 << false;
    QTest::newRow("glycans") << u"ReleasedGlycanQuantification"_s << 4 << false;
    QTest::newRow("intact mass") << u"IntactMass"_s << 9 << false;
    QTest::newRow("charge variants") << u"ChargeVariants"_s << 9 << false;
    QTest::newRow("intact oligo") << u"IntactOligo"_s << 10 << false;
}

void OpeningTest::documentTypesAreTold()
{
    QFETCH(const QString, type);
    QFETCH(const int, documentType);
    const QSignalSpy names(HostServices::instance(), &HostServices::displayColumnNamesChanged);
    MainWindowISSA::updateDisplayColumnNames(false);
    QJsonObject data = metadata();
    data[u"workflowType"_s] = type;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()}, data)), OpenStatus::Opened);
    QCOMPARE(int(ColumnFriendlyName::documentType()), documentType);
    QTEST(HostServices::instance()->hasOwnDisplayNames(), "hasOwnNames");
}

void OpeningTest::everyWorkflowTypeHasItsDocumentType()
{
    QMap<int, int> expected{{0, 0}, {2, 2}, {32, 2}, {27, 10}};
    for (const int type : {5, 6, 7, 16, 17, 18, 23, 24, 25, 26, 28, 29, 30, 34})
        expected.insert(type, 3);
    for (const int type : {3, 4, 8, 10, 20, 21, 22})
        expected.insert(type, 4);
    for (const int type : {1, 9, 11, 12, 13, 14, 15, 19, 31})
        expected.insert(type, 9);
    QMap<int, int> found;
    Window window;
    for (const WorkflowType type : availableWorkflowTypes()) {
        QJsonObject data = metadata();
        data[u"workflowType"_s] = workflowTypeToString(type);
        QCOMPARE(window.openWorkflow(documentOf({karvonCell()}, data)), OpenStatus::Opened);
        found.insert(int(type), int(ColumnFriendlyName::documentType()));
    }
    QCOMPARE(found, expected);
}

void OpeningTest::namesOfColumnsAreToldByPeptideMapsAlone()
{
    Window window;
    const auto open = [&window](const QString &type) {
        QJsonObject data = metadata();
        data[u"workflowType"_s] = type;
        return window.openWorkflow(documentOf({karvonCell()}, data));
    };
    QCOMPARE(open(u"DigestedOligo"_s), OpenStatus::Opened);
    QVERIFY(HostServices::instance()->hasOwnDisplayNames());
    QCOMPARE(open(u"IntactMass"_s), OpenStatus::Opened);
    QVERIFY(HostServices::instance()->hasOwnDisplayNames());
    QCOMPARE(open(u"PeptideMap"_s), OpenStatus::Opened);
    QVERIFY(!HostServices::instance()->hasOwnDisplayNames());
}

void OpeningTest::serverFormsAreShownInDesktopForm()
{
    QJsonObject data = metadata();
    data[u"contentMode"_s] = 1;
    registerCreators();
    const LogCapture log;
    for (const int application : {7, 0}) {
        CoreMainWindow main(ApplicationInfo{ApplicationType(application)});
        PropertyEditorDesktopWindow window(&main);
        QVERIFY(!window.setContent(PropertyEditorContent(documentOf({karvonCell()}, data))).hasError());
        QCOMPARE(int(WflwMetaData::contentMode(window.content().metadata())), application == 7 ? 0 : 1);
    }
}

void OpeningTest::serverFormsThatCantBeConvertedWholeAreShownAsTheyAre()
{
    QJsonObject data = metadata();
    data[u"contentMode"_s] = 1;
    registerCreators();
    const LogCapture log;
    CoreMainWindow main(ApplicationInfo{ApplicationType(7)});
    PropertyEditorDesktopWindow window(&main);
    const QJsonObject uneven = Documents::tab(u"Uneven"_s, {u"A"_s, u"B"_s}, {karvonCell()});
    QVERIFY(!window.setContent(PropertyEditorContent(Documents::document({uneven}, data))).hasError());
    QCOMPARE(int(WflwMetaData::contentMode(window.content().metadata())), 1);
    QCOMPARE(window.content().tabsAndContent().first().first, u"Uneven"_s);
}

void OpeningTest::brokenExtendedMetadataAreReplaced()
{
    const LogCapture log;
    Window window;
    const PropertyEditorContent broken({{u"Analysis"_s, {{u"Karvon"_s}, {Documents::toBytes(karvonCell())}}}},
                                       metadata(), {{u"metadataCache"_s, 3}});
    QVERIFY(!window.setContent(broken).hasError());
    QVERIFY(!log.texts(QtCriticalMsg).isEmpty());
    QVERIFY(log.texts(QtCriticalMsg).first().startsWith(u"Unable to parse extended metadata"_s));
    QCOMPARE(window.content().extendedMetadataInfo()[u"metadataCache"_s].toArray(), QJsonArray());
}

void OpeningTest::allGroupsAreFolded()
{
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({karvonCell(), previewCell()})), OpenStatus::Opened);
    for (IGridItem *item : window.grid(0)->items())
        QVERIFY(!qobject_cast<GridPropertyEditorView *>(item->widget())->isExpanded());
}

void OpeningTest::typeIsThatOfTheFile()
{
    const LogCapture log;
    const QTemporaryDir folder;
    QJsonObject data = metadata();
    data[u"workflowType"_s] = u"PeptideMap"_s;
    Window window;
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({karvonCell()}, data))),
             OpenStatus::Opened);
    QCOMPARE(window.workflowType(), WorkflowType::PeptideMap);
    QVERIFY(QFile::remove(folder.filePath(u"a.wflw"_s)));
    QCOMPARE(window.workflowType(), WorkflowType::Unknown);
    QCOMPARE(log.warnings().last(), u"Cannot read workflow file: "_s + folder.filePath(u"a.wflw"_s));
}

void OpeningTest::windowsMayGoInEveryBox_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("version");
    QTest::newRow("file dialog") << u"Launch Workflow"_s << u"OK"_s << QByteArray("5.47.0");
    QTest::newRow("invalid") << u"Workflow is invalid"_s << u"Yes"_s << QByteArray("6.0.0");
    QTest::newRow("upgrade") << u"Workflow upgrade"_s << u"Apply"_s << QByteArray("5.46.0");
    QTest::newRow("save") << u"Save upgraded workflow"_s << u"Apply and save..."_s << QByteArray("5.46.0");
    QTest::newRow("failed") << u"Workflow updating failed"_s << u"Yes"_s << QByteArray("5.38.0");
}

void OpeningTest::windowsMayGoInEveryBox()
{
    QFETCH(const QString, title);
    QFETCH(const QString, button);
    QFETCH(const QByteArray, version);
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "a.wflw", documentOf({karvonCell()}, metadata(version.constData())));
    auto *window = new Window;
    const QPointer<Window> guard(window);
    const Destroyer destroyer(window, title, button);
    if (title == u"Launch Workflow"_s)
        QCOMPARE(window->selectAndOpenWorkflow(), OpenStatus::NotOpened);
    else
        QVERIFY(window->openWorkflow(path) != OpenStatus::Opened);
    QVERIFY(!guard);
}

void OpeningTest::foldersAreRemembered()
{
    const auto location = PropertyEditorDirLocations::OpenWorkflowLocation;
    QCOMPARE(QString(location.name), u"OpenWorkflowLocation"_s);
    QCOMPARE(QString(location.key), u"FSS_OpenWorkflowLocation"_s);
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, write(folder, "a.wflw", documentOf({karvonCell()})));
    Window window;
    QCOMPARE(window.selectAndOpenWorkflow(), OpenStatus::Opened);
    QCOMPARE(FileSystemSettings::folder(location), folder.path());
    QCOMPARE(answers.transcript().first().text.contains(u"*.wflw"_s), true);
}

WIDGET_REGISTER_TEST(OpeningTest)
#include "OpeningTest.moc"
