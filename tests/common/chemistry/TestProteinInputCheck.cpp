#include "OrvTest.h"

#include <orv/chemistry/ProteinUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;
using InputOptions = ProteinGenerator::InputOptions;

class TestProteinInputCheck : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void goodInputPasses();
    void faultsAreTold_data();
    void faultsAreTold();
    void warningsAlonePass_data();
    void warningsAlonePass();
    void listsMayBeNullAndAreAppendedTo();
};

namespace {

Chain numberedChain(int number, const QString &name, const QString &sequence)
{
    Chain chain;
    chain.number = number;
    chain.id = u"id %1"_s.arg(number);
    chain.name = name;
    chain.sequence = sequence;
    return chain;
}

/// Two chains with a bond, for all samples; a combination, for two of three.
InputOptions goodInput()
{
    InputOptions options;
    options.chains = {numberedChain(1, u"HC"_s, u"EVQLC\ncPEP"_s), numberedChain(2, u"LC"_s, u"DIQCC"_s)};
    options.proteins.resize(2);
    options.proteins[0].name = u"mAb"_s;
    options.proteins[0].chainNumbers = {1, 2};
    options.proteins[0].disulfides = 1;
    options.proteins[1].name = u"Auto(HC:0-2,LC:0-2)"_s;
    options.proteins[1].samplesIds = {3, 5};
    return options;
}

const QList<int> kProteinSamples{3, 4, 5};

using Spoil = void (*)(InputOptions *);

} // namespace

Q_DECLARE_METATYPE(Spoil)

void TestProteinInputCheck::goodInputPasses()
{
    QStringList errors;
    QStringList warnings;
    QVERIFY(ProteinUtils::validate(goodInput(), kProteinSamples, &errors, &warnings));
    QCOMPARE(errors + warnings, QStringList());
    QVERIFY(ProteinUtils::validate(InputOptions(), {}, nullptr, nullptr));
}

void TestProteinInputCheck::faultsAreTold_data()
{
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, Spoil spoil, const char *error) {
        QTest::newRow(name) << spoil << QString::fromLatin1(error);
    };
    row(
        "building block",
        [](InputOptions *o) {
            o->buildingBlocks = {{u"X"_s, {}, u"Base"_s, u"?"_s, {}}};
        },
        "\"X\"");
    row(
        "no sequence", [](InputOptions *o) { o->chains[0].sequence = u" \n"_s; }, "\"HC\" has no sequence");
    row(
        "no mass", [](InputOptions *o) { o->chains[1].sequence = u"DIQCCX"_s; }, "\"LC\" has no mass");
    row(
        "no chains",
        [](InputOptions *o) {
            o->proteins.append(ProteinComplex());
            o->proteins[2].name = u"p"_s;
        },
        "\"p\" has no chains");
    row(
        "chain of a combination", [](InputOptions *o) { o->proteins[1].name = u"Auto(XC)"_s; }, "\"XC\"");
    row(
        "too many bonds", [](InputOptions *o) { o->proteins[0].disulfides = 3; }, "3 disulfide bonds but 4");
    row(
        "samples that are gone",
        [](InputOptions *o) {
            o->proteins[1].samplesIds = {7, 8};
        },
        "samples 7, 8,");
}

void TestProteinInputCheck::faultsAreTold()
{
    QFETCH(Spoil, spoil);
    QFETCH(QString, error);
    InputOptions options = goodInput();
    spoil(&options);
    QStringList errors;
    QVERIFY(!ProteinUtils::validate(options, kProteinSamples, &errors, nullptr));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.constFirst().contains(error), qPrintable(errors.constFirst()));
}

void TestProteinInputCheck::warningsAlonePass_data()
{
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, Spoil spoil, const char *warning) {
        QTest::newRow(name) << spoil << QString::fromLatin1(warning);
    };
    row(
        "id twice", [](InputOptions *o) { o->chains[1].id = o->chains[0].id; }, "id \"id 1\"");
    row(
        "name twice",
        [](InputOptions *o) {
            o->chains[1].name = u"HC"_s;
            o->proteins[1].name = u"Auto(HC)"_s;
        },
        "name \"HC\"");
    row(
        "protein without name", [](InputOptions *o) { o->proteins[0].name.clear(); }, "no name");
    row(
        "unused chain", [](InputOptions *o) { o->chains.append(numberedChain(3, u"XC"_s, u"K"_s)); },
        "\"XC\"");
    row(
        "a sample is gone",
        [](InputOptions *o) {
            o->proteins[1].samplesIds = {3, 7};
        },
        "samples 7,");
}

void TestProteinInputCheck::warningsAlonePass()
{
    QFETCH(Spoil, spoil);
    QFETCH(QString, warning);
    InputOptions options = goodInput();
    spoil(&options);
    QStringList errors;
    QStringList warnings;
    QVERIFY(ProteinUtils::validate(options, kProteinSamples, &errors, &warnings));
    QCOMPARE(errors, QStringList());
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.constFirst().contains(warning), qPrintable(warnings.constFirst()));
}

void TestProteinInputCheck::listsMayBeNullAndAreAppendedTo()
{
    InputOptions options = goodInput();
    options.chains[0].sequence.clear();
    QVERIFY(!ProteinUtils::validate(options, kProteinSamples, nullptr, nullptr));
    QStringList errors{u"earlier"_s};
    QVERIFY(!ProteinUtils::validate(options, kProteinSamples, &errors, nullptr));
    QCOMPARE(errors.constFirst(), u"earlier"_s);
    QVERIFY(errors.size() > 1);
}

ORV_REGISTER_TEST(TestProteinInputCheck)
#include "TestProteinInputCheck.moc"
