#include "OrvTest.h"

#include <orv/chemistry/MassTolerances.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestMassTolerances : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyObjectReadsAsDefaults();
    void defaultsAreWrittenInFull();
    void inventedTolerancesReadBackEqual();
    void unknownMembersSurvive();
    void badMembersAreRefused_data();
    void badMembersAreRefused();
    void partsPerMillionGrowWithTheMass();
};

void TestMassTolerances::anEmptyObjectReadsAsDefaults()
{
    const Result<MassTolerances> read = MassTolerances::fromJson({});
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, MassTolerances());
}

void TestMassTolerances::defaultsAreWrittenInFull()
{
    QCOMPARE(QJsonDocument(MassTolerances().toJson()).toJson(QJsonDocument::Compact),
             R"({"fullLengthProduct":{"unit":"ppm","value":10},"impurities":{"unit":"ppm","value":20}})");
}

void TestMassTolerances::inventedTolerancesReadBackEqual()
{
    constexpr unsigned kSeed = 20240131;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> value(0.0, 1e6);
    for (int i = 0; i < 200; ++i) {
        MassTolerances tolerances;
        tolerances.fullLengthProduct = {value(random), random() % 2 ? u"ppm"_s : u"Dalton"_s, {}};
        tolerances.impurities = {value(random), random() % 2 ? u"ppm"_s : u"Dalton"_s, {}};
        tolerances.impurities.unknownMembers.insert(QString::number(random()), int(random() % 100));
        const QByteArray text = QJsonDocument(tolerances.toJson()).toJson();
        const Result<MassTolerances> read = MassTolerances::fromJson(QJsonDocument::fromJson(text).object());
        ORV_VERIFY_OK(read);
        QVERIFY2(*read == tolerances, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(i)));
    }
}

void TestMassTolerances::unknownMembersSurvive()
{
    const QByteArray text = R"({"fullLengthProduct":{"charge":3,"unit":"Dalton","value":0.5},)"
                            R"("impurities":{"unit":"ppm","value":20},"mode":{"deep":[1]}})";
    const Result<MassTolerances> read = MassTolerances::fromJson(QJsonDocument::fromJson(text).object());
    ORV_VERIFY_OK(read);
    QCOMPARE(read->fullLengthProduct.value, 0.5);
    QCOMPARE(QJsonDocument(read->toJson()).toJson(QJsonDocument::Compact), text);
}

void TestMassTolerances::badMembersAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no object") << QByteArray(R"({"impurities":5})");
    QTest::newRow("text as number") << QByteArray(R"({"impurities":{"value":"5"}})");
    QTest::newRow("negative") << QByteArray(R"({"fullLengthProduct":{"value":-0.1}})");
    QTest::newRow("unknown unit") << QByteArray(R"({"fullLengthProduct":{"unit":"percent"}})");
    QTest::newRow("number as unit") << QByteArray(R"({"fullLengthProduct":{"unit":1}})");
}

void TestMassTolerances::badMembersAreRefused()
{
    QFETCH(QByteArray, text);
    const Result<MassTolerances> read = MassTolerances::fromJson(QJsonDocument::fromJson(text).object());
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    QVERIFY(!read.error().details().isEmpty());
}

void TestMassTolerances::partsPerMillionGrowWithTheMass()
{
    QCOMPARE((MassTolerance{20.0, u"ppm"_s, {}}.inDaltonAt(50000.0)), 1.0);
    QCOMPARE((MassTolerance{20.0, u"Dalton"_s, {}}.inDaltonAt(50000.0)), 20.0);
}

ORV_REGISTER_TEST(TestMassTolerances)
#include "TestMassTolerances.moc"
