#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/MassesTableItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using TableCells::cell;
using TableCells::entry;
using TableCells::node;

/// Opens the protected step of a load.
class OpenMassesTableItem : public MassesTableItem
{
public:
    using MassesTableItem::initializeDefaultMatchTolerance;
};

/// Tables of masses and their match tolerance.
class TestMassesTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewOneHasNoTolerance();
    void aCellWithoutToleranceHasTheDefaults();
    void aToleranceIsReadAndWritten();
    void anIncompleteToleranceBecomesTheDefault_data();
    void anIncompleteToleranceBecomesTheDefault();
    void aSecondLoadForgetsTheTolerance();
    void aFailedLoadPassesTheErrorOn();
    void aFailedSecondLoadInventsNoTolerance();
    void aToleranceThatIsSetIsWritten();
    void aUnitThatIsSetIsWritten();
    void otherUnitsAreRefused_data();
    void otherUnitsAreRefused();
    void withoutAToleranceNothingCanBeSet();
    void clearingGivesTheDefaults();
    void scriptsSeeTheTolerance();
    void nothingCanNotBeCompleted();
    void whatAToleranceLacksIsCompleted_data();
    void whatAToleranceLacksIsCompleted();
    void massesAreGivenAndTaken();
    void theNumberOfAnEditorsRowIsNotSaved();
    void otherColumnsSurvive();
    void massesAreCheckedInTheirSamples();
    void theListsOfTheCheckMayBeLeftOut();
};

namespace {

constexpr auto kKeep = PropertyConversionFlag::KeepPaths;

QJsonObject masses()
{
    return entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s}, {{u"G0F"_s, 148055.9}}));
}

QJsonObject tolerance(const QJsonValue &value, const QJsonValue &unit)
{
    return entry(u"MatchTolerance"_s, node({u"Value"_s, u"Unit"_s}, {{value, unit}}));
}

std::unique_ptr<MassesTableItem> loaded(const QJsonArray &entries)
{
    auto item = std::make_unique<MassesTableItem>();
    if (item->assignFromJson(cell(u"Masses"_s, entries), {}).hasError())
        qFatal("The cell of this test has to load.");
    return item;
}

} // namespace

void TestMassesTableItem::aNewOneHasNoTolerance()
{
    const MassesTableItem item;
    QCOMPARE(item.type(), BaseItemType::Masses);
    QVERIFY(!item.hasMatchTolerance());
    QCOMPARE(item.massTolerance(), 0.0);
    QCOMPARE(item.massToleranceUnit(), QString());
    QCOMPARE(item.possibleMassToleranceUnits(), (QStringList{u"Dalton"_s, u"ppm"_s}));
    QCOMPARE(item.toJson(kKeep), cell(u"Masses"_s, {entry(u"MassTable"_s, node({}))}));
}

void TestMassesTableItem::aCellWithoutToleranceHasTheDefaults()
{
    const LogCapture log;
    const auto item = loaded({masses()});
    QVERIFY(!item->hasMatchTolerance());
    QCOMPARE(item->massToleranceUnit(), u"Dalton"_s);
    QCOMPARE(item->massTolerance(), 0.0);
    QCOMPARE(item->toJson(kKeep), cell(u"Masses"_s, {masses()}));
    QCOMPARE(log.texts(QtDebugMsg),
             (QStringList{u"Initializing default columns for match tolerance"_s,
                          u"Initializing a default child for a match tolerance object"_s,
                          u"Initializing a default value for \"Unit\""_s,
                          u"Initializing a default value for \"Value\""_s}));
}

void TestMassesTableItem::aToleranceIsReadAndWritten()
{
    const auto item = loaded({masses(), tolerance(30.5, u"ppm"_s)});
    QVERIFY(item->hasMatchTolerance());
    QCOMPARE(item->massTolerance(), 30.5);
    QCOMPARE(item->massToleranceUnit(), u"ppm"_s);
    QCOMPARE(item->toJson(kKeep), cell(u"Masses"_s, {masses(), tolerance(30.5, u"ppm"_s)}));
}

void TestMassesTableItem::anIncompleteToleranceBecomesTheDefault_data()
{
    QTest::addColumn<QJsonObject>("value");
    QTest::newRow("an empty table") << node({});
    QTest::newRow("no row") << node({u"Value"_s, u"Unit"_s});
    QTest::newRow("no unit") << node({u"Value"_s, u"Unit"_s}, {{5.0, QJsonValue()}});
    QTest::newRow("no unit in a short row") << node({u"Value"_s, u"Unit"_s}, {{5.0}});
    QTest::newRow("no column for the unit") << node({u"Value"_s}, {{5.0}});
    QTest::newRow("no value") << node({u"Value"_s, u"Unit"_s}, {{QJsonValue(), u"ppm"_s}});
}

void TestMassesTableItem::anIncompleteToleranceBecomesTheDefault()
{
    QFETCH(const QJsonObject, value);
    LossCollector losses;
    MassesTableItem item;
    ORV_VERIFY_OK(item.load(cell(u"Masses"_s, {masses(), entry(u"MatchTolerance"_s, value)}), {},
                            LoadContext(&losses, u"/c"_s)));
    QVERIFY(!item.hasMatchTolerance());
    QCOMPARE(item.toJson(kKeep), cell(u"Masses"_s, {masses()}));
    QCOMPARE(losses.losses().size(), 1);
    QCOMPARE(losses.losses().first().path, u"/c/properties/1"_s);
}

void TestMassesTableItem::aSecondLoadForgetsTheTolerance()
{
    const auto item = loaded({masses(), tolerance(30.5, u"ppm"_s)});
    ORV_VERIFY_OK(item->assignFromJson(cell(u"Masses"_s, {masses()}), {}));
    QVERIFY(!item->hasMatchTolerance());
    QCOMPARE(item->massTolerance(), 0.0);
}

void TestMassesTableItem::aFailedLoadPassesTheErrorOn()
{
    MassesTableItem item;
    const Error error = item.assignFromJson(cell(u"Masses"_s, {tolerance(30.5, u"ppm"_s)}), {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), u"Could not parse JSON. Subobject \"MassTable\" is empty."_s);
}

void TestMassesTableItem::aFailedSecondLoadInventsNoTolerance()
{
    MassesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(
        cell(u"Masses"_s, {entry(u"MassTable"_s, node({})),
                           entry(u"MatchTolerance"_s, node({u"Value"_s, u"Unit"_s}, {{5.0, u"ppm"_s}}))}),
        {}));
    const LogCapture log;
    QVERIFY(item.assignFromJson(cell(u"Masses"_s, {}), {}).hasError());
    QVERIFY(!item.hasMatchTolerance());
    const QJsonArray entries = item.toJson(PropertyConversionFlag::KeepPaths)["properties"_L1].toArray();
    QCOMPARE(entries.size(), 1);
}

void TestMassesTableItem::aToleranceThatIsSetIsWritten()
{
    const auto item = loaded({masses()});
    QVERIFY(item->setMassTolerance(5.0));
    QVERIFY(item->hasMatchTolerance());
    QCOMPARE(item->massTolerance(), 5.0);
    QCOMPARE(item->toJson(kKeep).value(u"properties"_s).toArray().size(), 2);
    const auto again = loaded(item->toJson(kKeep).value(u"properties"_s).toArray());
    QVERIFY(again->hasMatchTolerance());
    QCOMPARE(again->massTolerance(), 5.0);
    QCOMPARE(again->massToleranceUnit(), u"Dalton"_s);
}

void TestMassesTableItem::aUnitThatIsSetIsWritten()
{
    const auto item = loaded({masses()});
    QVERIFY(item->setMassToleranceUnit(u"ppm"_s));
    QVERIFY(item->hasMatchTolerance());
    QCOMPARE(item->massToleranceUnit(), u"ppm"_s);
    QCOMPARE(item->toJson(kKeep).value(u"properties"_s).toArray().size(), 2);
}

void TestMassesTableItem::otherUnitsAreRefused_data()
{
    QTest::addColumn<QString>("unit");
    QTest::newRow("another case") << u"PPM"_s;
    QTest::newRow("another name") << u"Da"_s;
    QTest::newRow("empty") << QString();
}

void TestMassesTableItem::otherUnitsAreRefused()
{
    QFETCH(const QString, unit);
    const auto item = loaded({masses()});
    const LogCapture log;
    QVERIFY(!item->setMassToleranceUnit(unit));
    QCOMPARE(log.warnings(), QStringList{u"Invalid mass tolerance unit: \"%1\""_s.arg(unit)});
    QVERIFY(!item->hasMatchTolerance());
    QCOMPARE(item->massToleranceUnit(), u"Dalton"_s);
}

void TestMassesTableItem::withoutAToleranceNothingCanBeSet()
{
    MassesTableItem item;
    const LogCapture log;
    QVERIFY(!item.setMassTolerance(5.0));
    QVERIFY(!item.setMassToleranceUnit(u"ppm"_s));
    QVERIFY(!item.setMassToleranceUnit(u"odd"_s));
    QCOMPARE(log.warnings(), QStringList(3, u"Cannot update an empty match tolerance object"_s));
    QVERIFY(!item.hasMatchTolerance());
}

void TestMassesTableItem::clearingGivesTheDefaults()
{
    const auto item = loaded({masses(), tolerance(30.5, u"ppm"_s)});
    item->clear();
    QCOMPARE(item->rowCount(), 0);
    QVERIFY(!item->hasMatchTolerance());
    QCOMPARE(item->massTolerance(), 0.0);
    QCOMPARE(item->massToleranceUnit(), u"Dalton"_s);
    QVERIFY(item->setMassTolerance(5.0));
}

void TestMassesTableItem::scriptsSeeTheTolerance()
{
    const auto item = loaded({masses(), tolerance(30.5, u"ppm"_s)});
    QCOMPARE(item->property("possibleMassToleranceUnits").toStringList(), item->possibleMassToleranceUnits());
    QCOMPARE(item->property("massToleranceUnit").toString(), u"ppm"_s);
    QCOMPARE(item->property("massTolerance").toDouble(), 30.5);
    QCOMPARE(item->property("hasMatchTolerance").toBool(), true);
}

void TestMassesTableItem::nothingCanNotBeCompleted()
{
    bool defaulted = true;
    const Error error = OpenMassesTableItem::initializeDefaultMatchTolerance(nullptr, &defaulted);
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), u"Cannot initialize a null match tolerance object."_s);
}

void TestMassesTableItem::whatAToleranceLacksIsCompleted_data()
{
    QTest::addColumn<QJsonObject>("before");
    QTest::addColumn<QJsonObject>("after");
    QTest::addColumn<bool>("defaulted");
    const QJsonArray columns{u"Value"_s, u"Unit"_s};
    const QJsonObject zero{{u"$double"_s, 0}};
    QTest::newRow("everything") << node({}) << node(columns, {{zero, u"Dalton"_s}}) << true;
    QTest::newRow("a row") << node(columns) << node(columns, {{zero, u"Dalton"_s}}) << true;
    QTest::newRow("a unit") << node(columns, {{5.0}}) << node(columns, {{5.0, u"Dalton"_s}}) << true;
    QTest::newRow("a value") << node(columns, {{QJsonValue(), u"ppm"_s}}) << node(columns, {{zero, u"ppm"_s}})
                             << true;
    QTest::newRow("nothing") << node(columns, {{5.0, u"ppm"_s}}) << node(columns, {{5.0, u"ppm"_s}}) << false;
}

void TestMassesTableItem::whatAToleranceLacksIsCompleted()
{
    QFETCH(const QJsonObject, before);
    QFETCH(const QJsonObject, after);
    QFETCH(const bool, defaulted);
    RowNode table = PropertyEditorJsonUtils::objectToRowNode(before);
    bool told = !defaulted;
    ORV_VERIFY_OK(OpenMassesTableItem::initializeDefaultMatchTolerance(&table, &told));
    QCOMPARE(told, defaulted);
    QCOMPARE(PropertyEditorJsonUtils::rowNodeToObject(table), after);
    ORV_VERIFY_OK(OpenMassesTableItem::initializeDefaultMatchTolerance(&table, nullptr));
}

void TestMassesTableItem::massesAreGivenAndTaken()
{
    const auto item = loaded({masses()});
    QCOMPARE(item->deltaMasses().size(), 1);
    QCOMPARE(item->deltaMasses().first().name, u"G0F"_s);
    QCOMPARE(item->deltaMasses().first().massDa.value_or(0.0), 148055.9);

    DeltaMass mass;
    mass.name = u"G1F"_s;
    mass.massDa = 148218.0;
    mass.protein = u"mAb"_s;
    mass.samplesIds = {1, 3};
    item->setDeltaMasses({mass, DeltaMass()});
    QCOMPARE(item->rowCount(), 2);
    QCOMPARE(item->deltaMasses(), (QList<DeltaMass>{mass, DeltaMass()}));
    const auto again = loaded(item->toJson(kKeep).value(u"properties"_s).toArray());
    QCOMPARE(again->deltaMasses(), item->deltaMasses());
}

void TestMassesTableItem::theNumberOfAnEditorsRowIsNotSaved()
{
    MassesTableItem item;
    DeltaMass mass;
    mass.id = 7;
    mass.name = u"G1F"_s;
    item.setDeltaMasses({mass});
    QVERIFY(!item.columnNames().contains(u"Id"_s));
    QCOMPARE(item.deltaMasses().first().id, 0);
}

void TestMassesTableItem::otherColumnsSurvive()
{
    const auto item = loaded(
        {entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s, u"Colour"_s}, {{u"G0F"_s, 1.5, u"red"_s}}))});
    item->setDeltaMasses(item->deltaMasses());
    QVERIFY(item->columnNames().contains(u"Colour"_s));
    QCOMPARE(item->value(0, item->columnIndex(u"Colour"_s)), QVariant(u"red"_s));
}

void TestMassesTableItem::massesAreCheckedInTheirSamples()
{
    const auto item = loaded(
        {entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s}, {{u"G0F"_s, 1.5}, {u"bad"_s, u"heavy"_s}}))});
    SamplesInput::Entry sample;
    sample.id = 1;
    QStringList errors{u"before"_s};
    QStringList warnings;
    QVERIFY(!item->isValid({sample}, &errors, &warnings));
    QCOMPARE(errors.size(), 2);
    QCOMPARE(errors.first(), u"before"_s);

    QVERIFY(item->removeRow(1));
    errors.clear();
    QVERIFY(item->isValid({sample}, &errors, &warnings));
    QCOMPARE(errors, QStringList());
}

void TestMassesTableItem::theListsOfTheCheckMayBeLeftOut()
{
    const auto item = loaded({entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s}, {{u"a"_s, u"heavy"_s}}))});
    QVERIFY(!item->isValid({}, nullptr, nullptr));
}

ORV_REGISTER_TEST(TestMassesTableItem)
#include "TestMassesTableItem.moc"
