#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/FileUtilsGeneric.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestFileUtilsGeneric : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anObjectIsRead();
    void othersAreRefusedAndChangeNothing_data();
    void othersAreRefusedAndChangeNothing();
    void theAnswerAloneIsEnough();
};

namespace {

QString makeFile(const QTemporaryDir &dir, const QByteArray &json)
{
    QFile file(dir.filePath(u"file.json"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size())
        qFatal("Cannot write the test's file");
    return file.fileName();
}

} // namespace

void TestFileUtilsGeneric::anObjectIsRead()
{
    const QTemporaryDir dir;
    QJsonObject object{{u"old"_s, true}};
    QStringList errors{u"earlier"_s};
    QVERIFY(FileUtilsGeneric::readJsonObjectFromFile(makeFile(dir, R"({"a":[1]})"), &object, &errors));
    QCOMPARE(object, QJsonObject({{u"a"_s, QJsonArray{1}}}));
    QCOMPARE(errors, QStringList(u"earlier"_s));
}

void TestFileUtilsGeneric::othersAreRefusedAndChangeNothing_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("lastError");

    QTest::newRow("empty") << ""_ba << u"The text is empty."_s;
    QTest::newRow("array") << "[]"_ba << u"The JSON document is not an object."_s;
    QTest::newRow("broken") << "{\"a\":"_ba
                            << u"Mend the text at that place, or restore the file from a copy."_s;
    QTest::newRow("twice") << R"({"a":1,"a":1})"_ba
                           << u"Only one of the two values could be kept; remove the wrong one."_s;
}

void TestFileUtilsGeneric::othersAreRefusedAndChangeNothing()
{
    const LogCapture log;
    const QTemporaryDir dir;
    QFETCH(QByteArray, json);
    const QJsonObject before{{u"old"_s, true}};
    QJsonObject object = before;
    QStringList errors{u"earlier"_s};
    QVERIFY(!FileUtilsGeneric::readJsonObjectFromFile(makeFile(dir, json), &object, &errors));
    QCOMPARE(object, before);
    QCOMPARE(errors.first(), u"earlier"_s);
    QTEST(errors.last(), "lastError");
}

void TestFileUtilsGeneric::theAnswerAloneIsEnough()
{
    const LogCapture log;
    const QTemporaryDir dir;
    QVERIFY(!FileUtilsGeneric::readJsonObjectFromFile(dir.filePath(u"missing"_s), nullptr, nullptr));
    QVERIFY(FileUtilsGeneric::readJsonObjectFromFile(makeFile(dir, "{}"), nullptr, nullptr));
}

ORV_REGISTER_TEST(TestFileUtilsGeneric)

#include "TestFileUtilsGeneric.moc"
