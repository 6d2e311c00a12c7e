#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/content/Content.h>

#include <QDir>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

using OpenStatus = PropertyEditorWindow::OpenStatus;

namespace {

/// An application's window that does some things in its own way, and writes down what is called.
class OwnWays : public Window
{
public:
    using Window::openWorkflow;

    QStringList calls;
    std::optional<Error> contentError;

    OpenStatus openWorkflow(const QString &path, const ResourceReferenceSPtr &folder) override
    {
        calls.append(u"openWorkflow"_s);
        return Window::openWorkflow(path, folder);
    }
    OpenStatus selectAndOpenWorkflow() override
    {
        calls.append(u"selectAndOpenWorkflow"_s);
        return Window::selectAndOpenWorkflow();
    }
    bool saveWorkflowAs() override
    {
        calls.append(u"saveWorkflowAs"_s);
        return false;
    }
    void clear() override
    {
        calls.append(u"clear"_s);
        Window::clear();
    }
    Error setContent(const PropertyEditorContent &content) override
    {
        calls.append(u"setContent"_s);
        return contentError ? *contentError : Window::setContent(content);
    }
};

PropertyEditorContent contentOf(const QList<QJsonObject> &cells)
{
    return PropertyEditorContent(documentOf(cells));
}

QJsonObject withUnsupportedReference()
{
    return documentOf({karvonCell({setting("KarvonLayout", u"talvane:/projects/1/layout.ini"_s)})});
}

} // namespace

/// How a document comes onto the screen, and what is left where it doesn't.
class ShowingContentTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void applicationsMayReplaceTheSteps();
    void failuresWithoutAReasonAreTold();
    void referencesAreThoseOnTheScreen();
    void contentStandsBehindTheTabsThatAreThere();
    void contentThatCannotBeCheckedClearsFirst();
    void aTabThatCannotBeShownTakesTheOthersAlong();
    void refusalsBeforeTheClearKeepTheDocument_data();
    void refusalsBeforeTheClearKeepTheDocument();
    void cancelledChoicesAreLogged();
    void typeOfAPortableFolder();
    void typesWithoutFile();
};

void ShowingContentTest::applicationsMayReplaceTheSteps()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "a.wflw", documentOf({karvonCell()}));
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, path);
    OwnWays window;
    window.show();
    window.click("Launch Workflow...");
    QCOMPARE(window.calls,
             (QStringList{u"selectAndOpenWorkflow"_s, u"openWorkflow"_s, u"clear"_s, u"setContent"_s}));
    window.calls.clear();
    window.click("Save Workflow...");
    window.createEmptyWorkflow();
    QCOMPARE(window.calls, (QStringList{u"saveWorkflowAs"_s, u"clear"_s, u"setContent"_s}));
    QVERIFY(answers.isDone());
}

void ShowingContentTest::failuresWithoutAReasonAreTold()
{
    const LogCapture log;
    OwnWays window;
    for (const auto &[error, text] :
         {std::pair(Error(ErrorCode::InvalidContent), u"Failed to launch the specified workflow"_s),
          std::pair(Error(ErrorCode::InvalidContent, u"no room"_s),
                    u"Failed to launch the specified workflow: no room"_s)}) {
        ScriptedAnswerer answers;
        answers.expectBox({}, u"OK"_s);
        window.contentError = error;
        QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), OpenStatus::NotOpened);
        QCOMPARE(transcriptOf(answers), QStringList{u"critical |  | %1 | [OK]"_s.arg(text)});
    }
}

void ShowingContentTest::referencesAreThoseOnTheScreen()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectBox(u"Unsupported reference type"_s, u"OK"_s);
    OwnWays window;
    QCOMPARE(window.openWorkflow(withUnsupportedReference()), kOpened);
    QVERIFY(answers.isDone());
    // An application that shows nothing of the next document has none of its references either.
    window.contentError = Error(Error::NoError);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    QCOMPARE(answers.transcript().size(), 1);
}

void ShowingContentTest::contentStandsBehindTheTabsThatAreThere()
{
    Window window;
    QVERIFY(!window.setContent(contentOf({karvonCell()})).hasError());
    QVERIFY(!window.setContent(contentOf({previewCell()})).hasError());
    QCOMPARE(window.tabs().count(), 2);
    QCOMPARE(window.grid(0)->items().first()->type(), BaseItemType::Karvon);
    QCOMPARE(window.grid(1)->items().first()->type(), BaseItemType::Preview);
}

void ShowingContentTest::contentThatCannotBeCheckedClearsFirst()
{
    const LogCapture log;
    Window window;
    window.setWorkflowFilePath(u"/data/a.wflw"_s);
    QVERIFY(!window.setContent(contentOf({karvonCell()})).hasError());
    // Cells without columns are a tab for designers, and no document.
    const PropertyEditorContent loose({{u"Loose"_s, {{}, {Documents::toBytes(previewCell())}}}},
                                      metadata("5.47.0", "Loose"), {});
    QVERIFY(window.state().shouldDisplayNewProteinWidget(loose).hasError());
    QVERIFY(!window.setContent(loose).hasError());
    QCOMPARE(window.tabs().count(), 1);
    QCOMPARE(window.tabs().tabText(0), u"Loose"_s);
    QCOMPARE(window.workflowFilePath(), u"/data/a.wflw"_s);
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.workflowMetadata()), u"Loose"_s);
}

void ShowingContentTest::aTabThatCannotBeShownTakesTheOthersAlong()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectBox({}, u"OK"_s);
    OwnWays window;
    const QJsonObject good = Documents::tab(u"Good"_s, {u"A"_s}, {karvonCell()});
    const QJsonObject faulty = Documents::tab(u"Faulty"_s, {u"A"_s}, {settingsCell("Nonsense", {})});
    QCOMPARE(window.openWorkflow(Documents::document({good, faulty, good}, metadata())),
             OpenStatus::NotOpened);
    QCOMPARE(window.tabs().count(), 0);
    QCOMPARE(window.workflowFilePath(), u"Mixture"_s);
    QCOMPARE(window.calls.last(), u"clear"_s);
    QVERIFY(answers.isDone());
}

void ShowingContentTest::refusalsBeforeTheClearKeepTheDocument_data()
{
    QTest::addColumn<QJsonObject>("refused");
    QTest::addColumn<QString>("button");
    QTest::newRow("no tabs") << Documents::document({}, metadata("5.47.0", "Other")) << u"OK"_s;
    QTest::newRow("newer") << documentOf({previewCell()}, metadata("6.0.0", "Other")) << u"No"_s;
}

void ShowingContentTest::refusalsBeforeTheClearKeepTheDocument()
{
    QFETCH(const QJsonObject, refused);
    QFETCH(const QString, button);
    const LogCapture log;
    ScriptedAnswerer answers;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    answers.expectBox(u"Workflow is invalid"_s, button);
    QCOMPARE(window.openWorkflow(refused), OpenStatus::Rejected);
    QCOMPARE(window.tabs().count(), 1);
    QCOMPARE(window.grid(0)->items().first()->type(), BaseItemType::Karvon);
    QCOMPARE(window.windowTitle(), u"Mixture - Project Creation"_s);
    QCOMPARE(WflwMetaData::nameFromMetaDataObject(window.workflowMetadata()), u"Mixture"_s);
    QVERIFY(answers.isDone());
}

void ShowingContentTest::cancelledChoicesAreLogged()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectPath(u"Launch Workflow"_s, {});
    Window window;
    QCOMPARE(window.selectAndOpenWorkflow(), OpenStatus::NotOpened);
    QCOMPARE(log.texts(QtDebugMsg).filter(u"Selected workflow:"_s).size(), 1);
}

void ShowingContentTest::typeOfAPortableFolder()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"a.wflwp"_s));
    QJsonObject data = metadata();
    data[u"workflowType"_s] = u"IntactMass"_s;
    write(folder, "a.wflwp/property_table.wflw", documentOf({karvonCell()}, data));
    Window window;
    window.setWorkflowFilePath(folder.filePath(u"a.wflwp"_s));
    QCOMPARE(window.workflowType(), WorkflowType::IntactMass);
}

void ShowingContentTest::typesWithoutFile()
{
    const LogCapture log;
    const Window window;
    QCOMPARE(window.workflowType(), WorkflowType::Unknown);
    QCOMPARE(log.warnings(), QStringList{u"Cannot read workflow file: "_s});
}

WIDGET_REGISTER_TEST(ShowingContentTest)
#include "ShowingContentTest.moc"
