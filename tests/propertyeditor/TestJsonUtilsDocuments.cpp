#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

#include <QFile>
#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditorJsonUtils;
using namespace Qt::StringLiterals;

/// Tables in their JSON form, and whole documents.
class TestJsonUtilsDocuments : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void tablesAreReadAndWritten();
    void anEmptyTableHasBothMembers();
    void whatIsNoTableReadsAsAnEmptyOne_data();
    void whatIsNoTableReadsAsAnEmptyOne();
    void aTableThatCannotBeWrittenIsEmpty();
    void filesAreLoaded();
    void aFileThatCannotBeOpenedIsAnError_data();
    void aFileThatCannotBeOpenedIsAnError();
    void theErrorOfAFileMayBeLeftOut();
    void documentsAreCompared_data();
    void documentsAreCompared();
};

namespace {

const char kTable[] =
    R"({"children": [{"children": [], "data": ["water", 18.0106]}], "data": ["Name", "Mass"]})";

RowNode table()
{
    RowNode node;
    node.addData(QStringList{u"Name"_s, u"Mass"_s});
    node.addNewChild({u"water"_s, 18.0106});
    return node;
}

QJsonObject stamped(const QString &user)
{
    QJsonObject cell = Documents::cell(u"Masses"_s, u"m"_s);
    cell.insert(u"metadata"_s, u"cell of "_s + user);
    QJsonObject document =
        Documents::document({Documents::tab(u"t"_s, {u"c"_s}, {cell})}, {{u"user"_s, user}});
    document.insert(u"extendedMetadata"_s, QJsonObject{{u"user"_s, user}});
    return document;
}

} // namespace

void TestJsonUtilsDocuments::tablesAreReadAndWritten()
{
    const QJsonObject object = Documents::parse(kTable);
    QVERIFY(objectToRowNode(object) == table());
    QVERIFY(propValueToRowNode({{u"name"_s, u"x"_s}, {u"value"_s, object}}) == table());
    QCOMPARE(rowNodeToObject(table()), object);
    QCOMPARE(Documents::parse(rowNodeToJson(table())), object);
}

void TestJsonUtilsDocuments::anEmptyTableHasBothMembers()
{
    const QJsonObject object{{u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}};
    QCOMPARE(rowNodeToObject(RowNode()), object);
    QCOMPARE(Documents::parse(rowNodeToJson(RowNode())), object);
    QVERIFY(objectToRowNode({}).isEmpty());
    QVERIFY(propValueToRowNode({}).isEmpty());
}

void TestJsonUtilsDocuments::whatIsNoTableReadsAsAnEmptyOne_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::newRow("data") << QJsonObject{{u"data"_s, u"text"_s}};
    QTest::newRow("rows") << QJsonObject{{u"data"_s, QJsonArray{u"a"_s}}, {u"children"_s, QJsonArray{5}}};
}

void TestJsonUtilsDocuments::whatIsNoTableReadsAsAnEmptyOne()
{
    QFETCH(const QJsonObject, object);
    const LogCapture log;
    QVERIFY(objectToRowNode(object).isEmpty());
    QVERIFY(propValueToRowNode({{u"value"_s, object}}).isEmpty());
    QVERIFY(log.warnings().isEmpty());
    const QStringList lines = log.texts(QtDebugMsg);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).startsWith(u"Can't parse json "_s) && lines.at(0).contains(u"data"_s),
             qPrintable(lines.at(0)));
    QCOMPARE(lines.at(1), lines.at(0));
}

void TestJsonUtilsDocuments::aTableThatCannotBeWrittenIsEmpty()
{
    RowNode node;
    node.data.append(QVariant::fromValue(static_cast<QObject *>(this)));
    const LogCapture log;
    QCOMPARE(rowNodeToJson(node), QByteArray());
    QCOMPARE(rowNodeToObject(node), QJsonObject());
    const QStringList lines(2, u"Can't serialize rownode "_s);
    QCOMPARE(log.texts(QtDebugMsg), lines);
}

void TestJsonUtilsDocuments::filesAreLoaded()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.wflw"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not even JSON");
    file.close();
    Error error(ErrorCode::InvalidContent);
    QCOMPARE(loadWflw(file.fileName(), &error), QByteArray("not even JSON"));
    ORV_VERIFY_OK(error);
}

void TestJsonUtilsDocuments::aFileThatCannotBeOpenedIsAnError_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"missing.wflw"_s << u"No such file or directory"_s;
    QTest::newRow("a folder") << u"."_s << u"It is a folder; name a file."_s;
}

void TestJsonUtilsDocuments::aFileThatCannotBeOpenedIsAnError()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    const LogCapture log;
    Error error;
    QCOMPARE(loadWflw(path, &error), QByteArray());
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QVERIFY(error.errorMessage().contains(path));
    QCOMPARE(error.details(), QStringList{reason});
    QCOMPARE(log.warnings(), QStringList{u"Cannot open provided wflw file: \"%1\""_s.arg(reason)});
}

void TestJsonUtilsDocuments::theErrorOfAFileMayBeLeftOut()
{
    const QTemporaryDir folder;
    const LogCapture log;
    QCOMPARE(loadWflw(folder.filePath(u"missing.wflw"_s), nullptr), QByteArray());
    QCOMPARE(log.warnings().size(), 1);
}

void TestJsonUtilsDocuments::documentsAreCompared_data()
{
    QTest::addColumn<QJsonObject>("a");
    QTest::addColumn<QJsonObject>("b");
    QTest::addColumn<bool>("strictlyEqual");
    QTest::addColumn<bool>("equal");

    const QJsonObject document = stamped(u"anna"_s);
    QTest::newRow("one document") << document << document << true << true;
    QTest::newRow("saves by two users") << document << stamped(u"ben"_s) << false << true;
    QTest::newRow("no documents") << QJsonObject() << QJsonObject() << true << true;

    QJsonObject renamed = document;
    QJsonArray tabs = document.value(u"tabs"_s).toArray();
    QJsonObject tab = tabs.at(0).toObject();
    tab.insert(u"name"_s, u"other"_s);
    tabs[0] = tab;
    renamed.insert(u"tabs"_s, tabs);
    QTest::newRow("another tab") << document << renamed << false << false;

    tab = document.value(u"tabs"_s).toArray().at(0).toObject();
    QJsonObject cell = tab.value(u"cells"_s).toArray().at(0).toObject();
    cell.insert(u"name"_s, u"other"_s);
    tab.insert(u"cells"_s, QJsonArray{cell});
    tabs[0] = tab;
    renamed.insert(u"tabs"_s, tabs);
    QTest::newRow("another cell") << document << renamed << false << false;

    tab.insert(u"cells"_s, QJsonArray{5});
    tabs[0] = tab;
    renamed.insert(u"tabs"_s, tabs);
    QTest::newRow("a cell that is no object") << document << renamed << false << false;
    QTest::newRow("no tabs") << document << QJsonObject() << false << false;

    QJsonObject more = document;
    more.insert(u"extra"_s, 1);
    QTest::newRow("a further member") << document << more << false << false;
}

void TestJsonUtilsDocuments::documentsAreCompared()
{
    QFETCH(const QJsonObject, a);
    QFETCH(const QJsonObject, b);
    QFETCH(const bool, strictlyEqual);
    QFETCH(const bool, equal);
    QCOMPARE(compareWorkflows(a, b, true), strictlyEqual);
    QCOMPARE(compareWorkflows(b, a, true), strictlyEqual);
    QCOMPARE(compareWorkflows(a, b, false), equal);
    QCOMPARE(compareWorkflows(b, a, false), equal);
}

ORV_REGISTER_TEST(TestJsonUtilsDocuments)
#include "TestJsonUtilsDocuments.moc"
