#include "FormChecks.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "TestData.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString corpusPath()
{
    return QDir::cleanPath(TestData::path(u"../corpus"_s));
}

} // namespace

/// Runs what the fuzzers start from, and what they once found, through all their checks.
class TestCorpus : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyFuzzerHasSeeds_data();
    void everyFuzzerHasSeeds();
    void jsonTextIsRefusedOrKeptWhole_data() { addFiles(); }
    void jsonTextIsRefusedOrKeptWhole() { run(FormChecks::checkJson); }
    void theValueFormReadsBackWhatItWrites_data() { addFiles(); }
    void theValueFormReadsBackWhatItWrites() { run(FormChecks::checkValueForm); }
    void theObjectFormReadsBackWhatItWrites_data() { addFiles(); }
    void theObjectFormReadsBackWhatItWrites() { run(FormChecks::checkObjectForm); }
    void tablesAreRefusedOrReadBackEqual_data() { addFiles(); }
    void tablesAreRefusedOrReadBackEqual() { run(FormChecks::checkRowNode); }
    void commaSeparatedTextReadsTheSameInPieces_data() { addFiles(); }
    void commaSeparatedTextReadsTheSameInPieces() { run(FormChecks::checkCsv); }
    void textOfTablesBecomesCellsAndBack_data() { addFiles(); }
    void textOfTablesBecomesCellsAndBack() { run(FormChecks::checkTableText); }
    void samplesAreRefusedOrReadBackEqual_data() { addFiles(); }
    void samplesAreRefusedOrReadBackEqual() { run(FormChecks::checkSamples); }
    void referencesAreRefusedOrSurviveTheirText_data() { addFiles(); }
    void referencesAreRefusedOrSurviveTheirText() { run(FormChecks::checkReference); }
    void fastaIsRefusedOrReadBackEqual_data() { addFiles(); }
    void fastaIsRefusedOrReadBackEqual() { run(FormChecks::checkFasta); }
    void chemistryIsRefusedOrReadBackEqual_data() { addFiles(); }
    void chemistryIsRefusedOrReadBackEqual() { run(FormChecks::checkChemistry); }
    void settingsAreRefusedOrReadBackEqual_data() { addFiles(); }
    void settingsAreRefusedOrReadBackEqual() { run(FormChecks::checkPropertySet); }
    void rulesRefuseWithAWord_data() { addFiles(); }
    void rulesRefuseWithAWord() { run(FormChecks::checkRules); }
    void parameterFilesOfTheSearchAreRefusedOrReadBackEqual_data() { addFiles(); }
    void parameterFilesOfTheSearchAreRefusedOrReadBackEqual() { run(FormChecks::checkXenoset); }
    void parameterFilesOfThePreviewReadBackEqual_data() { addFiles(); }
    void parameterFilesOfThePreviewReadBackEqual() { run(FormChecks::checkPrv); }
    void mgfIsRefusedOrReadInPieces_data() { addFiles(); }
    void mgfIsRefusedOrReadInPieces() { run(FormChecks::checkMgf); }
    void vendorPathsAreOfOneMind_data() { addFiles(); }
    void vendorPathsAreOfOneMind() { run(FormChecks::checkVendorPaths); }

private:
    static void addFiles();
    static void run(QString (*check)(const QByteArray &));
};

void TestCorpus::addFiles()
{
    QTest::addColumn<QString>("path");
    const QDir corpus(corpusPath());
    for (const QString &folder : corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QFileInfo &file : QDir(corpus.filePath(folder)).entryInfoList(QDir::Files))
            QTest::addRow("%s/%s", qPrintable(folder), qPrintable(file.fileName())) << file.filePath();
    }
}

void TestCorpus::run(QString (*check)(const QByteArray &))
{
    QFETCH(QString, path);
    const LogCapture log;
    const QString wrong = check(TestData::read(path));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
}

void TestCorpus::everyFuzzerHasSeeds_data()
{
    QTest::addColumn<QString>("folder");
    for (const char *folder :
         {"chemistry", "csv", "fasta", "json", "mgf", "object_form", "property_set", "prv", "reference",
          "row_node", "rules", "samples", "table_text", "value_form", "vendor_paths", "xenoset"})
        QTest::newRow(folder) << QString::fromLatin1(folder);
}

void TestCorpus::everyFuzzerHasSeeds()
{
    QFETCH(QString, folder);
    QVERIFY(QDir(corpusPath() + u'/' + folder).entryList(QDir::Files).size() >= 10);
}

ORV_REGISTER_TEST(TestCorpus)

#include "TestCorpus.moc"
