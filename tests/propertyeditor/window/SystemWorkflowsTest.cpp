#include "WidgetTest.h"
#include "WindowFixture.h"

#include <QDir>
#include <QFileInfo>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

class SystemWorkflowsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesOfTheFolderAreUpgraded();
    void nothingChosenChangesNothing();
    void failedUpgradesKeepTheOriginal();
    void lossyUpgradesKeepTheOriginal();
};

void SystemWorkflowsTest::filesOfTheFolderAreUpgraded()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString old = write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.46.0")));
    const QString newer = write(folder, "newer.wflw", documentOf({karvonCell()}, metadata("6.0.0")));
    const QString broken = write(folder, "broken.wflw", QByteArray("{"));
    const QString other = write(folder, "other.txt", documentOf({karvonCell()}, metadata("5.46.0")));
    QVERIFY(QDir(folder.path()).mkdir(u"deeper"_s));
    const QString deep = write(folder, "deeper/old.wflw", documentOf({karvonCell()}, metadata("5.46.0")));
    const QList<QByteArray> before{TestData::read(newer), TestData::read(broken), TestData::read(other),
                                   TestData::read(deep)};
    ScriptedAnswerer answers;
    answers.expectPath(u"Select workflows directory"_s, folder.path());
    answers.expectBox({}, u"OK"_s);
    Window window;
    window.updateSystemWorkflowsButton();
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().last().kind, DialogRequest::Kind::Information);
    QCOMPARE(answers.transcript().last().text, u"Updating workflows finished"_s);
    const PropertyEditorContent upgraded(TestData::read(old));
    QCOMPARE(WflwMetaData::versionFromMetaDataObject(upgraded.metadata()), u"5.47.0"_s);
    QCOMPARE(upgraded.metadata()[u"user"_s].toString(), u"ORV"_s);
    QCOMPARE((QList<QByteArray>{TestData::read(newer), TestData::read(broken), TestData::read(other),
                                TestData::read(deep)}),
             before);
    QVERIFY(log.warnings().contains(u"Can't load "_s + broken));
    QVERIFY(log.warnings().contains(u"Can't save into "_s + newer));
}

void SystemWorkflowsTest::nothingChosenChangesNothing()
{
    ScriptedAnswerer answers;
    answers.expectPath(u"Select workflows directory"_s, {});
    Window window;
    window.updateSystemWorkflowsButton();
    QVERIFY(answers.isDone());
}

void SystemWorkflowsTest::failedUpgradesKeepTheOriginal()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString old = write(folder, "old.wflw", documentOf({karvonCell()}, metadata("5.38.0")));
    const QByteArray before = TestData::read(old);
    ScriptedAnswerer answers;
    answers.expectPath(u"Select workflows directory"_s, folder.path());
    answers.expectBox({}, u"OK"_s);
    Window window;
    window.updateSystemWorkflowsButton();
    QCOMPARE(TestData::read(old + u".bak"_s), before);
    const PropertyEditorContent written(TestData::read(old));
    QCOMPARE(written.metadata()[u"user"_s].toString(), u"ORV"_s);
}

void SystemWorkflowsTest::lossyUpgradesKeepTheOriginal()
{
    const LogCapture log;
    const QTemporaryDir folder;
    QJsonObject document = documentOf({karvonCell()}, metadata("5.46.0"));
    document[u"ofAnotherApplication"_s] = 1;
    const QString old = write(folder, "old.wflw", document);
    const QByteArray before = TestData::read(old);
    ScriptedAnswerer answers;
    answers.expectPath(u"Select workflows directory"_s, folder.path());
    answers.expectBox({}, u"OK"_s);
    Window window;
    window.updateSystemWorkflowsButton();
    QCOMPARE(TestData::read(old + u".bak"_s), before);
    QVERIFY(!log.warnings().filter(u"ofAnotherApplication"_s).isEmpty());
}

WIDGET_REGISTER_TEST(SystemWorkflowsTest)
#include "SystemWorkflowsTest.moc"
