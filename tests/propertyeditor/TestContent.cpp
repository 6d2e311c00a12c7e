#include "CurrentVersion.h"
#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestContent : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theMinimalDocumentLoads();
    void anythingButAnArrayOfTabsIsRefused_data();
    void anythingButAnArrayOfTabsIsRefused();
    void aFileThatHoldsAnArrayIsRefused();
    void anEmptyFileIsRefused();
    void aMissingFileIsRefused();
    void aFailedReadLeavesTheTreeUntouched();
    void aParseErrorNamesItsPlace();
    void aLoadedFileSetsNameAndBaseUrl();
    void loadingFromJsonForgetsFileNameAndBaseUrl();
    void aFailureInTheSecondTabLeavesTheFirst();
    void everyLevelPassesAFailureOn();
    void metadataThatIsNoJsonReadsAsEmpty_data();
    void metadataThatIsNoJsonReadsAsEmpty();
    void theModeKeyOfOldDocumentsIsIgnored();
    void extendedMetadataAreReadAndWritten();
    void anEmptyExtendedMetadataObjectIsRead();
    void brokenExtendedMetadataFailWithAnEmptyTree();
    void savingChangesNeitherVersionNorStamp();
    void theTextIsIndentedWithSortedKeys();
    void savingWritesTheFileAndKeepsTheFileName();
    void aFailedSaveKeepsTheOldFile();
    void metadataAloneCanBeLoaded();
    void metadataOfAnUnreadableFileAreEmpty();
    void clearKeepsTheMetadataAndEmitsNothing();
    void addGroupRefusesEmptyAndDuplicateNames();
    void addGroupAnnouncesTheGroup();
    void removesByIndexWithFourSignals();
    void removesByNameAndPointer();
    void refusesToRemoveWhatIsNotThere();
    void findsGroups();
    void copiesShareTheTree();
    void metadataAreReadAndWritten();
    void findsItemsInTreeOrder();
    void theBaseUrlReachesNewTabsOnlyWhenSet();
    void scriptsCanDriveIt();
    void logWritesAnInfoLine();
    void lossesAreReportedWithTheirPlace();
};

namespace {

QJsonObject threeCells()
{
    return Documents::document(
        {Documents::tab(QStringLiteral("First"), {QStringLiteral("A")},
                        {Documents::cell(QStringLiteral("Samples"))}),
         Documents::tab(
             QStringLiteral("Second"), {QStringLiteral("B"), QStringLiteral("C")},
             {Documents::cell(QStringLiteral("Karvon")), Documents::cell(QStringLiteral("Samples"))})},
        {{QStringLiteral("version"), QStringLiteral("5.20.0")},
         {QStringLiteral("user"), QStringLiteral("ada")}});
}

QString writeFile(const QTemporaryDir &folder, const QByteArray &bytes)
{
    const QString path = folder.filePath(QStringLiteral("document.wflw"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The test can't write its file");
    return path;
}

} // namespace

void TestContent::theMinimalDocumentLoads()
{
    Content content;
    QSignalSpy reset(&content, &Content::reset);
    ORV_VERIFY_OK(content.assignFromJson(Documents::parse(R"({"tabs":[]})")));
    QVERIFY(content.isEmpty());
    QCOMPARE(reset.count(), 1);
    QVERIFY(content.metadata().isEmpty());
    QCOMPARE(content.extendedMetadataInfo(), ExtendedMetadataInfo());
}

void TestContent::anythingButAnArrayOfTabsIsRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("absent") << QByteArray("{}");
    QTest::newRow("object") << QByteArray(R"({"tabs":{}})");
    QTest::newRow("string") << QByteArray(R"({"tabs":"x"})");
    QTest::newRow("number") << QByteArray(R"({"tabs":1})");
    QTest::newRow("bool") << QByteArray(R"({"tabs":true})");
    QTest::newRow("null") << QByteArray(R"({"tabs":null})");
}

void TestContent::anythingButAnArrayOfTabsIsRefused()
{
    QFETCH(QByteArray, json);
    const LogCapture log;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    const Error error = content.assignFromJson(Documents::parse(json));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), QStringLiteral("Workflow content is not valid"));
    QCOMPARE(content.groupNames(), QStringList({QStringLiteral("First"), QStringLiteral("Second")}));
    QCOMPARE(content.version(), QStringLiteral("5.20.0"));
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("JSON format is incorrect: tabs")));
}

void TestContent::aFileThatHoldsAnArrayIsRefused()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Content content;
    const Error error = content.assignFromFile(writeFile(folder, "[]"));
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), QStringLiteral("Workflow content is not valid"));
}

void TestContent::anEmptyFileIsRefused()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = writeFile(folder, {});
    Content content;
    const Error error = content.assignFromFile(path);
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), QStringLiteral("File content is not valid: %1").arg(path));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(QStringLiteral("Could not parse file content to JSON:")));
}

void TestContent::aMissingFileIsRefused()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("none.wflw"));
    Content content;
    const Error error = content.assignFromFile(path);
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QCOMPARE(error.errorMessage(), QStringLiteral("Could not open the file: %1").arg(path));
}

void TestContent::aFailedReadLeavesTheTreeUntouched()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromFile(writeFile(folder, Documents::toBytes(threeCells()))));
    const QString fileName = content.fileName();
    QVERIFY(content.assignFromFile(folder.filePath(QStringLiteral("none.wflw"))).hasError());
    QCOMPARE(content.count(), 2);
    QCOMPARE(content.fileName(), fileName);
}

void TestContent::aParseErrorNamesItsPlace()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Content content;
    const Error error = content.assignFromFile(writeFile(folder, "{\n  \"tabs\": [,]\n}"));
    QVERIFY(error.details().join(QLatin1Char(' ')).contains(QStringLiteral("Line 2, column")));
}

void TestContent::aLoadedFileSetsNameAndBaseUrl()
{
    const QTemporaryDir folder;
    const QString path = writeFile(folder, Documents::toBytes(threeCells()));
    const LogCapture log;
    Content content;
    ORV_VERIFY_OK(content.assignFromFile(path));
    QCOMPARE(log.texts(QtDebugMsg), QStringList(QStringLiteral("Assigning PEC from file \"%1\"").arg(path)));
    QCOMPARE(content.fileName(), path);
    // The URL of the file itself: resolving a relative path against it replaces the file's name.
    QCOMPARE(content.baseUrl(), QUrl(path, QUrl::TolerantMode));
    QCOMPARE(content.baseUrl().resolved(QUrl(QStringLiteral("other.fasta"))).path(),
             folder.filePath(QStringLiteral("other.fasta")));
}

void TestContent::loadingFromJsonForgetsFileNameAndBaseUrl()
{
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromFile(writeFile(folder, Documents::toBytes(threeCells()))));
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QCOMPARE(content.fileName(), QString());
    QVERIFY(content.baseUrl().isEmpty());
}

void TestContent::aFailureInTheSecondTabLeavesTheFirst()
{
    const LogCapture log;
    const QTemporaryDir folder;
    QJsonObject json = threeCells();
    QJsonArray tabs = json.value(QStringLiteral("tabs")).toArray();
    tabs[1] = QJsonObject{{QStringLiteral("name"), QStringLiteral("Second")}};
    json.insert(QStringLiteral("tabs"), tabs);
    Content content;
    QSignalSpy reset(&content, &Content::reset);
    const Error error = content.assignFromFile(writeFile(folder, Documents::toBytes(json)));
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.details(), QStringList(QStringLiteral("Tab 2 (\"Second\").")));
    QCOMPARE(content.groupNames(), QStringList(QStringLiteral("First")));
    QCOMPARE(content.fileName(), QString());
    QCOMPARE(reset.count(), 0);
}

void TestContent::everyLevelPassesAFailureOn()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QJsonObject tab = Documents::tab(QStringLiteral("T"), {QStringLiteral("C")},
                                           {Documents::cell(QStringLiteral("Nonsense"))});
    const QString path = writeFile(folder, Documents::toBytes(Documents::document({tab})));
    const Error error = Content().assignFromFile(path);
    QStringList functions;
    for (const ErrorPlace &place : error.trail())
        functions.append(place.function.section(u'(', 0, 0).section("::"_L1, -2));
    QCOMPARE(functions, QStringList({u"ItemSubGroup::assignFromJson"_s, u"ItemGroup::assignFromJson"_s,
                                     u"Content::loadTabs"_s, u"Content::assignFromJson"_s,
                                     u"Content::assignFromFile"_s}));
}

void TestContent::metadataThatIsNoJsonReadsAsEmpty_data()
{
    QTest::addColumn<QJsonValue>("metadata");
    QTest::newRow("no JSON") << QJsonValue(QStringLiteral("not json"));
    QTest::newRow("array") << QJsonValue(QStringLiteral("[1]"));
    QTest::newRow("no string") << QJsonValue(
        QJsonObject{{QStringLiteral("version"), QStringLiteral("5.0.0")}});
}

void TestContent::metadataThatIsNoJsonReadsAsEmpty()
{
    QFETCH(QJsonValue, metadata);
    LossCollector lost;
    Content content;
    content.setLossObserver(&lost);
    ORV_VERIFY_OK(content.assignFromJson(
        {{QStringLiteral("tabs"), QJsonArray()}, {QStringLiteral("metadata"), metadata}}));
    QVERIFY(content.metadata().isEmpty());
    QCOMPARE(content.version(), QStringLiteral("0"));
    QCOMPARE(lost.losses().size(), 1);
    QCOMPARE(lost.losses().first().path, QStringLiteral("/metadata"));
}

void TestContent::theModeKeyOfOldDocumentsIsIgnored()
{
    LossCollector lost;
    Content content;
    content.setLossObserver(&lost);
    ORV_VERIFY_OK(content.assignFromJson(Documents::parse(R"({"tabs":[],"projectCreationMode":1})")));
    QCOMPARE(content.contentMode(), PropertyEditorContent::ContentMode::DesktopMode);
    QCOMPARE(lost.losses().size(), 1);
    QCOMPARE(lost.losses().first().path, QStringLiteral("/projectCreationMode"));
}

void TestContent::extendedMetadataAreReadAndWritten()
{
    const QJsonObject extended = Documents::parse(R"({"metadataCache":[{"reference":"r","values":
        [{"attribute":"a","value":1}]}],"metadataMappingConnections":[{"attribute":"a","target":1}],"later":true})");
    QJsonObject json = threeCells();
    json.insert(QStringLiteral("extendedMetadata"), extended);
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(json));
    QCOMPARE(content.extendedMetadataInfo().metadataMappingConnections().size(), 1);
    const QJsonObject written = Documents::parse(content.toJson(PropertyConversionFlag::KeepPaths));
    QCOMPARE(written.value(QStringLiteral("extendedMetadata")).toObject(), extended);
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QCOMPARE(content.extendedMetadataInfo(), ExtendedMetadataInfo()); // absent in the next document
}

void TestContent::anEmptyExtendedMetadataObjectIsRead()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(Documents::parse(R"({"tabs":[],"extendedMetadata":{}})")));
    QCOMPARE(content.extendedMetadataInfo(), ExtendedMetadataInfo());
}

void TestContent::brokenExtendedMetadataFailWithAnEmptyTree()
{
    const LogCapture log;
    QJsonObject json = threeCells();
    json.insert(QStringLiteral("extendedMetadata"),
                QJsonObject{{QStringLiteral("metadataCache"), QStringLiteral("no array")}});
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QCOMPARE(content.assignFromJson(json).code(), ErrorCode::InvalidContent);
    QVERIFY(content.isEmpty());
}

void TestContent::savingChangesNeitherVersionNorStamp()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    const QJsonObject written = Documents::parse(content.toJson(PropertyConversionFlag::KeepPaths));
    QCOMPARE(written.value(QStringLiteral("metadata")).toString(),
             QString::fromLatin1(R"({"user":"ada","version":"5.20.0"})"));
    QCOMPARE(Documents::withoutStamps(written.value(QStringLiteral("tabs"))),
             threeCells().value(QStringLiteral("tabs")));

    // The value form stamps: the same bytes come out at the current version.
    const PropertyEditorContent value(content.toJson(PropertyConversionFlag::KeepPaths));
    ORV_VERIFY_OK(content.assignFromJson(Documents::parse(value.toJson())));
    QCOMPARE(content.version(), currentVersionText());
}

void TestContent::theTextIsIndentedWithSortedKeys()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(Documents::parse(R"({"tabs":[],"metadata":"{\"b\":1,\"a\":2}"})")));
    const QByteArray text = content.toJson(PropertyConversionFlag::KeepPaths);
    QVERIFY(text.startsWith("{\n    \"extendedMetadata\""));
    QVERIFY(text.indexOf("\"extendedMetadata\"") < text.indexOf("\"metadata\""));
    QVERIFY(text.indexOf("\"metadata\"") < text.indexOf("\"tabs\""));
    const QByteArray metadata = "\"{\\\"a\\\":2,\\\"b\\\":1}\"";
    QVERIFY(text.contains(metadata));
}

void TestContent::savingWritesTheFileAndKeepsTheFileName()
{
    const QTemporaryDir folder;
    const QString original = writeFile(folder, Documents::toBytes(threeCells()));
    Content content;
    ORV_VERIFY_OK(content.assignFromFile(original));
    const QUrl baseUrl = content.baseUrl();
    const QString copy = folder.filePath(QStringLiteral("copy.wflw"));
    QVERIFY(content.save(copy));
    QCOMPARE(content.fileName(), original);
    QCOMPARE(content.baseUrl(), baseUrl);
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content.toJson(PropertyConversionFlag::KeepPaths));
}

void TestContent::aFailedSaveKeepsTheOldFile()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    const QString path = folder.filePath(QStringLiteral("none/document.wflw"));
    QVERIFY(!content.save(path));
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(
        QStringLiteral("Cannot save content to the file \"%1\" :").arg(path)));
}

void TestContent::metadataAloneCanBeLoaded()
{
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QSignalSpy reset(&content, &Content::reset);
    const QString path = writeFile(folder, Documents::toBytes(Documents::document(
                                               {}, {{QStringLiteral("name"), QStringLiteral("other")}})));
    content.assignMetaDataFromFile(path);
    QCOMPARE(content.name(), QStringLiteral("other"));
    QCOMPARE(content.count(), 2);
    QCOMPARE(reset.count(), 0);
    content.assignMetaDataFromJsonObject(threeCells());
    QCOMPARE(content.version(), QStringLiteral("5.20.0"));
}

void TestContent::metadataOfAnUnreadableFileAreEmpty()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    content.assignMetaDataFromFile(folder.filePath(QStringLiteral("none.wflw")));
    QVERIFY(content.metadata().isEmpty());
    QCOMPARE(content.count(), 2);
}

void TestContent::clearKeepsTheMetadataAndEmitsNothing()
{
    const QTemporaryDir folder;
    Content content;
    ORV_VERIFY_OK(content.assignFromFile(writeFile(folder, Documents::toBytes(threeCells()))));
    QSignalSpy removed(&content, qOverload<int>(&Content::groupRemoved));
    QSignalSpy count(&content, &Content::groupCountChanged);
    QSignalSpy reset(&content, &Content::reset);
    content.clear();
    QVERIFY(content.isEmpty());
    QVERIFY(content.baseUrl().isEmpty());
    QCOMPARE(content.version(), QStringLiteral("5.20.0"));
    QVERIFY(!content.fileName().isEmpty());
    QCOMPARE(removed.count() + count.count() + reset.count(), 0);
}

void TestContent::addGroupRefusesEmptyAndDuplicateNames()
{
    const LogCapture log;
    Content content;
    QVERIFY(!content.addGroup({}));
    QVERIFY(content.addGroup(QStringLiteral("A")));
    QVERIFY(!content.addGroup(QStringLiteral("A")));
    QCOMPARE(content.groupNames(), QStringList(QStringLiteral("A")));
    QCOMPARE(log.warnings(), QStringList({QStringLiteral("Cannot add a new group with an empty name"),
                                          QStringLiteral("Will not add a duplicate group \"A\"")}));
}

void TestContent::addGroupAnnouncesTheGroup()
{
    Content content;
    QStringList events;
    connect(&content, &Content::groupAdded, this, [&](ItemGroup *group) { events.append(group->name()); });
    connect(&content, &Content::groupCountChanged, this, [&](int n) { events.append(QString::number(n)); });
    QVERIFY(content.addGroup(u"A"_s));
    QCOMPARE(events, QStringList({u"A"_s, u"1"_s}));
}

void TestContent::removesByIndexWithFourSignals()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QStringList events;
    connect(&content, qOverload<int>(&Content::groupRemoved), this,
            [&](int index) { events.append(QString::number(index)); });
    connect(&content, qOverload<const QString &>(&Content::groupRemoved), this,
            [&](const QString &name) { events.append(name); });
    connect(&content, qOverload<ItemGroup *>(&Content::groupRemoved), this,
            [&](ItemGroup *group) { events.append(QStringLiteral("pointer ") + group->name()); });
    connect(&content, &Content::groupCountChanged, this,
            [&](int count) { events.append(QStringLiteral("count %1").arg(count)); });
    QVERIFY(content.removeGroup(0));
    QCOMPARE(events, QStringList({QStringLiteral("0"), QStringLiteral("First"),
                                  QStringLiteral("pointer First"), QStringLiteral("count 1")}));
    QCOMPARE(content.groupNames(), QStringList(QStringLiteral("Second")));
}

void TestContent::removesByNameAndPointer()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QVERIFY(content.removeGroup(QStringLiteral("Second")));
    QVERIFY(content.removeGroup(content.group(0)));
    QVERIFY(content.isEmpty());
}

void TestContent::refusesToRemoveWhatIsNotThere()
{
    const LogCapture log;
    Content content;
    ItemGroup stranger;
    QVERIFY(!content.removeGroup(0));
    QVERIFY(!content.removeGroup(-1));
    QVERIFY(!content.removeGroup(QStringLiteral("A")));
    QVERIFY(!content.removeGroup(&stranger));
    QCOMPARE(log.warnings(), QStringList({QStringLiteral("Group index is out of bounds"),
                                          QStringLiteral("Group index is out of bounds")}));
}

void TestContent::findsGroups()
{
    const LogCapture log;
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QCOMPARE(content.groups().size(), 2);
    QCOMPARE(content.group(QStringLiteral("Second")), content.group(1));
    QVERIFY(!content.group(QStringLiteral("second")));
    QVERIFY(content.contains(QStringLiteral("First")));
    QVERIFY(!content.group(7));
    QCOMPARE(log.warnings().size(), 1);
}

void TestContent::copiesShareTheTree()
{
    Content content;
    const Content copy(content);
    Content assigned;
    assigned = content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    QCOMPARE(copy.group(0), content.group(0));
    QCOMPARE(copy.version(), content.version());
    QVERIFY(assigned.removeGroup(0));
    QCOMPARE(content.count(), 1);
}

void TestContent::metadataAreReadAndWritten()
{
    Content content;
    content.setWorkflowName(QStringLiteral("n"));
    content.setWorkflowType(WorkflowType::PeptideMap);
    content.setTalvaneContentMode();
    QCOMPARE(content.name(), QStringLiteral("n"));
    QCOMPARE(content.workflowType(), WorkflowType::PeptideMap);
    QCOMPARE(content.contentMode(), PropertyEditorContent::ContentMode::TalvaneMode);
    content.setDesktopContentMode();
    QCOMPARE(content.contentMode(), PropertyEditorContent::ContentMode::DesktopMode);
    content.assignMetaDataFromJsonObject(
        Documents::document({}, {{QStringLiteral("icon"), QStringLiteral("i")},
                                 {QStringLiteral("description"), QStringLiteral("d")}}));
    QCOMPARE(content.iconName(), QStringLiteral("i"));
    QCOMPARE(content.description(), QStringLiteral("d"));
}

void TestContent::findsItemsInTreeOrder()
{
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    const QList<BaseItem *> samples = content.findAllItems(BaseItemType::Samples);
    QCOMPARE(samples.size(), 2);
    QCOMPARE(samples.first(), content.group(0)->subGroup(0)->item(0));
    QCOMPARE(samples.last(), content.group(1)->subGroup(1)->item(0));
    QCOMPARE(content.findAllItems({BaseItemType::Samples, BaseItemType::Karvon}).size(), 3);
    QVERIFY(content.findAllItems(BaseItemType::Masses).isEmpty());
    QCOMPARE(content.allItems(), QSet<BaseItemType>({BaseItemType::Samples, BaseItemType::Karvon}));
}

void TestContent::theBaseUrlReachesNewTabsOnlyWhenSet()
{
    Content content;
    const QUrl url(QStringLiteral("file:///data/"));
    ORV_VERIFY_OK(content.assignFromJson(threeCells()));
    content.setBaseUrl(url);
    QCOMPARE(content.baseUrl(), url);
}

void TestContent::scriptsCanDriveIt()
{
    const QTemporaryDir folder;
    Content content;
    bool answer = false;
    QVERIFY(QMetaObject::invokeMethod(&content, "addGroup", Q_RETURN_ARG(bool, answer),
                                      Q_ARG(QString, QStringLiteral("A"))));
    QVERIFY(answer);
    QVERIFY(QMetaObject::invokeMethod(&content, "contains", Q_RETURN_ARG(bool, answer),
                                      Q_ARG(QString, QStringLiteral("A"))));
    QVERIFY(answer);
    QVERIFY(QMetaObject::invokeMethod(&content, "save", Q_RETURN_ARG(bool, answer),
                                      Q_ARG(QString, folder.filePath(QStringLiteral("s.wflw")))));
    QVERIFY(answer);
    QCOMPARE(content.property("groupNames").toStringList(), QStringList(QStringLiteral("A")));
    QCOMPARE(content.property("size").toInt(), 1);
    QVERIFY(QMetaObject::invokeMethod(&content, "removeGroup", Q_RETURN_ARG(bool, answer), Q_ARG(int, 0)));
    QVERIFY(answer);
    QVERIFY(QMetaObject::invokeMethod(&content, "clear"));
}

void TestContent::logWritesAnInfoLine()
{
    const LogCapture log;
    Content().log(QStringLiteral("hello"));
    QCOMPARE(log.texts(QtInfoMsg), QStringList(QStringLiteral("hello")));
    QCOMPARE(log.lines().first().category, QStringLiteral("orv.property_editor"));
}

void TestContent::lossesAreReportedWithTheirPlace()
{
    QJsonObject json = threeCells();
    json.insert(QStringLiteral("a/b"), 1);
    QJsonArray tabs = json.value(QStringLiteral("tabs")).toArray();
    QJsonObject second = tabs.at(1).toObject();
    second.insert(QStringLiteral("zoom"), 2);
    tabs[1] = second;
    json.insert(QStringLiteral("tabs"), tabs);

    LossCollector lost;
    Content content;
    content.setLossObserver(&lost);
    ORV_VERIFY_OK(content.assignFromJson(json));
    QStringList paths;
    for (const Loss &loss : lost.losses()) {
        paths.append(loss.path);
        QVERIFY(!loss.what.isEmpty());
        QVERIFY(!loss.why.isEmpty());
    }
    QCOMPARE(paths, QStringList({QStringLiteral("/a~1b"), QStringLiteral("/tabs/1/zoom")}));
    content.setLossObserver(nullptr);
    ORV_VERIFY_OK(content.assignFromJson(json));
    QCOMPARE(lost.losses().size(), 2);
}

ORV_REGISTER_TEST(TestContent)

#include "TestContent.moc"
