#include "FakeJava.h"
#include "WidgetTest.h"

#include <orv/core/Settings.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DefaultWidgetCreator.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/FileChooserDialogManager.h>
#include <orv/widgets/HostServices.h>
#include <orv/widgets/JavaChecker.h>
#include <orv/widgets/TargetProjectPathChooserDialog.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

void writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("Cannot write the file");
}

} // namespace

class ServicesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void resultsThatExistAreKeptReplacedOrSkipped();
    void projectsGoToAFolderThatExists();
    void filesAreSavedThroughAnAccessor();
    void anAccessorOfAHostTakesItsPlace();
    void referencesAreChosen();
    void theMainWindowTellsTheApplication();
    void javaIsAskedForItsVersion_data();
    void javaIsAskedForItsVersion();
    void versionsOfJavaAreRead();
    void hostsHearOfTheDocument();
    void tabsHaveTheTitleOfTheirWindow();
};

void ServicesTest::resultsThatExistAreKeptReplacedOrSkipped()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.b.proj"_s);
    using P = DuplicateFilePolicy;
    for (const P policy : {P::KeepBoth, P::Overwrite, P::Skip})
        QCOMPARE(pathForResult(path, policy), path);
    writeText(path, "1");
    writeText(folder.filePath(u"a.b (2).proj"_s), "2");
    QCOMPARE(pathForResult(path, P::KeepBoth), folder.filePath(u"a.b (3).proj"_s));
    QCOMPARE(pathForResult(path, P::Overwrite), path);
    QCOMPARE(pathForResult(path, P::Skip), QString());
}

void ServicesTest::projectsGoToAFolderThatExists()
{
    const QTemporaryDir folder;
    TargetProjectPathChooserDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *const line = dialog.findChild<QLineEdit *>(u"folder"_s);
    const QPushButton *const save = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, folder.filePath(u"none"_s));
    QVERIFY(!save->isEnabled());
    QCOMPARE(dialog.findChild<QLabel *>(u"problem"_s)->text(), u"There is no such folder."_s);
    ScriptedAnswerer answers;
    answers.expectPath(u"Folder for the Projects"_s, folder.path());
    QTest::mouseClick(dialog.findChild<QPushButton *>(u"browse"_s), Qt::LeftButton);
    QVERIFY(save->isEnabled());
    QCOMPARE(dialog.duplicateFilePolicy(), DuplicateFilePolicy::KeepBoth);
    QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(dialog.duplicateFilePolicy(), DuplicateFilePolicy::Overwrite); // the button moves first
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.outputPath(), Path(folder.path(), Path::Kind::Folder));
}

void ServicesTest::filesAreSavedThroughAnAccessor()
{
    const QTemporaryDir folder;
    const auto accessor = DefaultWidgetCreator::fileAccessor();
    ScriptedAnswerer answers;
    answers.expectPath(u"Save"_s, folder.filePath(u"a"_s));
    answers.expectPath(u"Save"_s, QString());
    const auto ask = [&] {
        return accessor->getSaveFileName(nullptr, u"Save"_s, {}, {MirelFileTypes::WFLW},
                                         FileSystemSettings::DefaultLocation);
    };
    const DestinationFileLocation chosen = ask();
    QVERIFY(!chosen.isCanceled());
    QString written;
    const Error saved = accessor->saveFile(chosen, [&](const QString &path) {
        written = path;
        return Error::NoError;
    });
    QVERIFY(!saved.hasError());
    QCOMPARE(written, folder.filePath(u"a.wflw"_s));
    QVERIFY(ask().isCanceled());
    const Error failed = accessor->saveFile(
        chosen, [](const QString &) { return Error(ErrorCode::CannotOpenFile, u"no room"_s); });
    QCOMPARE(failed.errorMessage(), u"no room"_s);
    QVERIFY(accessor->saveFile({}, [](const QString &) { return Error(); }).hasError());
}

void ServicesTest::anAccessorOfAHostTakesItsPlace()
{
    using namespace DefaultWidgetCreator;
    int made = 0;
    setFileAccessorCreator(FileAccessorType::Server, [&]() -> std::unique_ptr<IFileAccessor> {
        ++made;
        return nullptr;
    });
    QVERIFY(fileAccessor(FileAccessorType::Server) != nullptr);
    QCOMPARE(made, 1);
    setFileAccessorCreator(FileAccessorType::Server, {});
    QVERIFY(fileAccessor(FileAccessorType::Server) != nullptr);
    QCOMPARE(made, 1);
}

void ServicesTest::referencesAreChosen()
{
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    answers.expectPath(u"Choose a File"_s, folder.filePath(u"a.fasta"_s));
    answers.expectPath(u"Pick"_s, QString());
    const ResourceReferenceSPtr chosen = FileChooserDialogManager::showFileChooser({}, nullptr);
    QVERIFY(chosen);
    QCOMPARE(chosen->text(), folder.filePath(u"a.fasta"_s));
    FileChooserDialogOptions options;
    options.title = u"Pick"_s;
    options.start = chosen;
    QVERIFY(!FileChooserDialogManager::showFileChooser(options, nullptr));
    QCOMPARE(answers.transcript().value(1).startPath, folder.filePath(u"a.fasta"_s));
    QString place;
    FileChooserDialogManager::setChooser([&](const FileChooserDialogOptions &, QWidget *, int page,
                                             const FileSystemSettings::DirectoryLocation &location) {
        FileChooserDialogManager::setChooser({});
        place = location.name;
        return page == 2 ? chosen : ResourceReferenceSPtr();
    });
    QCOMPARE(FileChooserDialogManager::showFileChooser(options, nullptr, 2,
                                                       FileSystemSettings::NewProjectLocation),
             chosen);
    QCOMPARE(place, u"NewProjectLocation"_s);
}

void ServicesTest::theMainWindowTellsTheApplication()
{
    QVERIFY(!CoreMainWindow::getMainWindow());
    {
        const CoreMainWindow first;
        QVERIFY(first.appInfo().isApplication(ApplicationType::Mirel));
        const CoreMainWindow second(ApplicationInfo(ApplicationType::Talvane));
        QCOMPARE(CoreMainWindow::getMainWindow(), &second);
        QVERIFY(CoreMainWindow::getMainWindow()->appInfo().isApplication(15));
        QVERIFY(!CoreMainWindow::getMainWindow()->appInfo().isApplication(7));
    }
    QVERIFY(!CoreMainWindow::getMainWindow());
}

void ServicesTest::javaIsAskedForItsVersion_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("message");
    QTest::newRow("usable") << "echo 'openjdk version \"17.0.2\" 2022-01-18' >&2\n"_ba
                            << int(JavaChecker::Usable) << QString();
    QTest::newRow("old numbering") << "echo 'java version \"1.8.0_292\"' >&2\n"_ba << int(JavaChecker::Usable)
                                   << QString();
    QTest::newRow("too old") << "echo 'java version \"1.6.0_45\"'\n"_ba << int(JavaChecker::TooOld)
                             << u"has version 6. Install version 8 or later."_s;
    QTest::newRow("fails") << "echo 'openjdk version \"17\"'; exit 3\n"_ba << int(JavaChecker::Fails)
                           << u"doesn't work"_s;
    QTest::newRow("no version") << "echo hello\n"_ba << int(JavaChecker::Fails) << u"JAVA_HOME"_s;
}

void ServicesTest::javaIsAskedForItsVersion()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    const FakeJava java(script);
    QString told;
    QTEST(JavaChecker::isJavaInstalled(&told), "answer");
    QVERIFY2(told.contains(message) && told.isEmpty() == message.isEmpty(), qPrintable(told));
    (void)JavaChecker::isJavaInstalled(nullptr);
}

void ServicesTest::versionsOfJavaAreRead()
{
    QCOMPARE(JavaChecker::majorVersion(u"openjdk version \"21\" 2023-09-19"_s), 21);
    QCOMPARE(JavaChecker::majorVersion(u"java version \"1.7.0_80\""_s), 7);
    QCOMPARE(JavaChecker::majorVersion(u"openjdk version \"9-ea\""_s), 9);
    QCOMPARE(JavaChecker::majorVersion(QString()), -1);
}

void ServicesTest::hostsHearOfTheDocument()
{
    const QSignalSpy types(HostServices::instance(), &HostServices::documentTypeChanged);
    const QSignalSpy names(HostServices::instance(), &HostServices::displayColumnNamesChanged);
    ColumnFriendlyName::changeDocumentType(3);
    ColumnFriendlyName::changeDocumentType(3);
    MainWindowISSA::updateDisplayColumnNames(true);
    QCOMPARE(types.size(), 1);
    QCOMPARE(types.value(0).value(0).toInt(), 3);
    QCOMPARE(int(ColumnFriendlyName::documentType()), 3);
    QCOMPARE(names.size(), 1);
    QVERIFY(HostServices::instance()->hasOwnDisplayNames());
    ColumnFriendlyName::changeDocumentType(0);
    MainWindowISSA::updateDisplayColumnNames(false);
    QVERIFY(!WorkflowNodeUtils::nodesEnabled());
    const as::ScopedOverride nodes(u"MIREL/ProcessingNodesEnabled"_s, true);
    QVERIFY(WorkflowNodeUtils::nodesEnabled());
}

void ServicesTest::tabsHaveTheTitleOfTheirWindow()
{
    QTabWidget tabs;
    SquishUiUtils::setTabWidgetWindowTitle(&tabs, u"a.wflw[*]"_s);
    QCOMPARE(tabs.windowTitle(), u"a.wflw[*]"_s);
    QCOMPARE(tabs.accessibleName(), u"a.wflw"_s);
}

WIDGET_REGISTER_TEST(ServicesTest)

#include "ServicesTest.moc"
