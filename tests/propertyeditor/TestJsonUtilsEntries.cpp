#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

using namespace orv;
using namespace orv::PropertyEditorJsonUtils;
using namespace Qt::StringLiterals;

/// Entries of raw cells: finding, reading and replacing them.
class TestJsonUtilsEntries : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theNameOfOldSamplesIsFixed();
    void entriesAreIdentified_data();
    void entriesAreIdentified();
    void theFirstMatchingEntryIsFound();
    void anOldNameIsFoundInACell();
    void noMatchIsEmpty();
    void aCellWithoutEntriesIsTold_data();
    void aCellWithoutEntriesIsTold();
    void aCellOfUnknownTypeIsTold_data();
    void aCellOfUnknownTypeIsTold();
    void aCellOfUnknownTypeIsNotUpdated_data();
    void aCellOfUnknownTypeIsNotUpdated();
    void everyMatchingEntryIsUpdated();
    void anUpdateHealsAnOldName();
    void anUpdateAddsNoEntry_data();
    void anUpdateAddsNoEntry();
    void theValueOfAnEntryIsAnObject_data();
    void theValueOfAnEntryIsAnObject();
    void customColumnsAreFoundByTheirNames_data();
    void customColumnsAreFoundByTheirNames();
    void aCellWithoutCustomColumnsHasNone_data();
    void aCellWithoutCustomColumnsHasNone();
    void theFirstCustomColumnsCount();
    void aCustomColumnWithoutANameIsPassedOver();
};

namespace {

QJsonObject entry(const QString &name, const QJsonValue &value = QJsonObject())
{
    return {{u"name"_s, name}, {u"value"_s, value}};
}

QJsonObject cellOf(const QString &type, const QJsonArray &entries)
{
    return {{u"type"_s, type}, {u"properties"_s, entries}};
}

QJsonObject columnsEntry(const QString &name, const QJsonArray &definitions)
{
    return entry(name, QJsonObject{{u"data"_s, definitions}, {u"children"_s, QJsonArray()}});
}

} // namespace

void TestJsonUtilsEntries::theNameOfOldSamplesIsFixed()
{
    QCOMPARE(PropertyEditorStringConstants::kSamples, "Samples"_L1);
}

void TestJsonUtilsEntries::entriesAreIdentified_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<BaseItemType>("type");
    QTest::addColumn<int>("id");

    QTest::newRow("old samples in a samples cell") << u"Samples"_s << BaseItemType::Samples << 265;
    QTest::newRow("old samples in a step's cell") << u"Samples"_s << BaseItemType::Karvon << 266;
    QTest::newRow("old samples in an unknown cell") << u"Samples"_s << BaseItemType::Unknown << 266;
    QTest::newRow("today's name of the samples table") << u"SamplesTable"_s << BaseItemType::Samples << 265;
    QTest::newRow("case counts") << u"samples"_s << BaseItemType::Samples << -1;
    QTest::newRow("a single database") << u"DatabaseFile"_s << BaseItemType::Database << 268;
    QTest::newRow("the old name of a single database") << u"Database"_s << BaseItemType::Database << 268;
    QTest::newRow("a list of databases") << u"SequenceDatabases"_s << BaseItemType::Database << 268;
    QTest::newRow("a current name") << u"KarvonModText"_s << BaseItemType::Karvon << 67;
    QTest::newRow("a name of the first generation") << u"mod_text"_s << BaseItemType::Karvon << 67;
    QTest::newRow("no property") << u"nothing of ours"_s << BaseItemType::Karvon << -1;
    QTest::newRow("no name") << QString() << BaseItemType::Karvon << -1;
}

void TestJsonUtilsEntries::entriesAreIdentified()
{
    QFETCH(const QString, name);
    QFETCH(const BaseItemType, type);
    QFETCH(const int, id);
    QCOMPARE(int(findPropertyBackCompat(entry(name), type)), id);
}

void TestJsonUtilsEntries::theFirstMatchingEntryIsFound()
{
    const QJsonObject cell =
        cellOf(u"Masses"_s, {17, entry(u"MatchTolerance"_s), entry(u"MassTable"_s, u"first"_s),
                             entry(u"MassTable"_s, u"second"_s)});
    QCOMPARE(getPropertyWithType(cell, PropertyId::MassTable), entry(u"MassTable"_s, u"first"_s));
}

void TestJsonUtilsEntries::anOldNameIsFoundInACell()
{
    const QJsonObject cell = cellOf(u"Samples"_s, {entry(u"Samples"_s, 1)});
    QCOMPARE(getPropertyWithType(cell, PropertyId::SamplesTable), entry(u"Samples"_s, 1));
    QCOMPARE(getPropertyWithType(cell, PropertyId::Samples), QJsonObject());
}

void TestJsonUtilsEntries::noMatchIsEmpty()
{
    const QJsonObject cell = cellOf(u"Masses"_s, {entry(u"MassTable"_s)});
    QCOMPARE(getPropertyWithType(cell, PropertyId::Isotope), QJsonObject());
}

void TestJsonUtilsEntries::aCellWithoutEntriesIsTold_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::newRow("empty cell") << QJsonObject();
    QTest::newRow("no properties") << QJsonObject{{u"type"_s, u"Masses"_s}};
    QTest::newRow("empty properties") << cellOf(u"Masses"_s, {});
    QTest::newRow("properties that are no array")
        << QJsonObject{{u"type"_s, u"Masses"_s}, {u"properties"_s, QJsonObject{{u"name"_s, u"x"_s}}}};
}

void TestJsonUtilsEntries::aCellWithoutEntriesIsTold()
{
    QFETCH(const QJsonObject, cell);
    const LogCapture log;
    QCOMPARE(getPropertyWithType(cell, PropertyId::MassTable), QJsonObject());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY2(log.warnings().first().startsWith(u"No properties in json content QJsonObject("_s),
             qPrintable(log.warnings().first()));
}

void TestJsonUtilsEntries::aCellOfUnknownTypeIsTold_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::addColumn<QString>("warning");
    const QJsonObject known = cellOf(u"Masses"_s, {entry(u"MassTable"_s)});
    QJsonObject untyped = known;
    untyped.remove(u"type"_s);
    QJsonObject odd = known;
    odd.insert(u"type"_s, u"Odd"_s);
    QJsonObject unknown = known;
    unknown.insert(u"type"_s, u"Unknown"_s);
    QTest::newRow("no type") << untyped << u"Unknown type of cell \"\""_s;
    QTest::newRow("no type of ours") << odd << u"Unknown type of cell \"Odd\""_s;
    QTest::newRow("the unknown type itself") << unknown << u"Unknown type of cell \"Unknown\""_s;
}

void TestJsonUtilsEntries::aCellOfUnknownTypeIsTold()
{
    QFETCH(const QJsonObject, cell);
    QFETCH(const QString, warning);
    const LogCapture log;
    QCOMPARE(getPropertyWithType(cell, PropertyId::MassTable), QJsonObject());
    QCOMPARE(log.warnings().last(), warning);
}

void TestJsonUtilsEntries::aCellOfUnknownTypeIsNotUpdated_data()
{
    aCellOfUnknownTypeIsTold_data();
}

void TestJsonUtilsEntries::aCellOfUnknownTypeIsNotUpdated()
{
    QFETCH(const QJsonObject, cell);
    QFETCH(const QString, warning);
    const LogCapture log;
    QCOMPARE(updatePropertyValue(cell, PropertyId::MassTable, {{u"a"_s, 1}}), QJsonObject());
    QCOMPARE(log.warnings().last(), warning);
}

void TestJsonUtilsEntries::everyMatchingEntryIsUpdated()
{
    QJsonObject grouped = entry(u"MassTable"_s, 1);
    grouped.insert(u"group"_s, u"g"_s);
    QJsonObject cell = cellOf(u"Masses"_s, {grouped, 17, entry(u"MatchTolerance"_s, 2),
                                            entry(u"MassTable"_s, QJsonObject{{u"old"_s, 3}})});
    cell.insert(u"title"_s, u"t"_s);
    const QJsonObject value{{u"new"_s, 4}};

    grouped.insert(u"value"_s, value);
    QJsonObject expected =
        cellOf(u"Masses"_s, {grouped, 17, entry(u"MatchTolerance"_s, 2), entry(u"MassTable"_s, value)});
    expected.insert(u"title"_s, u"t"_s);
    QCOMPARE(updatePropertyValue(cell, PropertyId::MassTable, value), expected);
}

void TestJsonUtilsEntries::anUpdateHealsAnOldName()
{
    const QJsonObject value{{u"new"_s, 4}};
    const QJsonObject samples = cellOf(u"Samples"_s, {entry(u"Samples"_s)});
    QCOMPARE(updatePropertyValue(samples, PropertyId::SamplesTable, value),
             cellOf(u"Samples"_s, {entry(u"SamplesTable"_s, value)}));
    const QJsonObject database = cellOf(u"Database"_s, {entry(u"Database"_s)});
    QCOMPARE(updatePropertyValue(database, PropertyId::SequenceDatabases, value),
             cellOf(u"Database"_s, {entry(u"SequenceDatabases"_s, value)}));
}

void TestJsonUtilsEntries::anUpdateAddsNoEntry_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::newRow("other properties") << cellOf(u"Masses"_s, {entry(u"MatchTolerance"_s)});
    QTest::newRow("empty properties") << cellOf(u"Masses"_s, {});
    QTest::newRow("no properties") << QJsonObject{{u"type"_s, u"Masses"_s}, {u"name"_s, u"n"_s}};
}

void TestJsonUtilsEntries::anUpdateAddsNoEntry()
{
    QFETCH(const QJsonObject, cell);
    QCOMPARE(updatePropertyValue(cell, PropertyId::MassTable, {{u"a"_s, 1}}), cell);
}

void TestJsonUtilsEntries::theValueOfAnEntryIsAnObject_data()
{
    QTest::addColumn<QJsonObject>("entry");
    QTest::addColumn<QJsonObject>("value");
    const QJsonObject object{{u"a"_s, 1}};
    QTest::newRow("object") << entry(u"x"_s, object) << object;
    QTest::newRow("text") << entry(u"x"_s, u"{\"a\":1}"_s) << QJsonObject();
    QTest::newRow("array") << entry(u"x"_s, QJsonArray{object}) << QJsonObject();
    QTest::newRow("nothing") << QJsonObject() << QJsonObject();
}

void TestJsonUtilsEntries::theValueOfAnEntryIsAnObject()
{
    QFETCH(const QJsonObject, entry);
    QFETCH(const QJsonObject, value);
    QCOMPARE(propValueObject(entry), value);
}

void TestJsonUtilsEntries::customColumnsAreFoundByTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as written") << u"CustomColumns"_s;
    QTest::newRow("in another case") << u"customcolumns"_s;
}

void TestJsonUtilsEntries::customColumnsAreFoundByTheirNames()
{
    QFETCH(const QString, name);
    const QJsonObject age{{u"name"_s, u"Age"_s}, {u"type"_s, u"int"_s}};
    const QJsonObject clone{{u"name"_s, u"Clone"_s}, {u"required"_s, true}};
    const QJsonObject cell =
        cellOf(u"Samples"_s, {entry(u"SamplesTable"_s), columnsEntry(name, {age, clone})});
    const QHash<QString, QMap<QString, QVariant>> expected{
        {u"Age"_s, {{u"name"_s, u"Age"_s}, {u"type"_s, u"int"_s}}},
        {u"Clone"_s, {{u"name"_s, u"Clone"_s}, {u"required"_s, true}}},
    };
    QCOMPARE(customColumnDefinitions(cell), expected);
}

void TestJsonUtilsEntries::aCellWithoutCustomColumnsHasNone_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::newRow("empty cell") << QJsonObject();
    QTest::newRow("other properties") << cellOf(u"Samples"_s, {entry(u"SamplesTable"_s)});
    QTest::newRow("no definitions") << cellOf(u"Samples"_s, {columnsEntry(u"CustomColumns"_s, {})});
    QTest::newRow("a value that is no object") << cellOf(u"Samples"_s, {entry(u"CustomColumns"_s, 5)});
}

void TestJsonUtilsEntries::aCellWithoutCustomColumnsHasNone()
{
    QFETCH(const QJsonObject, cell);
    QVERIFY(customColumnDefinitions(cell).isEmpty());
}

void TestJsonUtilsEntries::theFirstCustomColumnsCount()
{
    const QJsonObject age{{u"name"_s, u"Age"_s}};
    const QJsonObject clone{{u"name"_s, u"Clone"_s}};
    const QJsonObject cell = cellOf(
        u"Samples"_s, {columnsEntry(u"customColumns"_s, {age}), columnsEntry(u"CustomColumns"_s, {clone})});
    QCOMPARE(customColumnDefinitions(cell).keys(), QStringList{u"Age"_s});
}

void TestJsonUtilsEntries::aCustomColumnWithoutANameIsPassedOver()
{
    const QJsonObject age{{u"name"_s, u"Age"_s}};
    const QJsonObject nameless{{u"type"_s, u"int"_s}};
    const QJsonObject clone{{u"name"_s, u"Clone"_s}};
    const QJsonObject cell =
        cellOf(u"Samples"_s, {columnsEntry(u"CustomColumns"_s, {age, nameless, u"no map"_s, clone})});
    const LogCapture log;
    const auto definitions = customColumnDefinitions(cell);
    QCOMPARE(definitions.size(), 2);
    QVERIFY(definitions.contains(u"Age"_s));
    QVERIFY(definitions.contains(u"Clone"_s));
    const QStringList warnings = log.warnings();
    QCOMPARE(warnings.size(), 2);
    QVERIFY2(warnings.at(0).startsWith(u"missing name for item number 2 ; map: "_s) &&
                 warnings.at(0).contains(u"\"int\""_s),
             qPrintable(warnings.at(0)));
    QVERIFY2(warnings.at(1).startsWith(u"missing name for item number 3 ; map: "_s),
             qPrintable(warnings.at(1)));
}

ORV_REGISTER_TEST(TestJsonUtilsEntries)
#include "TestJsonUtilsEntries.moc"
