#include "OrvTest.h"
#include "TableCells.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/OligoMassesTableItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using TableCells::cell;
using TableCells::entry;
using TableCells::node;

/// Masses of oligonucleotides with their tolerances and impurities.
class TestOligoMassesTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewOneHasDefaults();
    void tolerancesAndImpuritiesAreAlwaysWritten();
    void everythingIsReadAndWritten();
    void absentEntriesLeaveTheValues();
    void aBadPayloadFailsTheLoad_data();
    void aBadPayloadFailsTheLoad();
    void clearingGivesTheDefaults();
    void aPayloadThatIsNoObjectIsReported();
    void aNewCellOfTheGridIsRead();
};

namespace {

constexpr auto kKeepOligoMasses = PropertyConversionFlag::KeepPaths;

QJsonObject oligoMasses()
{
    return entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s}, {{u"PO for PS"_s, -15.977}}));
}

MassTolerances someTolerances()
{
    MassTolerances tolerances;
    tolerances.fullLengthProduct.value = 4.5;
    return tolerances;
}

OligoImpurities someImpurities()
{
    OligoImpurities impurities;
    impurities.baseLosses = 2;
    return impurities;
}

QJsonArray full()
{
    return {oligoMasses(), entry(u"MatchTolerance"_s, node({u"Value"_s, u"Unit"_s}, {{30.5, u"ppm"_s}})),
            entry(u"Tolerances"_s, someTolerances().toJson()),
            entry(u"OligoImpurities"_s, someImpurities().toJson())};
}

} // namespace

void TestOligoMassesTableItem::aNewOneHasDefaults()
{
    const OligoMassesTableItem item;
    QCOMPARE(item.type(), BaseItemType::OligoMasses);
    QVERIFY(item.tolerances() == MassTolerances());
    QVERIFY(item.impurities() == OligoImpurities());
}

void TestOligoMassesTableItem::tolerancesAndImpuritiesAreAlwaysWritten()
{
    OligoMassesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(cell(u"OligoMasses"_s, {oligoMasses()}), {}));
    QCOMPARE(item.toJson(kKeepOligoMasses),
             cell(u"OligoMasses"_s, {oligoMasses(), entry(u"Tolerances"_s, MassTolerances().toJson()),
                                     entry(u"OligoImpurities"_s, OligoImpurities().toJson())}));
}

void TestOligoMassesTableItem::everythingIsReadAndWritten()
{
    LossCollector losses;
    OligoMassesTableItem item;
    ORV_VERIFY_OK(item.load(cell(u"OligoMasses"_s, full()), {}, LoadContext(&losses, u"/c"_s)));
    QCOMPARE(item.type(), BaseItemType::OligoMasses);
    QVERIFY(item.hasMatchTolerance());
    QVERIFY(item.tolerances() == someTolerances());
    QVERIFY(item.impurities() == someImpurities());
    QCOMPARE(item.toJson(kKeepOligoMasses), cell(u"OligoMasses"_s, full()));
    QCOMPARE(losses.losses(), QList<Loss>());
}

void TestOligoMassesTableItem::absentEntriesLeaveTheValues()
{
    OligoMassesTableItem item;
    item.setTolerances(someTolerances());
    item.setImpurities(someImpurities());
    ORV_VERIFY_OK(item.assignFromJson(cell(u"OligoMasses"_s, {oligoMasses()}), {}));
    QVERIFY(item.tolerances() == someTolerances());
    QVERIFY(item.impurities() == someImpurities());
}

void TestOligoMassesTableItem::aBadPayloadFailsTheLoad_data()
{
    QTest::addColumn<QJsonObject>("bad");
    QTest::addColumn<QString>("message");
    const QJsonObject tolerances{{u"fullLengthProduct"_s, 5}};
    const QJsonObject impurities{{u"baseLosses"_s, u"many"_s}};
    const QString tolerancesMessage = MassTolerances::fromJson(tolerances).error().errorMessage();
    const QString impuritiesMessage = OligoImpurities::fromJson(impurities).error().errorMessage();
    QTest::newRow("tolerances") << entry(u"Tolerances"_s, tolerances) << tolerancesMessage;
    QTest::newRow("impurities") << entry(u"OligoImpurities"_s, impurities) << impuritiesMessage;
}

void TestOligoMassesTableItem::aBadPayloadFailsTheLoad()
{
    QFETCH(const QJsonObject, bad);
    QFETCH(const QString, message);
    OligoMassesTableItem item;
    const Error error = item.assignFromJson(cell(u"OligoMasses"_s, {oligoMasses(), bad}), {});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), message);
    QVERIFY(!message.isEmpty());
}

void TestOligoMassesTableItem::clearingGivesTheDefaults()
{
    OligoMassesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(cell(u"OligoMasses"_s, full()), {}));
    item.clear();
    QCOMPARE(item.rowCount(), 0);
    QVERIFY(!item.hasMatchTolerance());
    QVERIFY(item.tolerances() == MassTolerances());
    QVERIFY(item.impurities() == OligoImpurities());
}

void TestOligoMassesTableItem::aPayloadThatIsNoObjectIsReported()
{
    LossCollector losses;
    OligoMassesTableItem item;
    ORV_VERIFY_OK(item.load(cell(u"OligoMasses"_s, {oligoMasses(), entry(u"Tolerances"_s, u"text"_s)}), {},
                            LoadContext(&losses, u"/c"_s)));
    QCOMPARE(losses.losses().size(), 1);
    QCOMPARE(losses.losses().first().path, u"/c/properties/1/value"_s);
}

void TestOligoMassesTableItem::aNewCellOfTheGridIsRead()
{
    OligoMassesTableItem item;
    ORV_VERIFY_OK(
        item.assignFromJson(PropertyEditorJsonUtils::defaultJsonContents(BaseItemType::OligoMasses), {}));
    QCOMPARE(item.rowCount(), 5);
    QVERIFY(item.hasMatchTolerance());
    QVERIFY(item.tolerances() == MassTolerances());
}

ORV_REGISTER_TEST(TestOligoMassesTableItem)
#include "TestOligoMassesTableItem.moc"
