#include "OrvTest.h"

#include <orv/table/rn.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace orv;
using namespace Qt::StringLiterals;

/// How nodes and rows nest in JSON, and what shapes are read.
class TestRowNodeShape : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyNodeHasBothMembers();
    void rowsStandBelowTheirNode();
    void membersMayBeAbsent_data();
    void membersMayBeAbsent();
    void oldTablesAreRead();
    void widthsMayDiffer();
    void columnNamesMayRepeat();
    void aMemberOfAnotherPurposeIsPassedOver();
    void aRowTakesATableInItsPlace();
    void nothingIsWrittenForNoNode();
};

void TestRowNodeShape::anEmptyNodeHasBothMembers()
{
    const RowNode node;
    bool ok = false;
    QCOMPARE(rn::serialize(&node, &ok), QByteArray(R"({"data":[],"children":[]})"));
    QVERIFY(ok);
    ok = false;
    QCOMPARE(rn::toObject(&node, &ok),
             QJsonObject({{u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}}));
    QVERIFY(ok);
}

void TestRowNodeShape::rowsStandBelowTheirNode()
{
    RowNode node;
    node.addData(QStringList{u"Name"_s, u"Mass"_s});
    node.addNewChild({u"salt"_s, 57.9586})->addNewChild({u"sodium"_s});
    node.addNewChildMatchRootDataSize();
    QCOMPARE(rn::serialize(&node),
             QByteArray(R"({"data":["Name","Mass"],"children":[{"data":["salt",57.9586],"children":[)"
                        R"({"data":["sodium"],"children":[]}]},{"data":[null,null],"children":[]}]})"));
    RowNode readBack;
    QVERIFY(rn::parse(rn::serialize(&node), &readBack));
    QVERIFY(readBack == node);
    QCOMPARE(readBack.getChild(0)->getChild(0)->root(), &readBack);
}

void TestRowNodeShape::membersMayBeAbsent_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("rows");
    QTest::newRow("both") << QByteArray("{}") << 0 << 0;
    QTest::newRow("children") << QByteArray(R"({"data":["a"]})") << 1 << 0;
    QTest::newRow("data") << QByteArray(R"({"children":[{}]})") << 0 << 1;
    QTest::newRow("none, in the other order")
        << QByteArray(R"( { "children" : [ ] , "data" : [ "a" ] } )") << 1 << 0;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF{\"data\":[1,2]}") << 2 << 0;
    QTest::newRow("escaped key") << QByteArray(R"({"d\u0061ta":[1]})") << 1 << 0;
}

void TestRowNodeShape::membersMayBeAbsent()
{
    QFETCH(QByteArray, json);
    RowNode node;
    QVERIFY(rn::parse(json, &node));
    QTEST(int(node.data.size()), "width");
    QTEST(node.getChildListSize(), "rows");
    RowNode fromObject;
    QVERIFY(rn::fromObject(QJsonDocument::fromJson(json).object(), &fromObject));
    QVERIFY(fromObject == node);
}

void TestRowNodeShape::oldTablesAreRead()
{
    RowNode node;
    QVERIFY(rn::parse(
        R"({"data":["SampleName","Amount"],"children":[{"data":["Lot 1",2]},{"data":["Lot 2",0.5]}]})",
        &node));
    QCOMPARE(node.getRootDataAsStringList(), QStringList({u"SampleName"_s, u"Amount"_s}));
    QCOMPARE(node.getChild(1)->getDataAt(u"SampleName"_s), QVariant(u"Lot 2"_s));
    QCOMPARE(node.getChild(0)->getDataAt(u"Amount"_s), QVariant(2));
    QVERIFY(rn::parse(R"({"data":[{"name":"Lot","type":"text"}]})", &node));
    QCOMPARE(node.getDataAt(0).toMap().value(u"name"_s), QVariant(u"Lot"_s));
}

void TestRowNodeShape::widthsMayDiffer()
{
    RowNode node;
    QVERIFY(rn::parse(R"({"data":["a","b"],"children":[{"data":[]},{"data":[1]},{"data":[1,2,3]}]})", &node));
    QCOMPARE(node.getChild(0)->data.size(), 0);
    QCOMPARE(node.getChild(1)->data.size(), 1);
    QCOMPARE(node.getChild(2)->data, VariantItems({1, 2, 3}));
    QByteArray wide = "{\"data\":[0";
    for (int i = 1; i < 100000; ++i)
        wide += ',' + QByteArray::number(i);
    QVERIFY(rn::parse(wide + "],\"children\":[{\"data\":[1]}]}", &node));
    QCOMPARE(node.data.size(), 100000);
    QCOMPARE(node.data.at(99999), QVariant(99999));
}

void TestRowNodeShape::columnNamesMayRepeat()
{
    RowNode node;
    QVERIFY(rn::parse(R"({"data":["a","a"],"children":[{"data":[1,2]}]})", &node));
    QCOMPARE(node.getRootDataAsStringList(), QStringList({u"a"_s, u"a"_s}));
    QCOMPARE(node.getChildFirst()->getDataAt(u"a"_s), QVariant(1));
}

void TestRowNodeShape::aMemberOfAnotherPurposeIsPassedOver()
{
    const QByteArray json = R"({"notes":[{"$unknown":[1,{"a":{}}]},"]}",[[]],-1.5e3,null],"data":["a"],)"
                            R"("more":{},"children":[{"color":"red","data":[1]}],"last":true})";
    RowNode expected({u"a"_s});
    expected.addNewChild({1});
    RowNode node;
    QVERIFY(rn::parse(json, &node));
    QVERIFY(node == expected);
    QVERIFY(rn::fromObject(QJsonDocument::fromJson(json).object(), &node));
    QVERIFY(node == expected);
}

void TestRowNodeShape::aRowTakesATableInItsPlace()
{
    RowNode node({u"a"_s});
    RowNode *row = node.addNewChild({1});
    QVERIFY(rn::parse(R"({"data":["b"],"children":[{"data":[2]}]})", row));
    QCOMPARE(row->parent(), &node);
    QCOMPARE(row->getChildFirst()->root(), &node);
    QCOMPARE(row->data, VariantItems({u"b"_s}));
}

void TestRowNodeShape::nothingIsWrittenForNoNode()
{
    bool ok = true;
    QCOMPARE(rn::serialize(nullptr, &ok), QByteArray());
    QVERIFY(!ok);
    ok = true;
    QCOMPARE(rn::toObject(nullptr, &ok), QJsonObject());
    QVERIFY(!ok);
    QVERIFY(rn::serialize(nullptr).isEmpty());
}

ORV_REGISTER_TEST(TestRowNodeShape)

#include "TestRowNodeShape.moc"
