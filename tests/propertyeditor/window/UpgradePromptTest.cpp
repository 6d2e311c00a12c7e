#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/resources/ResourceReference.h>
#include <orv/widgets/DefaultWidgetCreator.h>

#include <QDialog>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

using OpenStatus = PropertyEditorWindow::OpenStatus;

namespace {

/// What a host's accessor was asked for, and what it does then.
struct ServerFiles
{
    QStringList asked;
    QString localCopy;
    QString reference = u"talvane:/workflows/new.wflw"_s;
    Error failure;
    QString written;
};

class ServerAccessor : public IFileAccessor
{
public:
    explicit ServerAccessor(ServerFiles *files)
        : m_files(files)
    {}

    QString getOpenFileName(QWidget *, const QString &, const QString &, const FileExtensionsNameFilter &,
                            const FileSystemSettings::DirectoryLocation &) override
    {
        return {};
    }

    DestinationFileLocation getSaveFileName(QWidget *, const QString &title, const QString &startPath,
                                            const FileExtensionsNameFilter &filter,
                                            const FileSystemSettings::DirectoryLocation &location) override
    {
        m_files->asked = {title, startPath, filter.nameFilters().join(u'|'), location.name};
        Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(m_files->reference);
        return DestinationFileLocation(*reference);
    }

    Error saveFile(const DestinationFileLocation &destination,
                   const std::function<Error(const QString &)> &write) override
    {
        m_files->written = destination.reference()->text();
        const Error error = write(m_files->localCopy);
        if (error.hasError())
            qFatal("The window doesn't pass on what it couldn't write");
        return m_files->failure;
    }

private:
    ServerFiles *m_files;
};

/// Files are saved as a host says while this lives.
class HostedFiles
{
public:
    explicit HostedFiles(ServerFiles *files)
    {
        DefaultWidgetCreator::setFileAccessorCreator(DefaultWidgetCreator::FileAccessorType::Local, [files] {
            return std::make_unique<ServerAccessor>(files);
        });
    }
    ~HostedFiles()
    {
        DefaultWidgetCreator::setFileAccessorCreator(DefaultWidgetCreator::FileAccessorType::Local, {});
    }
    Q_DISABLE_COPY_MOVE(HostedFiles)
};

/// An outdated workflow, and the person who applies and saves its upgrade.
struct Outdated
{
    Outdated() { answers.expectBox(u"Workflow upgrade"_s, u"Apply and save..."_s); }

    const QTemporaryDir folder;
    const QString path = write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.46.0")));
    LogCapture log;
    ScriptedAnswerer answers;
    Window window;
};

/// Counts the windows that tell how far some work is, shown or not yet.
class ProgressCounter : public QObject
{
public:
    ProgressCounter() { qApp->installEventFilter(this); }

    [[nodiscard]] int count() const { return m_count; }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        // It gets its name behind its title.
        if (event->type() == QEvent::WindowTitleChange && qobject_cast<QDialog *>(object)) {
            QMetaObject::invokeMethod(
                this,
                [this, shown = QPointer<QObject>(object)] {
                    m_count += shown && shown->objectName() == u"ProgressOutput"_s ? 1 : 0;
                },
                Qt::QueuedConnection);
        }
        return false;
    }

private:
    int m_count = 0;
};

QString versionOf(const QString &path)
{
    return WflwMetaData::versionFromMetaDataObject(PropertyEditorContent(TestData::read(path)).metadata());
}

} // namespace

/// What people are asked about an upgrade, and where it is saved.
class UpgradePromptTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void changesAreListed();
    void upgradesGoToServers();
    void upgradesGoToTheFileOfAHost();
    void saveThatFailsStillOpens();
    void unsupportedVersionsAreUpgradedUnasked();
    void equalVersionsAreNotUpgraded();
    void newerVersionsAreNotCalledUpgraded();
};

void UpgradePromptTest::changesAreListed()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path =
        write(folder, "old.wflw", TestData::read(TestData::path(u"upgrade/5.35.0_applies.wflw"_s)));
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Cancel"_s);
    Window window;
    QCOMPARE(window.openWorkflow(path), OpenStatus::NotOpened);
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().first().text,
             u"This workflow was outdated and was automatically upgraded for this version of the application "
             "to work properly. \nAlso, the following changes were applied: \nFor more efficient processing, "
             "the workflow was updated to use the fast XIC method.\nWould you like to apply this upgrade and "
             "proceed?"_s);
}

void UpgradePromptTest::upgradesGoToServers()
{
    Outdated outdated;
    ServerFiles files;
    files.localCopy = outdated.folder.filePath(u"upload.wflw"_s);
    const HostedFiles hosted(&files);
    QCOMPARE(outdated.window.openWorkflow(outdated.path), kOpened);
    QCOMPARE(files.asked, (QStringList{u"Save upgraded workflow"_s, outdated.folder.path(),
                                       u"Workflow (*.wflw)"_s, u"DefaultLocation"_s}));
    QCOMPARE(files.written, u"talvane:/workflows/new.wflw"_s);
    QCOMPARE(versionOf(files.localCopy), u"5.47.0"_s);
    QCOMPARE(outdated.window.workflowFilePath(), outdated.path);
    QVERIFY(outdated.answers.isDone());
}

void UpgradePromptTest::upgradesGoToTheFileOfAHost()
{
    Outdated outdated;
    ServerFiles files;
    files.localCopy = outdated.folder.filePath(u"new.wflw"_s);
    files.reference = files.localCopy;
    const HostedFiles hosted(&files);
    QCOMPARE(outdated.window.openWorkflow(outdated.path), kOpened);
    QCOMPARE(outdated.window.workflowFilePath(), files.localCopy);
    QCOMPARE(versionOf(files.localCopy), u"5.47.0"_s);
}

void UpgradePromptTest::saveThatFailsStillOpens()
{
    Outdated outdated;
    ServerFiles files;
    files.localCopy = outdated.folder.filePath(u"upload.wflw"_s);
    files.failure = Error(ErrorCode::CannotOpenFile, u"the server is away"_s);
    const HostedFiles hosted(&files);
    QCOMPARE(outdated.window.openWorkflow(outdated.path), kOpened);
    QCOMPARE(outdated.window.tabs().count(), 1);
    QCOMPARE(outdated.window.workflowFilePath(), outdated.path);
    const QStringList told = outdated.log.texts(QtInfoMsg).filter(u"the server is away"_s);
    QVERIFY2(!told.isEmpty(), qPrintable(outdated.log.texts(QtInfoMsg).join(u'\n')));
    QVERIFY(outdated.answers.isDone());
}

void UpgradePromptTest::unsupportedVersionsAreUpgradedUnasked()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow is invalid"_s, u"Yes"_s);
    QJsonObject server = metadata("5.9.0");
    server[u"contentMode"_s] = 1;
    Window window;
    QStringList upgraded;
    connect(&window, &PropertyEditorWindow::documentUpgraded, &window,
            [&upgraded](const DocumentUpgrade &upgrade) {
                upgraded = {upgrade.from.toString(), upgrade.to.toString()};
            });
    const QJsonObject samples = Documents::cell(u"Samples"_s);
    QCOMPARE(window.openWorkflow(documentOf({samples, karvonCell()}, server)), kOpened);
    QVERIFY2(answers.isDone(), qPrintable(transcriptOf(answers).join(u'\n')));
    QCOMPARE(upgraded, (QStringList{u"5.9.0"_s, u"5.47.0"_s}));
}

void UpgradePromptTest::equalVersionsAreNotUpgraded()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    Window window;
    const ProgressCounter progress;
    int upgrades = 0;
    connect(&window, &PropertyEditorWindow::documentUpgraded, &window, [&upgrades] { ++upgrades; });
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    QCOMPARE(progress.count(), 0);
    QCOMPARE(upgrades, 0);
    QVERIFY(answers.transcript().isEmpty());
    QCOMPARE(log.texts(QtInfoMsg).count(u"Workflow was upgraded"_s), 1);
    answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()}, metadata("5.46.0"))), kOpened);
    QCOMPARE(progress.count(), 1);
    QCOMPARE(upgrades, 1);
    QCOMPARE(log.texts(QtInfoMsg).count(u"Workflow was upgraded"_s), 2);
}

void UpgradePromptTest::newerVersionsAreNotCalledUpgraded()
{
    const LogCapture log;
    ScriptedAnswerer answers;
    Window window;
    int upgrades = 0;
    connect(&window, &PropertyEditorWindow::documentUpgraded, &window, [&upgrades] { ++upgrades; });
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()}, metadata("5.99.0"))), kOpened);
    QVERIFY(answers.transcript().isEmpty());
    answers.expectBox(u"Workflow is invalid"_s, u"Yes"_s);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()}, metadata("6.0.0"))), kOpened);
    QVERIFY(answers.isDone());
    QCOMPARE(upgrades, 0);
}

WIDGET_REGISTER_TEST(UpgradePromptTest)
#include "UpgradePromptTest.moc"
