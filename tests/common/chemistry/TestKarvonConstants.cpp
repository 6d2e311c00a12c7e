#include "OrvTest.h"

#include <orv/chemistry/KarvonConstants.h>

#include <QSet>

using namespace orv;
using namespace Qt::StringLiterals;

class TestKarvonConstants : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void machineTypesAreMappedBothWays_data();
    void machineTypesAreMappedBothWays();
    void textsDiffer();
    void caseDoesNotCount();
    void unknownOnesAreToldApart();
    void theInclusionListHasItsKey();
};

void TestKarvonConstants::machineTypesAreMappedBothWays_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    const QStringList texts = {u"peptide:CID"_s,   u"peptide:ETD"_s, u"peptide:HCD"_s,  u"peptide:EThcD"_s,
                               u"peptide:ETciD"_s, u"DNA:HCD"_s,     u"peptide:UVPD"_s, u"RNA:HCD"_s};
    for (int i = 0; i < texts.size(); ++i)
        QTest::newRow(qPrintable(texts.at(i))) << i << texts.at(i);
}

void TestKarvonConstants::machineTypesAreMappedBothWays()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QCOMPARE(KarvonConstants::mapMachineTypeComboboxValueToKarvonPresetValue(number), text);
    QCOMPARE(KarvonConstants::machineTypeForKarvonPresetValue(text), number);
}

void TestKarvonConstants::textsDiffer()
{
    QSet<QString> texts;
    for (int i = 0; i < 8; ++i)
        texts.insert(KarvonConstants::mapMachineTypeComboboxValueToKarvonPresetValue(i).toLower());
    QCOMPARE(texts.size(), 8);
}

void TestKarvonConstants::caseDoesNotCount()
{
    QCOMPARE(KarvonConstants::machineTypeForKarvonPresetValue(u"rna:hcd"_s), 7);
}

void TestKarvonConstants::unknownOnesAreToldApart()
{
    QTest::ignoreMessage(QtWarningMsg, "There is no machine type 8");
    QCOMPARE(KarvonConstants::mapMachineTypeComboboxValueToKarvonPresetValue(8), QString());
    QTest::ignoreMessage(QtWarningMsg, "There is no machine type -1");
    QCOMPARE(KarvonConstants::mapMachineTypeComboboxValueToKarvonPresetValue(-1), QString());
    QTest::ignoreMessage(QtWarningMsg, "The search engine has no machine type \"HCD\"");
    QCOMPARE(KarvonConstants::machineTypeForKarvonPresetValue(u"HCD"_s), -1);
}

void TestKarvonConstants::theInclusionListHasItsKey()
{
    QCOMPARE(QString(kinclusion_filter), u"kinclusion_filter"_s);
}

ORV_REGISTER_TEST(TestKarvonConstants)

#include "TestKarvonConstants.moc"
