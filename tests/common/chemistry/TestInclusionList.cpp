#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/chemistry/InclusionList.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestInclusionList : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesBecomeObjects_data();
    void linesBecomeObjects();
    void linesAreWrittenInShort_data();
    void linesAreWrittenInShort();
    void nothingIsEmptyInAllForms();
    void linesThatCannotBeReadAreKept_data();
    void linesThatCannotBeReadAreKept();
    void inventedListsSurviveAllForms();
    void unknownMembersSurviveTheList();
    void badElementsAreRefusedWithTheirPlace_data();
    void badElementsAreRefusedWithTheirPlace();
    void aTextInPlaceOfTheListIsRead();
    void elementsThatCannotBeWrittenAreLogged();
    void aListThatIsTooLongIsRefused();
};

namespace {

QJsonObject object(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

void TestInclusionList::linesBecomeObjects_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("m/z alone") << u"740.4014"_s << QByteArray(R"({"inclusion":[{"mz":740.4014}]})");
    QTest::newRow("all fields")
        << u"524.265,2,10.5,12,LVNELTEFAK"_s
        << QByteArray(
               R"({"inclusion":[{"charge":2,"end":12,"mz":524.265,"name":"LVNELTEFAK","start":10.5}]})");
    QTest::newRow("two lines, CRLF, blank lines")
        << u"\r\n500\r\n\r\n600,3\r\n"_s << QByteArray(R"({"inclusion":[{"mz":500},{"charge":3,"mz":600}]})");
    QTest::newRow("CR alone") << u"500\r600,3\r"_s
                              << QByteArray(R"({"inclusion":[{"mz":500},{"charge":3,"mz":600}]})");
    QTest::newRow("blanks") << u" 500 , 2 , 1 , 2 ,a b"_s
                            << QByteArray(
                                   R"({"inclusion":[{"charge":2,"end":2,"mz":500,"name":"a b","start":1}]})");
    QTest::newRow("quotes") << u"500,,,,\"a, \"\"b\"\"\""_s
                            << QByteArray(R"({"inclusion":[{"mz":500,"name":"a, \"b\""}]})");
    QTest::newRow("negative charge") << u"500,-2"_s
                                     << QByteArray(R"({"inclusion":[{"charge":-2,"mz":500}]})");
}

void TestInclusionList::linesBecomeObjects()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, json);
    QCOMPARE(QJsonDocument(InclusionList::toJson(text)).toJson(QJsonDocument::Compact), json);
    ORV_VERIFY_OK(InclusionList::toVector(object(json)));
    QCOMPARE(InclusionList::toJson(InclusionList::toString(object(json))), object(json));
}

void TestInclusionList::linesAreWrittenInShort_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    QTest::newRow("m/z alone") << QByteArray(R"({"inclusion":[{"mz":500}]})") << u"500"_s;
    QTest::newRow("end alone") << QByteArray(R"({"inclusion":[{"mz":500.25,"end":9}]})") << u"500.25,,,9"_s;
    QTest::newRow("name with a comma")
        << QByteArray(R"({"inclusion":[{"mz":500,"name":"a,b"}]})") << u"500,,,,\"a,b\""_s;
    QTest::newRow("name with a line feed")
        << QByteArray(R"({"inclusion":[{"mz":500,"name":"a\nb"}]})") << u"500,,,,a b"_s;
    QTest::newRow("two") << QByteArray(R"({"inclusion":[{"mz":500},{"mz":600,"charge":1}]})")
                         << u"500\n600,1"_s;
}

void TestInclusionList::linesAreWrittenInShort()
{
    QFETCH(QByteArray, json);
    QTEST(InclusionList::toString(object(json)), "text");
}

void TestInclusionList::nothingIsEmptyInAllForms()
{
    QCOMPARE(InclusionList::toJson(QString()), QJsonObject());
    QCOMPARE(InclusionList::toJson(u" \n\r\n"_s), QJsonObject());
    QCOMPARE(InclusionList::toJson(QList<InclusionItem>()), QJsonObject());
    QCOMPARE(InclusionList::toString({}), QString());
    const Result<QList<InclusionItem>> items = InclusionList::toVector({});
    ORV_VERIFY_OK(items);
    QVERIFY(items->isEmpty());
}

void TestInclusionList::linesThatCannotBeReadAreKept_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("words") << u"mass,charge"_s;
    QTest::newRow("m/z 0") << u"0,2"_s;
    QTest::newRow("no number") << u"nan,2"_s;
    QTest::newRow("half a charge") << u"500,1.5"_s;
    QTest::newRow("charge too high") << u"500,1001"_s;
    QTest::newRow("times out of order") << u"500,2,12,10"_s;
    QTest::newRow("negative time") << u"500,2,-1"_s;
    QTest::newRow("time in words") << u"500,2,early"_s;
    QTest::newRow("too many fields") << u"500,2,1,2,a,b"_s;
    QTest::newRow("open quote") << u"500,2,1,2,\"a"_s;
}

void TestInclusionList::linesThatCannotBeReadAreKept()
{
    QFETCH(QString, line);
    const QString text = u"400\n"_s + line + u"\n600,2"_s;
    const QJsonObject json = InclusionList::toJson(text);
    QCOMPARE(InclusionList::toString(json), text);
    const Result<QList<InclusionItem>> items = InclusionList::toVector(json);
    QVERIFY(items.hasError());
    QCOMPARE(items.error().code(), ErrorCode::InvalidContent);
    const QString details = items.error().details().join(u' ');
    QVERIFY2(details.contains(u"entry 2"_s) && details.contains(line), qPrintable(details));
}

void TestInclusionList::inventedListsSurviveAllForms()
{
    constexpr unsigned kSeed = 20240311;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> number(0.001, 5000.0);
    for (int round = 0; round < 200; ++round) {
        QList<InclusionItem> items;
        for (int i = int(random() % 6); i > 0; --i) {
            InclusionItem item;
            item.mz = number(random);
            item.charge = int(random() % 11) - 3;
            if (random() % 2)
                item.startMinutes = number(random);
            if (random() % 2)
                item.endMinutes = item.startMinutes.value_or(0.0) + number(random);
            if (random() % 2)
                item.name = QStringList{u"PEPTIDE"_s, u"a,b"_s, u"\"q\""_s, u" blank "_s, u"µ\\:="_s}.at(
                    int(random() % 5));
            items.append(item);
        }
        const QByteArray where = u"seed %1, round %2"_s.arg(kSeed).arg(round).toUtf8();
        const QJsonObject json = object(QJsonDocument(InclusionList::toJson(items)).toJson());
        const Result<QList<InclusionItem>> back = InclusionList::toVector(json);
        ORV_VERIFY_OK(back);
        QVERIFY2(*back == items, where.constData());
        const Result<QList<InclusionItem>> fromText =
            InclusionList::toVector(InclusionList::toJson(InclusionList::toString(json)));
        ORV_VERIFY_OK(fromText);
        QVERIFY2(*fromText == items, where.constData());
    }
}

void TestInclusionList::unknownMembersSurviveTheList()
{
    const QJsonObject json = object(R"({"inclusion":[{"intensity":1e6,"mz":500}]})");
    const Result<QList<InclusionItem>> items = InclusionList::toVector(json);
    ORV_VERIFY_OK(items);
    QCOMPARE(InclusionList::toJson(*items), json);
}

void TestInclusionList::badElementsAreRefusedWithTheirPlace_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::newRow("no object") << QByteArray("5");
    QTest::newRow("no m/z") << QByteArray(R"({"charge":2})");
    QTest::newRow("m/z as text") << QByteArray(R"({"mz":"500"})");
    QTest::newRow("negative m/z") << QByteArray(R"({"mz":-500})");
    QTest::newRow("half a charge") << QByteArray(R"({"mz":500,"charge":1.5})");
    QTest::newRow("times out of order") << QByteArray(R"({"mz":500,"start":5,"end":4})");
    QTest::newRow("name as number") << QByteArray(R"({"mz":500,"name":5})");
}

void TestInclusionList::badElementsAreRefusedWithTheirPlace()
{
    QFETCH(QByteArray, element);
    const Result<QList<InclusionItem>> items =
        InclusionList::toVector(object(R"({"inclusion":[{"mz":500},)" + element + "]}"));
    QVERIFY(items.hasError());
    QCOMPARE(items.error().code(), ErrorCode::InvalidContent);
    QVERIFY(items.error().details().join(u' ').contains(u"entry 2"_s));
    QVERIFY(InclusionList::toVector(object(R"({"inclusion":{}})")).hasError());
}

void TestInclusionList::aTextInPlaceOfTheListIsRead()
{
    const QJsonObject json = object(R"({"inclusion":"500,2\n600"})");
    const Result<QList<InclusionItem>> items = InclusionList::toVector(json);
    QVERIFY(!items.hasError());
    QCOMPARE(items->size(), 2);
    QCOMPARE(items->at(0).charge, 2);
    QCOMPARE(items->at(1).mz, 600.0);
    QCOMPARE(InclusionList::toString(json), u"500,2\n600"_s);
    QVERIFY(InclusionList::toVector(object(R"({"inclusion":""})")).valueOr({InclusionItem()}).isEmpty());
    QVERIFY(InclusionList::toVector(object(R"({"inclusion":"no number"})")).hasError());
}

void TestInclusionList::elementsThatCannotBeWrittenAreLogged()
{
    const LogCapture log;
    QCOMPARE(InclusionList::toString(object(R"({"inclusion":[{"mz":500},{"mz":-1},{"mz":600}]})")),
             u"500\n600"_s);
    QCOMPARE(log.warnings().size(), 1);
}

void TestInclusionList::aListThatIsTooLongIsRefused()
{
    const QList<InclusionItem> items(InclusionList::kMaximumItems + 1,
                                     InclusionItem{500.0, 2, {}, {}, {}, {}});
    QVERIFY(InclusionList::toVector(InclusionList::toJson(items)).hasError());
}

ORV_REGISTER_TEST(TestInclusionList)
#include "TestInclusionList.moc"
