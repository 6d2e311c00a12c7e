#include "OrvTest.h"
#include "TableCells.h"

#include <orv/propertyeditor/workflow/CellTables.h>

using namespace orv;
using namespace Qt::StringLiterals;
using TableCells::cell;
using TableCells::entry;
using TableCells::node;

namespace {

QList<QVariantList> rowsOf(const RowNode &table)
{
    QList<QVariantList> rows;
    for (int i = 0; i < table.getChildListSize(); ++i) {
        const VariantItems &data = table.getChild(i)->data;
        rows.append(QVariantList(data.begin(), data.end()));
    }
    return rows;
}

} // namespace

class TestCellTables : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void plainTablesComeInTheOrderOfTheCell();
    void tablesOfIntactProteinsComeOneByOne();
    void aPlainTableOfIntactProteinsIsOne();
    void samplesAreATableOfWhatTheyUse();
    void samplesAsATreeOfRowsAreUnderstood();
    void databasesAreATable();
    void cellsOfSettingsHaveNone();
    void brokenSamplesAreAnError_data();
    void brokenSamplesAreAnError();
};

void TestCellTables::plainTablesComeInTheOrderOfTheCell()
{
    const auto tables = cellTables(cell(
        u"Masses"_s, {entry(u"MassTable"_s, node({u"Name"_s, u"Mass"_s}, {{u"G0F"_s, 148055.9}})),
                      entry(u"Note"_s, u"text"_s), entry(u"MatchTolerance"_s, node({u"Value"_s}, {{30}}))}));
    ORV_VERIFY_OK(tables);
    QCOMPARE(tables->size(), 2);
    QCOMPARE(tables->at(0).name, u"MassTable"_s);
    QCOMPARE(tables->at(0).table.data.toStringList(), (QStringList{u"Name"_s, u"Mass"_s}));
    QCOMPARE(rowsOf(tables->at(0).table), (QList<QVariantList>{{u"G0F"_s, 148055.9}}));
    QCOMPARE(tables->at(1).name, u"MatchTolerance"_s);
}

void TestCellTables::tablesOfIntactProteinsComeOneByOne()
{
    QJsonObject root = node({u"Chains"_s, u"Proteins"_s});
    root.insert(u"children"_s,
                QJsonArray{node({u"Name"_s}, {{u"HC"_s}, {u"LC"_s}}), node({u"Name"_s}, {{u"mAb"_s}})});
    const auto tables = cellTables(cell(u"IntactProteins"_s, {entry(u"IntactProteins"_s, root)}));
    ORV_VERIFY_OK(tables);
    QCOMPARE(tables->size(), 2);
    QCOMPARE(tables->at(0).name, u"Chains"_s);
    QCOMPARE(rowsOf(tables->at(0).table), (QList<QVariantList>{{u"HC"_s}, {u"LC"_s}}));
    QCOMPARE(tables->at(1).name, u"Proteins"_s);
    QCOMPARE(rowsOf(tables->at(1).table), (QList<QVariantList>{{u"mAb"_s}}));
}

void TestCellTables::aPlainTableOfIntactProteinsIsOne()
{
    const auto tables =
        cellTables(cell(u"IntactProteins"_s,
                        {entry(u"IntactProteins"_s, node({u"Name"_s, u"Sequence"_s}, {{u"a"_s, u"MK"_s}}))}));
    ORV_VERIFY_OK(tables);
    QCOMPARE(tables->size(), 1);
    QCOMPARE(tables->constFirst().name, u"IntactProteins"_s);
}

void TestCellTables::samplesAreATableOfWhatTheyUse()
{
    const QJsonObject value{
        {u"CustomColumns"_s, QJsonArray{QJsonObject{{u"name"_s, u"Dose"_s}, {u"type"_s, u"number"_s}}}},
        {u"Samples"_s,
         QJsonArray{QJsonObject{{u"SamplesId"_s, 4},
                                {u"SampleName"_s, u"a"_s},
                                {u"SamplePath"_s, u"/runs/a.raw"_s},
                                {u"Reference"_s, true},
                                {u"Traces"_s, QJsonArray{u"/runs/a.csv"_s, u"/runs/b.csv"_s}}},
                    QJsonObject{{u"SamplesId"_s, 7}, {u"SampleName"_s, u"b"_s}, {u"Dose"_s, 2.5}}}}};
    const auto tables = cellTables(cell(u"Samples"_s, {entry(u"SamplesTable"_s, value)}));
    ORV_VERIFY_OK(tables);
    QCOMPARE(tables->size(), 1);
    const RowNode &table = tables->constFirst().table;
    QCOMPARE(table.data.toStringList(), (QStringList{u"SamplesId"_s, u"SampleName"_s, u"SamplePath"_s,
                                                     u"Reference"_s, u"Traces"_s, u"Dose"_s}));
    const QVariantList traces{u"/runs/a.csv"_s, u"/runs/b.csv"_s};
    QCOMPARE(rowsOf(table), (QList<QVariantList>{{4, u"a"_s, u"/runs/a.raw"_s, true, traces, {}},
                                                 {7, u"b"_s, QString(), false, {}, 2.5}}));
}

void TestCellTables::samplesAsATreeOfRowsAreUnderstood()
{
    const auto tables =
        cellTables(cell(u"Samples"_s, {entry(u"Samples"_s, node({u"SampleName"_s, u"FileName"_s, u"Lot"_s},
                                                                {{u"a"_s, u"a.raw"_s, u"7"_s}}))}));
    ORV_VERIFY_OK(tables);
    QCOMPARE(tables->size(), 1);
    QCOMPARE(rowsOf(tables->constFirst().table),
             (QList<QVariantList>{{1, u"a"_s, u"a.raw"_s, false, u"7"_s}}));
}

void TestCellTables::databasesAreATable()
{
    const QJsonObject value{
        {u"sequences"_s,
         QJsonArray{
             QJsonObject{{u"id"_s, 1}, {u"fasta"_s, u"/db/a.fasta"_s}, {u"species"_s, u"Homo sapiens"_s}},
             QJsonObject{{u"id"_s, 2}, {u"fasta"_s, QString()}, {u"species"_s, QString()}}}}};
    const auto tables = cellTables(cell(u"Database"_s, {entry(u"SequenceDatabases"_s, value)}));
    ORV_VERIFY_OK(tables);
    QCOMPARE(tables->constFirst().table.data.toStringList(),
             (QStringList{u"id"_s, u"fasta"_s, u"species"_s}));
    QCOMPARE(rowsOf(tables->constFirst().table),
             (QList<QVariantList>{{1, u"/db/a.fasta"_s, u"Homo sapiens"_s}, {2, QString(), QString()}}));
}

void TestCellTables::cellsOfSettingsHaveNone()
{
    const auto tables = cellTables(cell(u"Karvon"_s, {entry(u"Samples"_s, u"*"_s)}));
    ORV_VERIFY_OK(tables);
    QVERIFY(tables->isEmpty());
}

void TestCellTables::brokenSamplesAreAnError_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::newRow("samples") << cell(u"Samples"_s,
                                     {entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, 5}})});
    QTest::newRow("databases") << cell(u"Database"_s,
                                       {entry(u"SequenceDatabases"_s, QJsonObject{{u"sequences"_s, 5}})});
}

void TestCellTables::brokenSamplesAreAnError()
{
    QFETCH(QJsonObject, cell);
    QVERIFY(cellTables(cell).hasError());
}

ORV_REGISTER_TEST(TestCellTables)
#include "TestCellTables.moc"
