#include "OrvTest.h"
#include "ParsedTable.h"

#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/table/rn.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestIntactOptions : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theDefaultOptionsAreGood();
    void inventedOptionsReadBackEqual();
    void emptyCellsHaveTheDefaults();
    void badCellsAreRefusedWithTheirPlace_data();
    void badCellsAreRefusedWithTheirPlace();
    void badOptionsAreTold_data();
    void badOptionsAreTold();
    void oneChargeIsARange();
    void aNameThatStandsTwiceIsAWarning();
};

namespace {

IntactOptions good()
{
    IntactOptions options;
    options.name = u"Native"_s;
    options.adduct = u"H"_s;
    return options;
}

} // namespace

void TestIntactOptions::theDefaultOptionsAreGood()
{
    const Result<QList<IntactOptions>> options =
        IntactOptionsUtils::optionsFromRowNode(IntactOptionsUtils::defaultRowNode());
    ORV_VERIFY_OK(options);
    QStringList errors;
    QStringList warnings;
    QVERIFY(IntactOptionsUtils::validate(*options, &errors, &warnings));
    QCOMPARE(errors + warnings, QStringList());
    QVERIFY(IntactOptionsUtils::validate({}, nullptr, nullptr));
}

void TestIntactOptions::inventedOptionsReadBackEqual()
{
    constexpr unsigned kSeed = 20240309;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> number(-10.0, 1e6);
    for (int round = 0; round < 100; ++round) {
        QList<IntactOptions> list;
        for (int i = int(random() % 4); i > 0; --i) {
            list.append({QString::number(random(), 36),
                         number(random),
                         number(random),
                         number(random),
                         number(random),
                         int(random() % 200) - 100,
                         int(random() % 200),
                         u"Na"_s,
                         {{u"Sigma"_s, number(random)}}});
        }
        const RowNode table = IntactOptionsUtils::optionsToRowNode(list);
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        const Result<QList<IntactOptions>> back = IntactOptionsUtils::optionsFromRowNode(read);
        ORV_VERIFY_OK(back);
        QVERIFY2(*back == list, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestIntactOptions::emptyCellsHaveTheDefaults()
{
    const Result<QList<IntactOptions>> options = IntactOptionsUtils::optionsFromRowNode(
        tableOf(R"({"data":["Name","MaximumMz","MaximumCharge"],"children":[{"data":["a",null,""]}]})"));
    ORV_VERIFY_OK(options);
    IntactOptions expected;
    expected.name = u"a"_s;
    QCOMPARE(*options, QList<IntactOptions>{expected});
}

void TestIntactOptions::badCellsAreRefusedWithTheirPlace_data()
{
    QTest::addColumn<QByteArray>("column");
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("text for a number") << QByteArray("MinimumMz") << QByteArray(R"("low")");
    QTest::newRow("infinite") << QByteArray("MaximumMass") << QByteArray(R"({"$double":"inf"})");
    QTest::newRow("half a charge") << QByteArray("MinimumCharge") << QByteArray("1.5");
}

void TestIntactOptions::badCellsAreRefusedWithTheirPlace()
{
    QFETCH(QByteArray, column);
    QFETCH(QByteArray, cell);
    const Result<QList<IntactOptions>> options = IntactOptionsUtils::optionsFromRowNode(
        tableOf(R"({"data":[")" + column + R"("],"children":[{"data":[)" + cell + "]}]}"));
    QVERIFY(options.hasError());
    QCOMPARE(options.error().code(), ErrorCode::InvalidContent);
    const QString details = options.error().details().join(u' ');
    QVERIFY(details.contains(u"Row 1"_s) && details.contains(QString::fromLatin1(column)));
}

void TestIntactOptions::badOptionsAreTold_data()
{
    QTest::addColumn<double>("minimumMz");
    QTest::addColumn<double>("minimumMass");
    QTest::addColumn<int>("minimumCharge");
    QTest::addColumn<QString>("adduct");
    QTest::addColumn<QString>("error");
    QTest::newRow("m/z") << 9000.0 << 500.0 << 5 << u"H"_s << u"m/z (9000 to 9000)"_s;
    QTest::newRow("m/z 0") << 0.0 << 500.0 << 5 << u"H"_s << u"m/z (0 to 9000)"_s;
    QTest::newRow("mass") << 600.0 << 200001.0 << 5 << u"H"_s << u"mass (200001 to 200000)"_s;
    QTest::newRow("charge") << 600.0 << 500.0 << 101 << u"H"_s << u"charge (101 to 100)"_s;
    QTest::newRow("charge 0") << 600.0 << 500.0 << 0 << u"H"_s << u"charge (0 to 100)"_s;
    QTest::newRow("adduct") << 600.0 << 500.0 << 5 << u"proton"_s << u"\"proton\""_s;
    QTest::newRow("no adduct") << 600.0 << 500.0 << 5 << QString() << u"\"\""_s;
}

void TestIntactOptions::badOptionsAreTold()
{
    IntactOptions options = good();
    QFETCH(double, minimumMz);
    QFETCH(double, minimumMass);
    QFETCH(int, minimumCharge);
    QFETCH(QString, adduct);
    QFETCH(QString, error);
    options.minimumMz = minimumMz;
    options.minimumMassDa = minimumMass;
    options.minimumCharge = minimumCharge;
    options.adduct = adduct;
    QStringList errors;
    QVERIFY(!IntactOptionsUtils::validate({options}, &errors, nullptr));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.constFirst().contains(error), qPrintable(errors.constFirst()));
    QVERIFY(errors.constFirst().contains(u"\"Native\" (row 1)"_s));
}

void TestIntactOptions::oneChargeIsARange()
{
    IntactOptions options = good();
    options.minimumCharge = options.maximumCharge;
    QVERIFY(IntactOptionsUtils::validate({options}, nullptr, nullptr));
}

void TestIntactOptions::aNameThatStandsTwiceIsAWarning()
{
    QStringList warnings;
    QVERIFY(IntactOptionsUtils::validate({good(), good()}, nullptr, &warnings));
    QCOMPARE(warnings.size(), 1);
}

ORV_REGISTER_TEST(TestIntactOptions)
#include "TestIntactOptions.moc"
