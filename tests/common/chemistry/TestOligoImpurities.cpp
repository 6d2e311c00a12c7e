#include "OrvTest.h"

#include <orv/chemistry/OligoImpurities.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestOligoImpurities : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyObjectReadsAsDefaults();
    void defaultsAreWrittenInFull();
    void inventedOnesReadBackEqual();
    void unknownMembersSurvive();
    void badMembersAreRefused_data();
    void badMembersAreRefused();
};

void TestOligoImpurities::anEmptyObjectReadsAsDefaults()
{
    const Result<OligoImpurities> read = OligoImpurities::fromJson({});
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, OligoImpurities());
}

void TestOligoImpurities::defaultsAreWrittenInFull()
{
    QCOMPARE(QJsonDocument(OligoImpurities().toJson()).toJson(QJsonDocument::Compact),
             R"({"additions":1,"baseLosses":1,"fivePrimeTruncations":3,"sulfurLoss":true,)"
             R"("threePrimeTruncations":3})");
}

void TestOligoImpurities::inventedOnesReadBackEqual()
{
    constexpr unsigned kSeed = 20240201;
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<int> count(0, OligoImpurities::kMaximumCount);
    for (int i = 0; i < 200; ++i) {
        const OligoImpurities impurities{
            count(random), count(random),     count(random),
            count(random), random() % 2 == 0, {{QString::number(random()), QJsonArray{int(random() % 9)}}}};
        const QByteArray text = QJsonDocument(impurities.toJson()).toJson();
        const Result<OligoImpurities> read =
            OligoImpurities::fromJson(QJsonDocument::fromJson(text).object());
        ORV_VERIFY_OK(read);
        QVERIFY2(*read == impurities, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(i)));
    }
}

void TestOligoImpurities::unknownMembersSurvive()
{
    const QByteArray text = R"({"additions":0,"baseLosses":0,"custom":[{"name":"cyanoethyl"}],)"
                            R"("fivePrimeTruncations":0,"sulfurLoss":false,"threePrimeTruncations":0})";
    const Result<OligoImpurities> read = OligoImpurities::fromJson(QJsonDocument::fromJson(text).object());
    ORV_VERIFY_OK(read);
    QCOMPARE(QJsonDocument(read->toJson()).toJson(QJsonDocument::Compact), text);
}

void TestOligoImpurities::badMembersAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("negative") << QByteArray(R"({"additions":-1})");
    QTest::newRow("too many") << QByteArray(R"({"baseLosses":1001})");
    QTest::newRow("beyond any int") << QByteArray(R"({"baseLosses":1e300})");
    QTest::newRow("fraction") << QByteArray(R"({"fivePrimeTruncations":1.5})");
    QTest::newRow("text") << QByteArray(R"({"threePrimeTruncations":"3"})");
    QTest::newRow("number for a switch") << QByteArray(R"({"sulfurLoss":1})");
}

void TestOligoImpurities::badMembersAreRefused()
{
    QFETCH(QByteArray, text);
    const Result<OligoImpurities> read = OligoImpurities::fromJson(QJsonDocument::fromJson(text).object());
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    QVERIFY(!read.error().details().isEmpty());
}

ORV_REGISTER_TEST(TestOligoImpurities)
#include "TestOligoImpurities.moc"
