#include "OrvTest.h"

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core/FileTypes.h>

#include <QSet>

#include <iterator>

using namespace orv;
using namespace Qt::StringLiterals;

class TestFileTypes : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeHasOneRow();
    void namesAreUniqueAndReadBack();
    void suffixesBelongToOneType();
    void unknownNamesAreInvalid_data();
    void unknownNamesAreInvalid();
    void typesAreToldByTheSuffix_data();
    void typesAreToldByTheSuffix();
    void theTypeOfAPathIsThatOfItsSuffix();
    void suffixesOfSpectraAreUnique();
    void optionsNameTypesOrSuffixes_data();
    void optionsNameTypesOrSuffixes();
    void reportsAreMadeOfProjects();

    void anEmptyFilterFitsNothing();
    void filtersListTheirMasks();
    void severalTypesHaveALineForAll();
    void repeatsAndInvalidOnesAreDropped();
    void filtersIgnoreCase();
};

void TestFileTypes::everyTypeHasOneRow()
{
    const QList<FileType> all = FileTypes::all();
    // The enumerators are numbered without a gap, and the last one is MultiDocReport.
    QCOMPARE(all.size(), qsizetype(FileType::MultiDocReport));
    for (qsizetype i = 0; i < all.size(); ++i)
        QCOMPARE(qsizetype(all[i]), i + 1);
    for (FileType type : all) {
        QVERIFY(!FileTypes::description(type).isEmpty());
        QVERIFY(!FileTypes::suffixes(type).isEmpty());
    }
}

void TestFileTypes::namesAreUniqueAndReadBack()
{
    QSet<QString> names;
    QSet<QString> descriptions;
    for (FileType type : FileTypes::all()) {
        const QString name = FileTypes::name(type);
        QVERIFY2(!name.isEmpty() && !names.contains(name.toLower()), qPrintable(name));
        names.insert(name.toLower());
        descriptions.insert(FileTypes::description(type));
        QCOMPARE(FileTypes::fromName(name), type);
        QCOMPARE(FileTypes::fromName(name.toLower()), type);
    }
    QCOMPARE(descriptions.size(), names.size());
}

void TestFileTypes::suffixesBelongToOneType()
{
    QSet<QString> seen;
    for (FileType type : FileTypes::all()) {
        for (const QString &suffix : FileTypes::suffixes(type)) {
            QVERIFY2(!seen.contains(suffix), qPrintable(suffix));
            seen.insert(suffix);
            QVERIFY(!suffix.isEmpty() && !suffix.contains(u'.') && suffix == suffix.toLower());
        }
    }
}

void TestFileTypes::unknownNamesAreInvalid_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << QString();
    QTest::newRow("none") << u"none"_s;
    QTest::newRow("with a dot") << u".fasta"_s;
    QTest::newRow("with a blank") << u"FASTA "_s;
    QTest::newRow("a second suffix") << u"fas"_s;
}

void TestFileTypes::unknownNamesAreInvalid()
{
    QFETCH(QString, name);
    QCOMPARE(FileTypes::fromName(name), FileTypes::Invalid);
    QVERIFY(FileTypes::name(FileTypes::Invalid).isEmpty());
    QVERIFY(FileTypes::description(FileTypes::Invalid).isEmpty());
    QVERIFY(FileTypes::suffixes(FileTypes::Invalid).isEmpty());
}

void TestFileTypes::typesAreToldByTheSuffix_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<FileType>("type");
    QTest::addColumn<bool>("is");

    QTest::newRow("workflow") << u"/a/b.wflw"_s << MirelFileTypes::WFLW << true;
    QTest::newRow("workflow, upper case") << u"B.WFLW"_s << MirelFileTypes::WFLW << true;
    QTest::newRow("portable workflow") << u"b.wflwp/"_s << MirelFileTypes::WFLWP << true;
    QTest::newRow("second suffix") << u"b.fa"_s << FileTypes::FASTA << true;
    QTest::newRow("portable is no plain workflow") << u"b.wflwp"_s << MirelFileTypes::WFLW << false;
    QTest::newRow("suffix before the last") << u"b.fasta.zip"_s << FileTypes::FASTA << false;
    QTest::newRow("no suffix") << u"fasta"_s << FileTypes::FASTA << false;
    QTest::newRow("invalid") << u"b.wflw"_s << FileTypes::Invalid << false;
}

void TestFileTypes::typesAreToldByTheSuffix()
{
    QFETCH(QString, path);
    QFETCH(FileType, type);
    QTEST(FileTypes::isType(path, type), "is");
}

void TestFileTypes::theTypeOfAPathIsThatOfItsSuffix()
{
    for (FileType type : FileTypes::all()) {
        for (const QString &suffix : FileTypes::suffixes(type)) {
            QCOMPARE(FileTypes::typeOfPath(u"/a.csv/b."_s + suffix), type);
            QCOMPARE(FileTypes::typeOfPath(u"C:\\b."_s + suffix.toUpper() + u"\\"_s), type);
        }
    }
    for (const QString &path : {QString(), u"csv"_s, u"a.csv/b"_s, u"a.raw"_s})
        QCOMPARE(FileTypes::typeOfPath(path), FileTypes::Invalid);
}

void TestFileTypes::suffixesOfSpectraAreUnique()
{
    const QStringList suffixes = FileTypes::msDataSuffixes();
    QCOMPARE(QSet<QString>(suffixes.begin(), suffixes.end()).size(), suffixes.size());
    for (const QString &suffix : suffixes)
        QVERIFY(!suffix.isEmpty() && suffix == suffix.toLower() && !suffix.startsWith(u'.'));
    QVERIFY(suffixes.contains(FileTypes::suffixes(FileTypes::TOLQ).first()));
    QVERIFY(suffixes.contains(FileTypes::suffixes(FileTypes::ULVAR2).first()));
}

void TestFileTypes::optionsNameTypesOrSuffixes_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("suffixes");

    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("type") << QStringList{u"WFLW"_s} << QStringList{u"wflw"_s};
    QTest::newRow("type with blanks") << QStringList{u" wflw "_s} << QStringList{u"wflw"_s};
    QTest::newRow("plain suffix") << QStringList{u"mzml"_s} << QStringList{u"mzml"_s};
    QTest::newRow("both, without repeats")
        << QStringList{u"mzml"_s, u"CSV"_s, u"mzml"_s, u"csv"_s} << QStringList{u"mzml"_s, u"csv"_s};
    QTest::newRow("several suffixes")
        << QStringList{u"FASTA"_s, u"fa"_s} << QStringList{u"fasta"_s, u"fas"_s, u"fa"_s, u"faa"_s, u"seq"_s};
    QTest::newRow("empty names name nothing")
        << QStringList{u""_s, u" "_s, u"csv"_s} << QStringList{u"csv"_s};
}

void TestFileTypes::optionsNameTypesOrSuffixes()
{
    QFETCH(QStringList, names);
    QTEST(FileTypes::fileSuffixesFromExtensionTypes(names), "suffixes");
}

void TestFileTypes::reportsAreMadeOfProjects()
{
    QCOMPARE(std::size(MirelFileTypes::MULTIDOCALLOWEDFILES), 7U);
    for (FileType type : MirelFileTypes::MULTIDOCALLOWEDFILES)
        QVERIFY(FileTypes::all().contains(type) && type != MirelFileTypes::MULTIDOCREPORT);
}

void TestFileTypes::anEmptyFilterFitsNothing()
{
    for (const FileExtensionsNameFilter &filter :
         {FileExtensionsNameFilter(), FileExtensionsNameFilter({FileTypes::Invalid})}) {
        QVERIFY(filter.isEmpty());
        QVERIFY(filter.fileMasks().isEmpty());
        QVERIFY(filter.nameFilters().isEmpty());
        QVERIFY(!filter.matches(u"a.wflw"_s));
        QVERIFY(!filter.matches(QString()));
    }
}

void TestFileTypes::filtersListTheirMasks()
{
    const FileExtensionsNameFilter filter({MirelFileTypes::WFLW});
    QCOMPARE(filter.fileMasks(), QStringList(u"*.wflw"_s));
    QCOMPARE(filter.nameFilters(), QStringList(u"Workflow (*.wflw)"_s));
}

void TestFileTypes::severalTypesHaveALineForAll()
{
    const FileExtensionsNameFilter filter({FileTypes::CSV, FileTypes::FASTA});
    QCOMPARE(filter.fileMasks(),
             QStringList({u"*.csv"_s, u"*.fasta"_s, u"*.fas"_s, u"*.fa"_s, u"*.faa"_s, u"*.seq"_s}));
    QCOMPARE(filter.nameFilters(),
             QStringList({u"All supported files (*.csv *.fasta *.fas *.fa *.faa *.seq)"_s,
                          u"Comma-separated values (*.csv)"_s,
                          u"Sequence database (*.fasta *.fas *.fa *.faa *.seq)"_s}));
}

void TestFileTypes::repeatsAndInvalidOnesAreDropped()
{
    const QList<FileType> types = {FileTypes::ZIP, FileTypes::Invalid, FileTypes::CSV, FileTypes::ZIP};
    QCOMPARE(FileExtensionsNameFilter(types).types(), QList<FileType>({FileTypes::ZIP, FileTypes::CSV}));
}

void TestFileTypes::filtersIgnoreCase()
{
    const FileExtensionsNameFilter filter({MirelFileTypes::WFLW, FileTypes::FASTA});
    QVERIFY(filter.matches(u"/a/B.WFLW"_s));
    QVERIFY(filter.matches(u"b.Seq"_s));
    QVERIFY(!filter.matches(u"b.wflwp"_s));
    QVERIFY(!filter.matches(u"wflw"_s));
}

ORV_REGISTER_TEST(TestFileTypes)

#include "TestFileTypes.moc"
