#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/LossObserver.h>
#include <orv/core/TextUtils.h>
#include <orv/propertyeditor/content/SequenceDatabaseItems.h>
#include <orv/propertyeditor/content/SequenceDatabasesTableItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

QJsonObject databaseCell(const QJsonValue &value)
{
    return {
        {u"type"_s, u"Database"_s},
        {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SequenceDatabases"_s}, {u"value"_s, value}}}}};
}

SequenceDatabaseItem database(const QString &path)
{
    return {ResourceReferenceUtils::fromString(path), SequenceDatabaseItem::START_ID, {}};
}

struct Verdict
{
    bool valid = false;
    QStringList errors;
    QStringList warnings;
};

Verdict validate(const QList<SequenceDatabaseItem> &items)
{
    Verdict verdict;
    verdict.valid = SequenceDatabaseItems::validate(items, &verdict.errors, &verdict.warnings);
    return verdict;
}

} // namespace

class TestSequenceDatabasesTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void databasesComeBackAsTheyWere();
    void aPlainPathBecomesATable();
    void anEmptyPathIsAnEmptyTable();
    void otherValuesAreRefused_data();
    void otherValuesAreRefused();
    void itemsAreReplacedAndCleared();
    void relativeFilesBecomeAbsoluteOnDemand();
    void existingFastaFilesPass();
    void anEmptyEntryFails();
    void missingFilesAreTold();
    void otherFilesAreTold();
    void aRepeatedFileIsAWarning();
};

void TestSequenceDatabasesTableItem::databasesComeBackAsTheyWere()
{
    const QJsonObject sequences{
        {u"sequences"_s,
         QJsonArray{
             QJsonObject{{u"id"_s, 1}, {u"fasta"_s, u"human.fasta"_s}, {u"species"_s, u"Homo sapiens"_s}},
             QJsonObject{{u"id"_s, 2}, {u"fasta"_s, u""_s}, {u"species"_s, u""_s}}}}};
    LossCollector losses;
    SequenceDatabasesTableItem item;
    ORV_VERIFY_OK(item.load(databaseCell(sequences), {}, LoadContext(&losses)));
    QCOMPARE(item.items().size(), 2);
    QCOMPARE(item.items().constFirst().fastaReference()->text(), u"human.fasta"_s);
    QCOMPARE(item.items().constFirst().species(), u"Homo sapiens"_s);
    QVERIFY(!item.items().constLast().fastaReference());
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), databaseCell(sequences));
    QCOMPARE(losses.losses(), QList<Loss>());
}

void TestSequenceDatabasesTableItem::aPlainPathBecomesATable()
{
    SequenceDatabasesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(databaseCell(u"C:/data/human.fasta"_s), {}));
    QCOMPARE(item.items().size(), 1);
    QCOMPARE(item.items().constFirst().id(), SequenceDatabaseItem::START_ID);
    QCOMPARE(item.items().constFirst().species(), QString());
    const QJsonObject saved = item.toJson(PropertyConversionFlag::KeepPaths);
    const QJsonObject value =
        saved.value(u"properties"_s).toArray().at(0).toObject().value(u"value"_s).toObject();
    QCOMPARE(value.value(u"sequences"_s).toArray().at(0).toObject().value(u"fasta"_s),
             QJsonValue(u"C:/data/human.fasta"_s));
}

void TestSequenceDatabasesTableItem::anEmptyPathIsAnEmptyTable()
{
    SequenceDatabasesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(databaseCell(u""_s), {}));
    QVERIFY(item.items().isEmpty());
}

void TestSequenceDatabasesTableItem::otherValuesAreRefused_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("number") << QJsonValue(5);
    QTest::newRow("object without sequences") << QJsonValue(QJsonObject());
    QTest::newRow("sequences that are no array") << QJsonValue(QJsonObject{{u"sequences"_s, 1}});
    QTest::newRow("rows that are no objects")
        << QJsonValue(QJsonObject{{u"sequences"_s, QJsonArray{5, u"x"_s}}});
    QTest::newRow("broken row") << QJsonValue(
        QJsonObject{{u"sequences"_s, QJsonArray{QJsonObject{{u"id"_s, QJsonArray()}}}}});
}

void TestSequenceDatabasesTableItem::otherValuesAreRefused()
{
    QFETCH(QJsonValue, value);
    SequenceDatabasesTableItem item;
    QVERIFY(item.assignFromJson(databaseCell(value), {}).hasError());
}

void TestSequenceDatabasesTableItem::itemsAreReplacedAndCleared()
{
    SequenceDatabasesTableItem item;
    item.setItems({database(u"a.fasta"_s)});
    QCOMPARE(item.items().size(), 1);
    item.clear();
    QVERIFY(item.items().isEmpty());
}

namespace {

/// Files with these names in a folder that lives as long as this.
class Files
{
public:
    explicit Files(const QStringList &names)
    {
        for (const QString &name : names) {
            QFile file(path(name));
            if (!file.open(QIODevice::WriteOnly))
                qFatal("the test's file can't be written");
        }
    }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace

void TestSequenceDatabasesTableItem::relativeFilesBecomeAbsoluteOnDemand()
{
    SequenceDatabasesTableItem item;
    item.setItems({database(u"data/a.fasta"_s), database(u"/elsewhere/b.fasta"_s)});
    item.setBaseUrl(QUrl::fromLocalFile(u"/lab/study/"_s));
    const auto files = [&item](PropertyConversionFlag flag) {
        const QJsonArray entries = item.toJson(flag).value(u"properties"_s).toArray();
        const QJsonArray rows = entries.at(0)[u"value"_s][u"sequences"_s].toArray();
        return QStringList{rows.at(0)[u"fasta"_s].toString(), rows.at(1)[u"fasta"_s].toString()};
    };
    QCOMPARE(files(PropertyConversionFlag::KeepPaths),
             (QStringList{u"data/a.fasta"_s, u"/elsewhere/b.fasta"_s}));
    QCOMPARE(files(PropertyConversionFlag::AbsolutePaths),
             (QStringList{u"/lab/study/data/a.fasta"_s, u"/elsewhere/b.fasta"_s}));
}

void TestSequenceDatabasesTableItem::existingFastaFilesPass()
{
    const Files files({u"a.fasta"_s, u"b.FASTA"_s});
    const Verdict verdict =
        validate({database(files.path(u"a.fasta"_s)), database(files.path(u"b.FASTA"_s))});
    QVERIFY(verdict.valid);
    QCOMPARE(verdict.errors + verdict.warnings, QStringList());
    QVERIFY(validate({}).valid);
}

void TestSequenceDatabasesTableItem::anEmptyEntryFails()
{
    const Verdict verdict = validate({SequenceDatabaseItem(), SequenceDatabaseItem()});
    QVERIFY(!verdict.valid);
    QCOMPARE(verdict.errors, QStringList(u"Sequence databases table cannot contain empty entries."_s));
}

void TestSequenceDatabasesTableItem::missingFilesAreTold()
{
    const LogCapture log;
    const Files files({});
    const QString one = files.path(u"a.fasta"_s);
    const QString two = files.path(u"b.fasta"_s);
    const Verdict single = validate({database(one)});
    QVERIFY(!single.valid);
    QCOMPARE(single.errors,
             QStringList(u"Sequence databases table contains a fasta file that does not exist:\n%1."_s.arg(
                 TextUtils::stringListToHtmlList({one}))));
    const Verdict both = validate({database(one), database(two)});
    QCOMPARE(both.errors,
             QStringList(u"Sequence databases table contains fasta files that do not exist:\n%1."_s.arg(
                 TextUtils::stringListToHtmlList({one, two}))));
}

void TestSequenceDatabasesTableItem::otherFilesAreTold()
{
    const Files files({u"a.txt"_s, u"b.csv"_s});
    const QString one = files.path(u"a.txt"_s);
    const QString two = files.path(u"b.csv"_s);
    const Verdict single = validate({database(one)});
    QVERIFY(!single.valid);
    QCOMPARE(single.errors, QStringList(u"Sequence databases table contains a non-fasta file.:\n%1."_s.arg(
                                TextUtils::stringListToHtmlList({one}))));
    const Verdict both = validate({database(one), database(two)});
    QCOMPARE(both.errors, QStringList(u"Sequence databases table contains non-fasta files:\n%1."_s.arg(
                              TextUtils::stringListToHtmlList({one, two}))));
}

void TestSequenceDatabasesTableItem::aRepeatedFileIsAWarning()
{
    const Files files({u"a.fasta"_s});
    const QString path = files.path(u"a.fasta"_s);
    const Verdict verdict = validate({database(path), database(path), database(path)});
    QVERIFY(verdict.valid);
    QCOMPARE(verdict.errors, QStringList());
    QCOMPARE(verdict.warnings,
             QStringList(u"Sequence databases table contains duplicate fasta files:\n%1."_s.arg(
                 TextUtils::stringListToHtmlList({path}))));
}

ORV_REGISTER_TEST(TestSequenceDatabasesTableItem)
#include "TestSequenceDatabasesTableItem.moc"
