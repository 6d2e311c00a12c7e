#include "OrvTest.h"
#include "ParsedTable.h"

#include <orv/chemistry/DisulfideUtils.h>
#include <orv/table/rn.h>

#include <random>

using namespace orv;
using namespace orv::Disulfide;
using namespace Qt::StringLiterals;

class TestDisulfides : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void inventedBondsReadBackEqual();
    void emptyRowsArePassedOver();
    void badPositionsAreRefused_data();
    void badPositionsAreRefused();
    void theBondsOfInsulinAreGood();
    void impossibleBondsAreTold_data();
    void impossibleBondsAreTold();
    void theListOfWarningsMayBeNull();
};

namespace {

const QHash<QString, QString> kInsulin{{u"A"_s, u"GIVEQCCTSICSLYQLENYCN"_s},
                                       {u"B"_s, u"FVNQHLCGSHLVEALYLVCGERGFFYTPKT"_s}};

} // namespace

void TestDisulfides::inventedBondsReadBackEqual()
{
    constexpr unsigned kSeed = 20240308;
    std::mt19937 random(kSeed);
    for (int round = 0; round < 100; ++round) {
        QList<Bond> bonds;
        for (int i = int(random() % 5); i > 0; --i) {
            bonds.append({QString::number(random() % 9), int(random() % 500) + 1, u"B"_s,
                          int(random() % 500) + 1,
                          random() % 2 ? QMap<QString, QVariant>{{u"Source"_s, u"UniProt"_s}}
                                       : QMap<QString, QVariant>()});
        }
        const RowNode table = DisulfideUtils::bondsToRowNode(bonds);
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        const Result<QList<Bond>> back = DisulfideUtils::bondsFromRowNode(read);
        ORV_VERIFY_OK(back);
        QVERIFY2(*back == bonds, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestDisulfides::emptyRowsArePassedOver()
{
    const Result<QList<Bond>> bonds = DisulfideUtils::bondsFromRowNode(
        tableOf(R"({"data":["FirstChain","FirstPosition","SecondChain","SecondPosition"],"children":[)"
                R"({"data":[null,""," ",null]},{"data":["A",6,"A",11]}]})"));
    ORV_VERIFY_OK(bonds);
    QCOMPARE(*bonds, (QList<Bond>{{u"A"_s, 6, u"A"_s, 11, {}}}));
}

void TestDisulfides::badPositionsAreRefused_data()
{
    QTest::addColumn<QByteArray>("position");
    QTest::newRow("none") << QByteArray("null");
    QTest::newRow("0") << QByteArray("0");
    QTest::newRow("half") << QByteArray("1.5");
    QTest::newRow("with its letter") << QByteArray(R"("C22")");
}

void TestDisulfides::badPositionsAreRefused()
{
    QFETCH(QByteArray, position);
    for (const QByteArray &row : {"\"A\"," + position + ",\"B\",7", "\"A\",7,\"B\"," + position}) {
        const Result<QList<Bond>> bonds = DisulfideUtils::bondsFromRowNode(tableOf(
            R"({"data":["FirstChain","FirstPosition","SecondChain","SecondPosition"],"children":[{"data":[)" +
            row + "]}]}"));
        QVERIFY(bonds.hasError());
        QCOMPARE(bonds.error().code(), ErrorCode::InvalidContent);
        QVERIFY(bonds.error().details().join(u' ').contains(u"Row 1"_s));
    }
}

void TestDisulfides::theBondsOfInsulinAreGood()
{
    QStringList warnings;
    // UniProt P01308.
    const QList<Bond> bonds{
        {u"A"_s, 6, u"A"_s, 11, {}}, {u"A"_s, 7, u"B"_s, 7, {}}, {u"A"_s, 20, u"B"_s, 19, {}}};
    QVERIFY(DisulfideUtils::validate(bonds, kInsulin, &warnings));
    QCOMPARE(warnings, QStringList());
}

void TestDisulfides::impossibleBondsAreTold_data()
{
    QTest::addColumn<QString>("chain");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("warning");
    QTest::newRow("unknown chain") << u"C"_s << 7 << u"no chain \"C\""_s;
    QTest::newRow("behind the end") << u"A"_s << 22 << u"no residue 22"_s;
    QTest::newRow("no cysteine") << u"A"_s << 1 << u"is G"_s;
    QTest::newRow("in another bond") << u"A"_s << 6 << u"two bonds"_s;
    QTest::newRow("with itself") << u"B"_s << 7 << u"two bonds"_s;
}

void TestDisulfides::impossibleBondsAreTold()
{
    QFETCH(QString, chain);
    QFETCH(int, position);
    QFETCH(QString, warning);
    QStringList warnings;
    const QList<Bond> bonds{{u"A"_s, 6, u"A"_s, 11, {}}, {u"B"_s, 7, chain, position, {}}};
    QVERIFY(!DisulfideUtils::validate(bonds, kInsulin, &warnings));
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.constFirst().startsWith(u"Disulfide bond 2"_s), qPrintable(warnings.constFirst()));
    QVERIFY2(warnings.constFirst().contains(warning), qPrintable(warnings.constFirst()));
}

void TestDisulfides::theListOfWarningsMayBeNull()
{
    QVERIFY(!DisulfideUtils::validate({{u"A"_s, 1, u"A"_s, 2, {}}}, kInsulin, nullptr));
}

ORV_REGISTER_TEST(TestDisulfides)
#include "TestDisulfides.moc"
