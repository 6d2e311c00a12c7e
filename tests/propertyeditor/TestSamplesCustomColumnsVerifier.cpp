#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/content/SamplesProteinsColumns.h>
#include <orv/propertyeditor/validators/SamplesCustomColumnsVerifier.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using TableCells::node;

namespace {

/// A header with columns of these names and types.
QJsonObject header(const QList<std::pair<QString, QString>> &columns)
{
    QList<QJsonArray> rows;
    for (const auto &[name, type] : columns)
        rows.append({name, type, u""_s});
    return node({u"Name"_s, u"Type"_s, u"Unit"_s}, rows);
}

QJsonObject tableCell(const QJsonValue &header)
{
    return TableCells::cell(u"SamplesProteins"_s,
                            {TableCells::entry(u"SamplesProteins"_s,
                                               QJsonObject{{u"header"_s, header}, {u"table"_s, node({})}})});
}

/// A document whose server metadata are mapped under these names.
Content contentWith(const QJsonArray &cells, const QStringList &aliases)
{
    QJsonArray connections;
    for (const QString &alias : aliases) {
        connections.append(QJsonObject{{u"attribute"_s, u"attribute %1"_s.arg(connections.size())},
                                       {u"alias"_s, alias},
                                       {u"target"_s, 1}});
    }
    QJsonObject json = ProjectFixtures::document(cells);
    json.insert(u"extendedMetadata"_s, QJsonObject{{u"metadataMappingConnections"_s, connections}});
    Content content;
    ProjectFixtures::load(&content, json);
    return content;
}

QString duplicates(const QString &words)
{
    return u"Metadata mappings and Samples-Proteins table contain %1. This may lead to project creation failure."_s
        .arg(words);
}

} // namespace

class TestSamplesCustomColumnsVerifier : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingHasNoColumns();
    void namesStandOnce_data();
    void namesStandOnce();
    void tablesThatCannotBeReadAddNothing();
    void malformedHeadersAreRefused_data();
    void malformedHeadersAreRefused();
    void columnsOfAnotherTypeAreFound();
};

void TestSamplesCustomColumnsVerifier::nothingHasNoColumns()
{
    const Error error = SamplesCustomColumnsVerifier::verifyCustomColumns(nullptr);
    QCOMPARE(error.errorMessage(), u"Content is empty"_s);
    QCOMPARE(int(error.code()), 2);
    Content empty;
    ORV_VERIFY_OK(SamplesCustomColumnsVerifier::verifyCustomColumns(&empty));
}

void TestSamplesCustomColumnsVerifier::namesStandOnce_data()
{
    QTest::addColumn<QStringList>("aliases");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("message");
    QTest::newRow("all differ") << QStringList{u"A"_s, u"B"_s} << QStringList{u"C"_s} << QString();
    QTest::newRow("case counts") << QStringList{u"A"_s} << QStringList{u"a"_s} << QString();
    QTest::newRow("in both") << QStringList{u"A"_s, u"B"_s} << QStringList{u"B"_s}
                             << duplicates(u"a duplicate column name: B"_s);
    QTest::newRow("twice in the table") << QStringList() << QStringList{u"C"_s, u"D"_s, u"C"_s}
                                        << duplicates(u"a duplicate column name: C"_s);
    QTest::newRow("twice in the metadata")
        << QStringList{u"A"_s, u"A"_s} << QStringList() << duplicates(u"a duplicate column name: A"_s);
    QTest::newRow("several") << QStringList{u"A"_s, u"B"_s} << QStringList{u"B"_s, u"A"_s, u"A"_s}
                             << duplicates(u"duplicate column names: B,A"_s);
}

void TestSamplesCustomColumnsVerifier::namesStandOnce()
{
    QFETCH(QStringList, aliases);
    QFETCH(QStringList, columns);
    QFETCH(QString, message);
    QList<std::pair<QString, QString>> described{{u"not of the sample"_s, u"Protein"_s},
                                                 {u"not of the sample"_s, u"Protein"_s}};
    for (const QString &column : columns)
        described.append({column, u"Sample"_s});
    Content content = contentWith({tableCell(header(described))}, aliases);
    const Error error = SamplesCustomColumnsVerifier::verifyCustomColumns(&content);
    QCOMPARE(error.errorMessage(), message);
    QCOMPARE(int(error.code()), message.isEmpty() ? 0 : 1);
    QCOMPARE(error.details().isEmpty(), message.isEmpty());
}

void TestSamplesCustomColumnsVerifier::tablesThatCannotBeReadAddNothing()
{
    LogCapture log;
    Content content = contentWith(
        {tableCell(u"none"_s), tableCell(header({{u"C"_s, u"Sample"_s}, {u"C"_s, u"Sample"_s}}))}, {});
    QCOMPARE(SamplesCustomColumnsVerifier::verifyCustomColumns(&content).errorMessage(),
             duplicates(u"a duplicate column name: C"_s));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().startsWith(u"Cannot read the columns of samples and proteins:"_s));
}

void TestSamplesCustomColumnsVerifier::malformedHeadersAreRefused_data()
{
    QTest::addColumn<QJsonValue>("header");
    QTest::addColumn<QString>("message");
    QTest::newRow("no header") << QJsonValue() << QString();
    QTest::newRow("no data") << QJsonValue(QJsonObject{{u"children"_s, QJsonArray()}}) << QString();
    QTest::newRow("two entries") << QJsonValue(node({u"Name"_s, u"Type"_s}))
                                 << u"The size of the header data list is incorrect."_s;
    QTest::newRow("no name") << QJsonValue(node({u"A"_s, u"Type"_s, u"B"_s}))
                             << u"Could not find the index for the name Name in the header data list"_s;
    QTest::newRow("no type") << QJsonValue(node({u"A"_s, u"Name"_s, u"B"_s}))
                             << u"Could not find the index for the name Type in the header data list"_s;
    QTest::newRow("a row of two cells")
        << QJsonValue(node({u"Name"_s, u"Type"_s, u"Unit"_s}, {{u"a"_s, u"Sample"_s}}))
        << u"The size of the child data list is incorrect."_s;
}

void TestSamplesCustomColumnsVerifier::malformedHeadersAreRefused()
{
    QFETCH(QJsonValue, header);
    QFETCH(QString, message);
    const auto names = SamplesProteinsColumns::columnNames({{u"header"_s, header}}, u"Sample"_s);
    QVERIFY(names.hasError());
    // The other two name the member, in the words of the parser.
    if (message.isEmpty()) {
        QCOMPARE(int(names.error().code()), 2);
        return;
    }
    QCOMPARE(names.error().errorMessage(), message);
    QCOMPARE(int(names.error().code()), 1);
}

void TestSamplesCustomColumnsVerifier::columnsOfAnotherTypeAreFound()
{
    const QJsonObject value{
        {u"header"_s, header({{u"a"_s, u"Protein"_s}, {u"b"_s, u"Sample"_s}, {u"c"_s, u"Protein"_s}})}};
    const auto names = SamplesProteinsColumns::columnNames(value, u"Protein"_s);
    ORV_VERIFY_OK(names);
    QCOMPARE(*names, (QStringList{u"a"_s, u"c"_s}));
}

ORV_REGISTER_TEST(TestSamplesCustomColumnsVerifier)
#include "TestSamplesCustomColumnsVerifier.moc"
