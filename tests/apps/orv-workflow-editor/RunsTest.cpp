#include "Runs.h"

#include "EditorWindows.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <QDialog>
#include <QDir>
#include <QJsonDocument>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

namespace {

/// An example as it is handed over: with absolute paths.
Content handedOver()
{
    const QString path = TestData::examplePath(u"workflows/antibody_peptide_map.wflw"_s);
    Content relative;
    if (relative.assignFromJson(QJsonDocument::fromJson(TestData::read(path)).object()).hasError())
        qFatal("The example doesn't load");
    relative.setBaseUrl(QUrl::fromLocalFile(QFileInfo(path).path() + u'/'));
    Content content;
    if (content.assignFromJson(relative.toJsonObject(PropertyConversionFlag::AbsolutePaths)).hasError())
        qFatal("The example doesn't load with absolute paths");
    return content;
}

QStringList allBelow(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void leave(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("precious") != 8)
        qFatal("The test's file can't be written: %s", qPrintable(path));
}

/// Presses Cancel as soon as the progress of a run is there.
class Canceller : public QObject
{
public:
    Canceller() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *dialog = qobject_cast<QDialog *>(object);
        if (dialog && event->type() == QEvent::WindowTitleChange) {
            const QPointer<const QDialog> shown(dialog);
            QMetaObject::invokeMethod(
                this, [this, shown] { press(shown); }, Qt::QueuedConnection);
        }
        return false;
    }

    int pressed = 0;

private:
    void press(const QDialog *progress)
    {
        auto *button = progress ? progress->findChild<QPushButton *>() : nullptr;
        if (!button || progress->objectName() != u"ProgressOutput"_s)
            return;
        button->click();
        ++pressed;
    }
};

} // namespace

/// Runs beside one that is there already.
class RunsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepBothMakesAnother();
    void overwriteReplacesTheEarlierRun();
    void overwriteSparesWhatIsNoRun();
    void runsThatWereBeingReplacedComeBack();
    void skipLeavesTheEarlierRun();
    void foldersGetARunOfTheName();
    void cancelledRunsLeaveNothing_data();
    void cancelledRunsLeaveNothing();

private:
    [[nodiscard]] Runs::Outcome write(DuplicateFilePolicy policy) const
    {
        const Path path(m_folder->filePath(u"mab.senthia"_s), Path::Kind::File);
        return Runs::write(m_content, path, u"Map"_s, policy, nullptr);
    }
    [[nodiscard]] QString run() const { return m_folder->filePath(u"mab.senthia.run"_s); }
    [[nodiscard]] QString mark() const { return run() + u"/results.txt"_s; }

    Content m_content;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void RunsTest::init()
{
    m_content = handedOver();
    m_folder = std::make_unique<QTemporaryDir>();
    const Runs::Outcome first = write(DuplicateFilePolicy::KeepBoth);
    QVERIFY2(!first.error.hasError(), qPrintable(first.error.errorMessage()));
    QCOMPARE(first.folders, QStringList{run()});
    leave(mark());
}

void RunsTest::keepBothMakesAnother()
{
    const Runs::Outcome outcome = write(DuplicateFilePolicy::KeepBoth);
    QVERIFY(!outcome.error.hasError());
    QCOMPARE(outcome.folders, QStringList{m_folder->filePath(u"mab.senthia (2).run"_s)});
    QVERIFY(QFileInfo::exists(mark()));
    QCOMPARE(allBelow(m_folder->path()), (QStringList{u"mab.senthia (2).run"_s, u"mab.senthia.run"_s}));
}

void RunsTest::overwriteReplacesTheEarlierRun()
{
    const Runs::Outcome outcome = write(DuplicateFilePolicy::Overwrite);
    QVERIFY2(!outcome.error.hasError(), qPrintable(outcome.error.errorMessage()));
    QCOMPARE(outcome.folders, QStringList{run()});
    QVERIFY(outcome.kept.isEmpty());
    QVERIFY(!QFileInfo::exists(mark()));
    QVERIFY(QFileInfo::exists(run() + u"/workflow.wflw"_s));
    QCOMPARE(allBelow(m_folder->path()), QStringList{u"mab.senthia.run"_s});
}

void RunsTest::overwriteSparesWhatIsNoRun()
{
    QVERIFY(QDir(run()).removeRecursively());
    QVERIFY(QDir().mkdir(run()));
    leave(mark());
    const Runs::Outcome outcome = write(DuplicateFilePolicy::Overwrite);
    QCOMPARE(outcome.error.code(), ErrorCode::InvalidContent);
    QVERIFY(outcome.error.errorMessage().contains(run()));
    QVERIFY(outcome.folders.isEmpty());
    QCOMPARE(TestData::read(mark()), QByteArray("precious"));
    QCOMPARE(allBelow(m_folder->path()), QStringList{u"mab.senthia.run"_s});
}

void RunsTest::runsThatWereBeingReplacedComeBack()
{
    // As a program leaves it that is killed between the two renames.
    const QString staging = m_folder->filePath(u".mab.senthia.run-Xy12ab"_s);
    QVERIFY(QDir().mkpath(staging + u"/run"_s));
    QVERIFY(QDir().rename(run(), staging + u"/earlier"_s));
    QFile lock(staging + u"/.lock"_s);
    QVERIFY(lock.open(QIODevice::WriteOnly));
    lock.write("2000000000\nkilled\n" + QSysInfo::machineHostName().toUtf8() + "\n\n\n");
    lock.close();
    const Runs::Outcome refused = write(DuplicateFilePolicy::KeepBoth);
    QCOMPARE(refused.error.code(), ErrorCode::InvalidContent);
    QCOMPARE(TestData::read(mark()), QByteArray("precious"));
    QCOMPARE(allBelow(m_folder->path()), QStringList{u"mab.senthia.run"_s});
    const Runs::Outcome next = write(DuplicateFilePolicy::KeepBoth);
    QCOMPARE(next.folders, QStringList{m_folder->filePath(u"mab.senthia (2).run"_s)});
}

void RunsTest::skipLeavesTheEarlierRun()
{
    const Runs::Outcome outcome = write(DuplicateFilePolicy::Skip);
    QVERIFY(!outcome.error.hasError());
    QVERIFY(outcome.folders.isEmpty());
    QCOMPARE(outcome.kept, run());
    QVERIFY(QFileInfo::exists(mark()));
    QCOMPARE(allBelow(m_folder->path()), QStringList{u"mab.senthia.run"_s});
}

void RunsTest::foldersGetARunOfTheName()
{
    const QTemporaryDir folder;
    const Runs::Outcome outcome = Runs::write(m_content, Path(folder.path(), Path::Kind::Folder), u"A/B"_s,
                                              DuplicateFilePolicy::Skip, nullptr);
    QVERIFY(!outcome.error.hasError());
    QCOMPARE(outcome.folders.size(), 1);
    QCOMPARE(QFileInfo(outcome.folders.first()).path(), folder.path());
    QCOMPARE(allBelow(folder.path()).size(), 1);
}

void RunsTest::cancelledRunsLeaveNothing_data()
{
    QTest::addColumn<DuplicateFilePolicy>("policy");
    QTest::newRow("keep both") << DuplicateFilePolicy::KeepBoth;
    QTest::newRow("overwrite") << DuplicateFilePolicy::Overwrite;
}

void RunsTest::cancelledRunsLeaveNothing()
{
    QFETCH(const DuplicateFilePolicy, policy);
    const QStringList before = allBelow(run());
    const Canceller canceller;
    const Runs::Outcome outcome = write(policy);
    QCOMPARE(canceller.pressed, 1);
    QVERIFY(!outcome.error.hasError());
    QVERIFY(outcome.kept.isEmpty());
    // The work may have ended before it heard of the cancel; then the run is whole.
    if (outcome.folders.isEmpty()) {
        QCOMPARE(allBelow(run()), before);
        QCOMPARE(allBelow(m_folder->path()), QStringList{u"mab.senthia.run"_s});
    } else {
        QVERIFY(QFileInfo::exists(outcome.folders.first() + u"/workflow.wflw"_s));
    }
}

WIDGET_REGISTER_TEST(RunsTest)
#include "RunsTest.moc"
