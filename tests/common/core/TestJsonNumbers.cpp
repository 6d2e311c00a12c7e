#include "OrvTest.h"

#include <orv/core/JsonNumbers.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestJsonNumbers : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void numbersThatChangeAreTold();
    void numbersThatStayPass_data();
    void numbersThatStayPass();
};

void TestJsonNumbers::numbersThatChangeAreTold()
{
    const QByteArray json = R"({"a/b":[1,{"x":12345678901234567890}],"s":"12345678901234567890",)"
                            R"("n":-0.1000000000000000055})";
    const QList<Loss> losses = lossesOfNumbers(json);
    QCOMPARE(losses.size(), 2);
    QCOMPARE(losses.at(0).path, u"/a~1b/1/x"_s);
    QCOMPARE(losses.at(0).stored, QJsonValue(u"12345678901234567890"_s));
    QCOMPARE(losses.at(0).read.toString().toDouble(), 12345678901234567890.0);
    QVERIFY(losses.at(0).isChange());
    QCOMPARE(losses.at(1).path, u"/n"_s);
    QCOMPARE(losses.at(1).read, QJsonValue(u"-0.1"_s));
}

void TestJsonNumbers::numbersThatStayPass_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::newRow("largest integer") << "9223372036854775807"_ba;
    QTest::newRow("smallest integer") << "-9223372036854775808"_ba;
    QTest::newRow("17 digits of a double") << "0.10000000000000001"_ba;
    QTest::newRow("zeros at the end") << "1.000000000000000000000000"_ba;
    QTest::newRow("zeros at the beginning") << "0.00000000000000000000000012"_ba;
    QTest::newRow("power of ten") << "100000000000000000000000"_ba;
    QTest::newRow("zero") << "-0.00000000000000000000000"_ba;
    QTest::newRow("exponent") << "12000000000000000000000e-5"_ba;
}

void TestJsonNumbers::numbersThatStayPass()
{
    QFETCH(QByteArray, number);
    const QList<Loss> losses = lossesOfNumbers("{\"a\":[" + number + "]}");
    QCOMPARE(losses.size(), 0);
}

ORV_REGISTER_TEST(TestJsonNumbers)

#include "TestJsonNumbers.moc"
