#include "FakeJava.h"
#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/window/ProjectOutput.h>
#include <orv/widgets/TargetProjectPathChooserDialog.h>

#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSignalSpy>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

using PropertyEditor::AbstractValidator;
using PropertyEditor::Content;

namespace {

/// Finds what it is told.
class Told : public AbstractValidator
{
public:
    Told(const QString &error, const QString &warning, QThread **thread = nullptr)
        : m_error(error)
        , m_warning(warning)
        , m_thread(thread)
    {}

    bool validate(const Content &, const QUrl &, QList<QString> *warnings,
                  QList<QString> *errors) const override
    {
        if (m_thread)
            *m_thread = QThread::currentThread();
        if (!m_warning.isEmpty())
            warnings->append(m_warning);
        if (!m_error.isEmpty())
            errors->append(m_error);
        return m_error.isEmpty();
    }

private:
    QString m_error;
    QString m_warning;
    QThread **m_thread;
};

/// A window with a workflow that passes all checks.
struct Checked
{
    explicit Checked(const char *example = "workflows/intact_mass_check.wflw")
    {
        window.show();
        if (window.openWorkflow(TestData::examplePath(text(example))) != kOpened)
            qFatal("The example doesn't open");
    }

    void find(const QString &error, const QString &warning)
    {
        window.setAdditionalValidatorsCreatorFunction(
            [error, warning] { return QList<AbstractValidator *>{new Told(error, warning)}; });
    }

    Window window;
    ScriptedAnswerer answers;
    QSignalSpy sent{&window, &PropertyEditorWindow::sendToProcessing};
};

/// The window of an application beside a server.
class ServerWindow : public Window
{
public:
    [[nodiscard]] WorkflowAppType workflowAppType() const override { return WorkflowAppType::Talvane; }
};

QList<BaseItemType> types(std::initializer_list<BaseItemType> list)
{
    return list;
}

} // namespace

class HandOverTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void checkedWorkflowsAreSent();
    void processingSendsThemToo();
    void processingChecksRelativePathsAsTheyAre();
    void errorsStopIt();
    void warningsMayBePassedOver();
    void ownValidatorsRunOnThisThread();
    void searchesNeedJava();
    void searchEnginesAreKnown();
    void searchesOfSeveralSamplesGoToAFolder();
    void unsupportedReferencesStopIt();
    void referencesAreJudgedByTheApplication();
    void withoutAPathNothingIsSent();
    void theWindowIsDisabledMeanwhile();
    void widgetWarningsNameThePurpose();
    void pathsByDocuments_data();
    void pathsByDocuments();
    void unmergedSearchesGoToAFolder();
    void severalDocumentsGoToAFolder_data();
    void severalDocumentsGoToAFolder();
    void unsupportedDocumentsAreTold();
    void missingDocumentsAreTold();
    void windowsMayGoMeanwhile();
};

void HandOverTest::checkedWorkflowsAreSent()
{
    const QTemporaryDir folder;
    Checked checked;
    checked.answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    QTest::mouseClick(&checked.window.button("pushCreateProject"), Qt::LeftButton);
    QVERIFY2(checked.answers.isDone(), qPrintable(transcriptOf(checked.answers).join(u'\n')));
    QCOMPARE(checked.sent.size(), 1);
    const auto content = checked.sent.first().at(0).value<Content>();
    const auto path = checked.sent.first().at(1).value<Path>();
    QVERIFY(path.isFile());
    QVERIFY(path.path().startsWith(folder.path()));
    QCOMPARE(content.baseUrl(), QUrl::fromLocalFile(TestData::examplePath(u"workflows/"_s)));
    const QByteArray json = content.toJson(PropertyEditor::PropertyConversionFlag::KeepPaths);
    QVERIFY(json.contains((TestData::examplePath(u"workflows/data"_s)).toUtf8()));
}

void HandOverTest::processingSendsThemToo()
{
    const QTemporaryDir folder;
    Checked checked;
    QVERIFY(checked.window.saveWorkflowToJSON(folder.filePath(u"absolute.wflw"_s)));
    checked.answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    checked.window.processWorkflowClicked();
    QVERIFY2(checked.answers.isDone(), qPrintable(transcriptOf(checked.answers).join(u'\n')));
    QCOMPARE(checked.sent.size(), 1);
    const auto content = checked.sent.first().at(0).value<Content>();
    const QByteArray json = content.toJson(PropertyEditor::PropertyConversionFlag::KeepPaths);
    QVERIFY(json.contains((TestData::examplePath(u"workflows/data"_s)).toUtf8()));
}

void HandOverTest::processingChecksRelativePathsAsTheyAre()
{
    const LogCapture log;
    Checked checked;
    checked.answers.expectBox(u"Project creation"_s, u"OK"_s);
    checked.window.processWorkflowClicked();
    QVERIFY(checked.answers.isDone());
    QVERIFY(checked.answers.transcript().first().text.contains(
        u"The sample path of the sample \"Lot 0423\" does not exist"_s));
    QVERIFY(checked.sent.isEmpty());
}

void HandOverTest::errorsStopIt()
{
    const LogCapture log;
    Checked checked;
    checked.find(u"A <fault>"_s, u"A doubt"_s);
    checked.answers.expectBox(u"Project creation"_s, u"OK"_s);
    QVERIFY(!checked.window.createProjectClicked());
    QVERIFY(checked.sent.isEmpty());
    QCOMPARE(transcriptOf(checked.answers),
             QStringList{u"critical | Project creation | The workflow is not valid.\\n\\nPlease correct the "
                         "following errors:\\nA <fault>\\nPossible problems:\\nA doubt | [OK]"_s});
}

void HandOverTest::warningsMayBePassedOver()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Checked checked;
    checked.find({}, u"A doubt"_s);
    checked.answers.expectBox(u"Project creation"_s, u"No"_s);
    QVERIFY(!checked.window.createProjectClicked());
    QVERIFY(checked.sent.isEmpty());
    checked.answers.expectBox(u"Project creation"_s, u"Yes"_s);
    checked.answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    QVERIFY(checked.window.createProjectClicked());
    QCOMPARE(checked.sent.size(), 1);
    QCOMPARE(transcriptOf(checked.answers).first(),
             u"question | Project creation | There are possible problems with the workflow:\\nA "
             "doubt\\nAre you sure you want to continue? | Yes [No]"_s);
}

void HandOverTest::ownValidatorsRunOnThisThread()
{
    QThread *thread = nullptr;
    Checked checked;
    checked.window.setAdditionalValidatorsCreatorFunction(
        [&thread] { return QList<AbstractValidator *>{new Told({}, {}, &thread)}; });
    Content content;
    QVERIFY(!content.assignFromJson(checked.window.content().document()).hasError());
    content.setBaseUrl(checked.window.state().workflowBaseUrl());
    QVERIFY(checked.window.checkContent(content, u"Check"_s));
    QCOMPARE(thread, QThread::currentThread());
}

void HandOverTest::searchesNeedJava()
{
    const FakeJava java("echo hello\n");
    Checked checked("workflows/antibody_peptide_map.wflw");
    checked.answers.expectBox(u"Error"_s, u"OK"_s);
    QVERIFY(!checked.window.createProjectClicked());
    QCOMPARE(checked.answers.transcript().last().kind, DialogRequest::Kind::Warning);
    QVERIFY(checked.answers.transcript().last().text.contains(u"Java"_s));
    QVERIFY(checked.answers.isDone());
    QVERIFY(checked.sent.isEmpty());
}

void HandOverTest::searchEnginesAreKnown()
{
    Window window;
    for (const char *type : {"Karvon", "Ostrale", "Preview", "Samples"}) {
        Content content;
        QVERIFY(!content.assignFromJson(documentOf({Documents::cell(text(type))})).hasError());
        QCOMPARE(window.state().hasKarvon(content), text(type) == u"Karvon"_s);
        QCOMPARE(window.state().hasOstrale(content), text(type) == u"Ostrale"_s);
    }
}

void HandOverTest::searchesOfSeveralSamplesGoToAFolder()
{
    const FakeJava java;
    const LogCapture log;
    const QTemporaryDir folder;
    Checked checked("workflows/antibody_peptide_map.wflw");
    checked.answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.senthia"_s));
    QVERIFY(checked.window.createProjectClicked());
    QVERIFY2(checked.answers.isDone(), qPrintable(transcriptOf(checked.answers).join(u'\n')));
    QCOMPARE(checked.sent.size(), 1);
}

void HandOverTest::unsupportedReferencesStopIt()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    const QJsonObject layout = setting("KarvonLayout", u"talvane:/projects/1/layout.ini"_s);
    answers.expectBox(u"Unsupported reference type"_s, u"OK"_s);
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({karvonCell({layout})}))), kOpened);
    QCOMPARE(window.tabs().count(), 1);
    answers.expectBox(u"Unsupported reference type"_s, u"OK"_s);
    QVERIFY(!window.createProjectClicked());
    QVERIFY(answers.isDone());
    QVERIFY2(answers.transcript().last().text.startsWith(
                 u"A workflow cannot be launched. It contains unsupported references: "_s),
             qPrintable(answers.transcript().last().text));
    QVERIFY(answers.transcript().last().text.contains(
        u"In order to use this workflow you need to use Mirel for Talvane."_s));
}

void HandOverTest::referencesAreJudgedByTheApplication()
{
    const LogCapture log;
    ServerWindow window;
    ScriptedAnswerer answers;
    const auto layout = [](const char *reference) {
        return PropertyEditorContent(documentOf({karvonCell({setting("KarvonLayout", text(reference))})}));
    };
    QVERIFY(window.state().verifyWorkflowReferences(layout("talvane:/projects/1/layout.ini")));
    QVERIFY(window.state().verifyWorkflowReferences(layout("managed:/17/layout.ini")));
    QVERIFY(answers.transcript().isEmpty());
    answers.expectBox(u"Unsupported reference type"_s, u"OK"_s);
    QVERIFY(!window.state().verifyWorkflowReferences(
        layout("unifi:/lab/{0b5a1c6e-1111-4222-8333-444455556666}/Results/layout.ini")));
    // People read the folders, not the number.
    QCOMPARE(transcriptOf(answers),
             QStringList{u"warning | Unsupported reference type | A workflow cannot be launched. It contains "
                         "unsupported references: \\nunifi:/lab/Results/layout.ini\\nIn order to use this "
                         "workflow you need to use Mirel. | [OK]"_s});
}

void HandOverTest::withoutAPathNothingIsSent()
{
    Checked checked;
    checked.answers.expectPath(u"Save project as"_s, {});
    QVERIFY(!checked.window.createProjectClicked());
    QVERIFY(checked.answers.isDone());
    QVERIFY(checked.sent.isEmpty());
    QVERIFY(checked.window.isEnabled());
}

void HandOverTest::theWindowIsDisabledMeanwhile()
{
    const QTemporaryDir folder;
    Checked checked;
    bool wasEnabled = true;
    connect(&checked.window, &PropertyEditorWindow::sendToProcessing, &checked.window,
            [&] { wasEnabled = checked.window.isEnabled(); });
    checked.answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    QVERIFY(checked.window.createProjectClicked());
    QVERIFY(!wasEnabled);
    QVERIFY(checked.window.isEnabled());
}

void HandOverTest::widgetWarningsNameThePurpose()
{
    QCOMPARE(int(WidgetValidationType::ProjectCreation), 0);
    QCOMPARE(int(WidgetValidationType::SaveWorkflow), 1);
    QCOMPARE(int(WidgetValidationType::SubmitJob), 2);
}

void HandOverTest::pathsByDocuments_data()
{
    using Type = BaseItemType;
    QTest::addColumn<QList<BaseItemType>>("documents");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("kind");
    const int file = int(Path::Kind::File);
    const int folder = int(Path::Kind::Folder);
    QTest::newRow("one search") << types({Type::Karvon}) << u"Save project as"_s << file;
    QTest::newRow("searches and a map")
        << types({Type::Karvon, Type::Senthia}) << u"Save project as"_s << file;
    QTest::newRow("previews") << types({Type::Preview, Type::Preview}) << u"Save project to..."_s << folder;
    QTest::newRow("none") << types({}) << u"Save project to..."_s << folder;
    QTest::newRow("glycans") << types({Type::Dravik}) << u"Save project as"_s << file;
}

void HandOverTest::pathsByDocuments()
{
    QFETCH(const QList<BaseItemType>, documents);
    QFETCH(const QString, title);
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    answers.expectPath(title, folder.filePath(u"result"_s));
    const Path path = ProjectOutput::askForPath(nullptr, documents, {}, nullptr);
    QVERIFY2(answers.isDone(), qPrintable(transcriptOf(answers).join(u'\n')));
    QTEST(int(path.kind()), "kind");
    answers.expectPath(title, {});
    QVERIFY(ProjectOutput::askForPath(nullptr, documents, {}, nullptr).isEmpty());
}

void HandOverTest::unmergedSearchesGoToAFolder()
{
    const QTemporaryDir folder;
    Content content;
    for (const bool isMerged : {false, true}) {
        const QJsonObject merge = setting("MergeKarvonResults", isMerged ? u"true"_s : u"false"_s);
        QVERIFY(!content.assignFromJson(documentOf({karvonCell({merge})})).hasError());
        ScriptedAnswerer answers;
        if (isMerged) {
            answers.expectPath(u"Save project as"_s, folder.filePath(u"a.karvon"_s));
        } else {
            answers.expectDialog(u"Save Projects"_s, [&folder](QDialog &dialog) {
                dialog.findChild<QLineEdit *>()->setText(folder.path());
                return true;
            });
        }
        DuplicateFilePolicy policy = DuplicateFilePolicy::Overwrite;
        const Path path =
            ProjectOutput::askForPath(nullptr, content.findAllDocuments(), content.findProjects(), &policy);
        QVERIFY2(answers.isDone(), qPrintable(transcriptOf(answers).join(u'\n')));
        QCOMPARE(path.isFile(), isMerged);
        QCOMPARE(path.isEmpty(), false);
        QCOMPARE(policy, isMerged ? DuplicateFilePolicy::Overwrite : DuplicateFilePolicy::KeepBoth);
    }
    ScriptedAnswerer answers;
    const QJsonObject alone = setting("MergeKarvonResults", u"false"_s);
    QVERIFY(!content.assignFromJson(documentOf({karvonCell({alone})})).hasError());
    answers.expectDialog(u"Save Projects"_s, [](QDialog &) { return false; });
    QVERIFY(ProjectOutput::askForPath(nullptr, content.findAllDocuments(), content.findProjects(), nullptr)
                .isEmpty());
}

void HandOverTest::severalDocumentsGoToAFolder_data()
{
    using Type = BaseItemType;
    QTest::addColumn<QList<BaseItemType>>("documents");
    QTest::newRow("maps and masses") << types({Type::Senthia, Type::Intact});
    QTest::newRow("beside a search") << types({Type::Karvon, Type::Senthia, Type::Dravik});
    QTest::newRow("maps and views") << types({Type::Senthia, Type::Preview});
}

void HandOverTest::severalDocumentsGoToAFolder()
{
    QFETCH(const QList<BaseItemType>, documents);
    const QTemporaryDir folder;
    Window window;
    ScriptedAnswerer answers;
    answers.expectDialog(u"Save Projects"_s, [&](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(folder.path());
        for (auto *choice : dialog.findChildren<QRadioButton *>())
            choice->setChecked(choice->text() == u"&Overwrite it"_s);
        return dialog.parentWidget() == &window;
    });
    DuplicateFilePolicy policy = DuplicateFilePolicy::KeepBoth;
    const Path path = window.state().getLocalProjectOutputPath(documents, {}, &policy);
    QVERIFY(answers.isDone());
    QCOMPARE(path.path(), folder.path());
    QCOMPARE(path.kind(), Path::Kind::Folder);
    QCOMPARE(policy, DuplicateFilePolicy::Overwrite);
    answers.expectDialog(u"Save Projects"_s, [](QDialog &dialog) {
        dialog.findChildren<QRadioButton *>().last()->setChecked(true);
        return false;
    });
    const Path refused = window.state().getLocalProjectOutputPath(documents, {}, &policy);
    QVERIFY(refused.isEmpty());
    QCOMPARE(refused.kind(), Path::Kind::Unknown);
    QCOMPARE(policy, DuplicateFilePolicy::Overwrite);
}

void HandOverTest::unsupportedDocumentsAreTold()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    Window window;
    answers.expectBox(u"Project creation"_s, u"OK"_s);
    DuplicateFilePolicy policy = DuplicateFilePolicy::Skip;
    const Path path = window.state().getLocalProjectOutputPath(
        types({BaseItemType::Karvon, BaseItemType::Preview}), {}, &policy);
    QVERIFY(path.isEmpty());
    QCOMPARE(path.kind(), Path::Kind::Unknown);
    QCOMPARE(policy, DuplicateFilePolicy::Skip);
    QCOMPARE(
        transcriptOf(answers),
        QStringList{u"critical | Project creation | Current workflow processing nodes configuration is not "
                    "supported | [OK]"_s});
}

void HandOverTest::missingDocumentsAreTold()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectBox(u"Project creation"_s, u"OK"_s);
    const Path path =
        ProjectOutput::askForPath(nullptr, {BaseItemType::Karvon, BaseItemType::Preview}, {}, nullptr);
    QVERIFY(path.isEmpty());
    QCOMPARE(path.kind(), Path::Kind::Unknown);
    QCOMPARE(answers.transcript().first().text,
             u"Current workflow processing nodes configuration is not supported"_s);
}

void HandOverTest::windowsMayGoMeanwhile()
{
    const QTemporaryDir folder;
    auto *window = new Window;
    const QPointer<Window> guard(window);
    QCOMPARE(window->openWorkflow(TestData::examplePath(u"workflows/intact_mass_check.wflw"_s)), kOpened);
    ScriptedAnswerer answers;
    answers.expectPath(u"Save project as"_s, folder.filePath(u"mab.intact"_s));
    connect(window, &PropertyEditorWindow::sendToProcessing, window, [guard] { delete guard; });
    QVERIFY(window->createProjectClicked());
    QVERIFY(!guard);
}

WIDGET_REGISTER_TEST(HandOverTest)
#include "HandOverTest.moc"
