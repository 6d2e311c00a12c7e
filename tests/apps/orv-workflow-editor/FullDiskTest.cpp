#include "EditorWindow.h"
#include "EditorWindows.h"
#include "LogCapture.h"
#include "TestData.h"
#include "TestFiles.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QStatusBar>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/resource.h>

#include <csignal>
#endif

using namespace orv;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

namespace {

/// While it lives, no file grows beyond a few letters, as on a disk that is full.
class FullDisk
{
public:
    FullDisk()
    {
#ifdef Q_OS_UNIX
        std::signal(SIGXFSZ, SIG_IGN);
        isThere = getrlimit(RLIMIT_FSIZE, &m_before) == 0;
        const rlimit limit{kSize, m_before.rlim_max};
        isThere = isThere && setrlimit(RLIMIT_FSIZE, &limit) == 0;
#endif
    }
    ~FullDisk()
    {
#ifdef Q_OS_UNIX
        if (isThere)
            setrlimit(RLIMIT_FSIZE, &m_before);
#endif
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

    bool isThere = false;

private:
    static constexpr int kSize = 1000;
#ifdef Q_OS_UNIX
    rlimit m_before{};
#endif
};

} // namespace

/// The disk is full: a person hears of it, and nothing that was there is lost.
class FullDiskTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aSaveLeavesFileAndEdits();
    void unsavedChangesThatCantBeKeptAreTold();
    void unsavedChangesAreKeptAgainOnceThereIsRoom();
    void aRunLeavesNothing();

private:
    void rename(const QString &name) { QTest::keyClick(typeNameOfFirstTab(*m_window, name), Qt::Key_Return); }
    /// What is kept for recovery; nothing without a journal.
    [[nodiscard]] QByteArray journal() const
    {
        const QDir folder(m_folder->filePath(u"journals"_s));
        const QStringList names = folder.entryList({u"*.journal"_s}, QDir::Files);
        return names.size() == 1 ? TestData::read(folder.filePath(names.first())) : QByteArray();
    }
    void saveByKey() { QTest::keyClick(m_window->focusWidget(), Qt::Key_S, Qt::ControlModifier); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<CoreMainWindow> m_main;
    QPointer<EditorWindow> m_window;
    QString m_file;
};

void FullDiskTest::init()
{
    m_log = std::make_unique<LogCapture>();
    GridItemManager::instance()->registerCreators();
    m_folder = std::make_unique<QTemporaryDir>();
    m_main = std::make_unique<CoreMainWindow>();
    m_window =
        new EditorWindow(m_main.get(), std::make_shared<RecoveryStore>(m_folder->filePath(u"journals"_s)));
    m_window->show();
    (void)QTest::qWaitForWindowActive(m_window);
    QDir(m_folder->path()).mkdir(u"work"_s);
    m_file = m_folder->filePath(u"work/a.wflw"_s);
    QVERIFY(QFile::copy(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s), m_file));
    QCOMPARE(m_window->openWorkflow(m_file), kOpened);
}

void FullDiskTest::cleanup()
{
    delete m_window;
    m_log.reset();
}

void FullDiskTest::aSaveLeavesFileAndEdits()
{
    const QByteArray before = TestData::read(m_file);
    typeNameOfFirstTab(*m_window, u"Typed"_s);
    {
        const FullDisk full;
        QVERIFY(full.isThere);
        ScriptedAnswerer answers;
        answers.expectBox({}, u"OK"_s);
        saveByKey();
        QVERIFY(answers.isDone());
        QCOMPARE(answers.transcript().constFirst().text, u"Failed to save the workflow"_s);
        QVERIFY(!answers.transcript().constFirst().details.isEmpty());
    }
    QCOMPARE(TestData::read(m_file), before);
    QCOMPARE(TestFiles::namesIn(m_folder->filePath(u"work"_s)), QStringList{u"a.wflw"_s});
    QTRY_VERIFY(m_window->isWindowModified());
    const ScriptedAnswerer nobodyIsAsked;
    saveByKey();
    QVERIFY(TestData::read(m_file).contains("\"Typed\""));
    QVERIFY(!m_window->isWindowModified());
}

void FullDiskTest::unsavedChangesThatCantBeKeptAreTold()
{
    const FullDisk full;
    QTest::keyClick(typeNameOfFirstTab(*m_window, u"Typed"_s), Qt::Key_Return);
    QTRY_VERIFY(m_window->statusBar()->currentMessage().startsWith(
        u"Unsaved changes can't be kept for recovery: "_s));
    QTRY_VERIFY(m_window->isWindowModified());
}

void FullDiskTest::unsavedChangesAreKeptAgainOnceThereIsRoom()
{
    rename(u"First"_s);
    QTRY_VERIFY(journal().contains("\"First\""));
    const QByteArray kept = journal();
    {
        const FullDisk full;
        rename(u"Second"_s);
        QTRY_VERIFY(m_window->statusBar()->currentMessage().startsWith(
            u"Unsaved changes can't be kept for recovery: "_s));
        QCOMPARE(journal(), kept);
    }
    rename(u"Third"_s);
    QTRY_VERIFY(journal().contains("\"Third\""));
    // What was lost while there was no room is nothing but the name in between.
    delete m_window;
    RecoveryStore store(m_folder->filePath(u"journals"_s));
    const QList<RecoveryEntry> entries = store.entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().file, m_file);
    const auto taken = store.take(entries.first());
    QVERIFY2(!taken.hasError(), qPrintable(taken.error().errorMessage()));
    QCOMPARE(taken->document[u"tabs"_s].toArray().first()[u"name"_s].toString(), u"Third"_s);
}

void FullDiskTest::aRunLeavesNothing()
{
    PropertyEditor::Content content;
    QVERIFY(!content.assignFromJson(m_window->content().toJsonObject()).hasError());
    const QString folder = m_folder->filePath(u"work"_s);
    {
        const FullDisk full;
        ScriptedAnswerer answers;
        answers.expectBox(u"Project creation"_s, u"OK"_s);
        Q_EMIT m_window->sendToProcessing(content, Path(folder + u"/a"_s, Path::Kind::File),
                                          DuplicateFilePolicy::Overwrite);
        QVERIFY(answers.isDone());
        const DialogRequest told = answers.transcript().constFirst();
        QVERIFY2(told.text.contains(u"Could not write the file"_s), qPrintable(told.text));
        QVERIFY(!told.details.isEmpty());
    }
    QCOMPARE(TestFiles::namesIn(folder), QStringList{u"a.wflw"_s});
}

WIDGET_REGISTER_TEST(FullDiskTest)
#include "FullDiskTest.moc"
