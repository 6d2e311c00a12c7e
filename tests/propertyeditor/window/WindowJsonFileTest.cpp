#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>

#include <QFileInfo>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonObject fileObject(const QString &path)
{
    return Documents::parse(TestData::read(path));
}

} // namespace

class WindowJsonFileTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void workflowsAreRead();
    void unreadableFilesLeaveTheContent_data();
    void unreadableFilesLeaveTheContent();
    void workflowsAreWrittenStamped();
    void newerWorkflowsStay();
    void unwritablePlacesAreTold();
    void presetsHaveTheirKeys();
    void presetsAreReadWithoutMetadata();
    void presetsNeedATab();
    void otherFilesAreNoPresets();
};

void WindowJsonFileTest::workflowsAreRead()
{
    const QTemporaryDir folder;
    const QString path = write(folder, "a.wflw", documentOf({karvonCell()}));
    PropertyEditorContent content;
    QVERIFY(PropertyEditorWindowJsonFile(path).loadTabsFromJson(&content));
    QCOMPARE(content.tabsAndContent().first().first, u"Analysis"_s);
    QCOMPARE(content.metadata(), metadata());
}

void WindowJsonFileTest::unreadableFilesLeaveTheContent_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("tabs:");
    QTest::newRow("cut") << QByteArray("{\"tabs\": [");
    QTest::newRow("a list") << QByteArray("[1, 2]");
    QTest::newRow("a key twice") << QByteArray("{\"tabs\": [], \"tabs\": [1]}");
}

void WindowJsonFileTest::unreadableFilesLeaveTheContent()
{
    QFETCH(const QByteArray, bytes);
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = bytes.isNull() ? folder.filePath(u"missing"_s) : write(folder, "a.wflw", bytes);
    PropertyEditorContent content(documentOf({karvonCell()}));
    const QJsonObject before = content.document();
    PropertyEditorWindowJsonFile file(path);
    QVERIFY(!file.loadTabsFromJson(&content));
    QVERIFY(!file.loadTabFromJson(&content));
    QCOMPARE(content.document(), before);
    QVERIFY(!log.texts(QtCriticalMsg).isEmpty());
    QVERIFY(file.error().hasError());
}

void WindowJsonFileTest::workflowsAreWrittenStamped()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.wflw"_s);
    PropertyEditorContent content(documentOf({karvonCell()}, metadata("5.40.0")));
    content.setCustomUser(u"ORV"_s);
    QVERIFY(PropertyEditorWindowJsonFile(path).saveTabsToJson(content));
    const QJsonObject stamp = Documents::parse(fileObject(path)[u"metadata"_s].toString().toUtf8());
    QCOMPARE(stamp[u"version"_s].toString(), u"5.47.0"_s);
    QCOMPARE(stamp[u"user"_s].toString(), u"ORV"_s);
    QCOMPARE(stamp[u"name"_s].toString(), u"Mixture"_s);
}

void WindowJsonFileTest::newerWorkflowsStay()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "a.wflw", documentOf({karvonCell()}, metadata("5.48.0")));
    const QByteArray before = TestData::read(path);
    PropertyEditorWindowJsonFile file(path);
    QVERIFY(!file.saveTabsToJson(PropertyEditorContent(documentOf({previewCell()}))));
    QCOMPARE(TestData::read(path), before);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(u"Can't write JSON to file "_s + path + u" : "_s));
    QVERIFY(file.error().errorMessage().contains(u"5.48.0"_s));
}

void WindowJsonFileTest::unwritablePlacesAreTold()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"no/such/folder.wflw"_s);
    const PropertyEditorContent content(documentOf({karvonCell()}));
    QVERIFY(!PropertyEditorWindowJsonFile(path).saveTabsToJson(content));
    QVERIFY(!PropertyEditorWindowJsonFile(path).saveTabToJson(content));
    QCOMPARE(log.warnings().size(), 2);
    for (const QString &line : log.warnings())
        QVERIFY2(line.startsWith(u"Can't write JSON to file "_s + path), qPrintable(line));
}

void WindowJsonFileTest::presetsHaveTheirKeys()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ptab"_s);
    QVERIFY(PropertyEditorWindowJsonFile(path).saveTabToJson(
        PropertyEditorContent(documentOf({karvonCell(), previewCell()}))));
    const QByteArray bytes = TestData::read(path);
    QVERIFY(bytes.startsWith("{\n    \"cells\": ["));
    const QJsonObject preset = Documents::parse(bytes);
    QCOMPARE(preset.keys(), (QStringList{u"cells"_s, u"columns"_s, u"metadata"_s, u"name"_s}));
    QCOMPARE(preset[u"name"_s].toString(), u"Analysis"_s);
    QCOMPARE(preset[u"columns"_s].toArray(), (QJsonArray{u"Karvon"_s, u"Preview"_s}));
    QCOMPARE(preset[u"cells"_s].toArray().size(), 2);
    QCOMPARE(preset[u"cells"_s].toArray().at(1)[u"type"_s].toString(), u"Preview"_s);
    QCOMPARE(Documents::parse(preset[u"metadata"_s].toString().toUtf8())[u"version"_s].toString(),
             u"5.47.0"_s);
}

void WindowJsonFileTest::presetsAreReadWithoutMetadata()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ptab"_s);
    QVERIFY(
        PropertyEditorWindowJsonFile(path).saveTabToJson(PropertyEditorContent(documentOf({karvonCell()}))));
    PropertyEditorContent content;
    QVERIFY(PropertyEditorWindowJsonFile(path).loadTabFromJson(&content));
    QCOMPARE(content.metadata(), QJsonObject());
    QCOMPARE(content.tabsAndContent().size(), 1);
    QCOMPARE(content.tabsAndContent().first().first, u"Analysis"_s);
    QCOMPARE(content.tabsAndContent().first().second.first, QStringList{u"Karvon"_s});
    const QJsonObject cell =
        Documents::parse(content.tabsAndContent().first().second.second.at(0).toByteArray());
    QCOMPARE(cell[u"properties"_s], karvonCell()[u"properties"_s]);
}

void WindowJsonFileTest::presetsNeedATab()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ptab"_s);
    QVERIFY(!PropertyEditorWindowJsonFile(path).saveTabToJson(PropertyEditorContent()));
    QCOMPARE(log.warnings(), QStringList{u"There is no content"_s});
    QVERIFY(!QFileInfo::exists(path));
}

void WindowJsonFileTest::otherFilesAreNoPresets()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = write(folder, "a.ptab", QByteArray("{\"name\": \"Analysis\", \"columns\": 3}"));
    PropertyEditorContent content;
    PropertyEditorWindowJsonFile file(path);
    QVERIFY(!file.loadTabFromJson(&content));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList{u"The file is no tab preset: "_s + path});
}

WIDGET_REGISTER_TEST(WindowJsonFileTest)
#include "WindowJsonFileTest.moc"
