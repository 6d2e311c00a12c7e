#include "OrvTest.h"
#include "TestData.h"

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/Fasta.h>

#include <QBuffer>
#include <QFileInfo>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestFasta : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void realFilesAreRead_data();
    void realFilesAreRead();
    void oddTextsAreRead_data();
    void oddTextsAreRead();
    void headersAreANameAndADescription_data();
    void headersAreANameAndADescription();
    void entriesKnowTheirLine();
    void odditiesAreWarnedOf_data();
    void odditiesAreWarnedOf();
    void warningsBeyondAHundredAreCounted();
    void badTextsAreRefusedWithTheirLine_data();
    void badTextsAreRefusedWithTheirLine();
    void aFailureStays();
    void limitsAreKept_data();
    void limitsAreKept();
    void textReadsTheSameInPieces_data() { oddTextsAreRead_data(); }
    void textReadsTheSameInPieces();
    void inventedEntriesReadBackEqual();
    void linesHaveSixtyLetters();
    void filesAreWrittenAndReadBack();
    void filesThatCannotBeReadAreTold_data();
    void filesThatCannotBeReadAreTold();
    void aFileThatCannotBeWrittenIsTold();
    void modifiedNucleotidesHaveAFormula();
};

namespace {

struct Outcome
{
    QList<FastaEntry> entries;
    Warnings warnings;
    Error error;
};

Outcome readAll(QIODevice *device, const FastaReader::Limits &limits = {})
{
    FastaReader reader(device, limits);
    Outcome outcome;
    for (;;) {
        const Result<std::optional<FastaEntry>> entry = reader.next();
        outcome.warnings.append(entry.warnings());
        if (entry.hasError()) {
            outcome.error = entry.error();
            return outcome;
        }
        if (!entry->has_value())
            return outcome;
        outcome.entries.append(**entry);
    }
}

Outcome readAll(const QByteArray &text, const FastaReader::Limits &limits = {})
{
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly);
    return readAll(&device, limits);
}

QStringList sequencesOf(const QList<FastaEntry> &entries)
{
    QStringList sequences;
    for (const FastaEntry &entry : entries)
        sequences.append(entry.name + u'=' + entry.sequence);
    return sequences;
}

/// Gives one byte at a time.
class SlowDevice : public QIODevice
{
public:
    explicit SlowDevice(const QByteArray &bytes)
        : m_bytes(bytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        if (size < 1 || m_at >= m_bytes.size())
            return 0;
        *data = m_bytes.at(m_at++);
        return 1;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray m_bytes;
    qsizetype m_at = 0;
};

} // namespace

void TestFasta::realFilesAreRead_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("length");
    QTest::newRow("bovine serum albumin") << u"bsa.fasta"_s << 1 << u"bsa"_s << 607;
    QTest::newRow("an antibody") << u"trastuzumab_HC_LC.fasta"_s << 2 << u"trastuzumab_HC"_s << 450;
    QTest::newRow("CRLF and comments") << u"peff_example.fasta"_s << 29 << u"sp:Q9Y2X3"_s << 0;
    QTest::newRow("RNA") << u"let7_oligo.fasta"_s << 4 << u"dme-let-7-5p"_s << 21;
}

void TestFasta::realFilesAreRead()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    QFETCH(int, count);
    QFETCH(int, length);
    const Result<QList<FastaEntry>> entries = Fasta::readFile(TestData::path(u"chemistry/"_s + file));
    ORV_VERIFY_OK(entries);
    QCOMPARE(entries->size(), count);
    QCOMPARE(entries->constFirst().name, name);
    if (length > 0)
        QCOMPARE(entries->constFirst().sequence.size(), length);
    for (const FastaEntry &entry : *entries) {
        QVERIFY(!entry.sequence.isEmpty());
        QVERIFY(!entry.sequence.contains(u'\r'));
    }
}

void TestFasta::oddTextsAreRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("entries");
    const QStringList two{u"a=PEP"_s, u"b=TIDE"_s};
    QTest::newRow("plain") << QByteArray(">a\nPEP\n>b\nTIDE\n") << two;
    QTest::newRow("CRLF") << QByteArray(">a\r\nPEP\r\n>b\r\nTIDE\r\n") << two;
    QTest::newRow("CR alone") << QByteArray(">a\rPEP\r>b\rTIDE\r") << two;
    QTest::newRow("no line feed at the end") << QByteArray(">a\nPEP\n>b\nTIDE") << two;
    QTest::newRow("CR at the end") << QByteArray(">a\nPEP\n>b\nTIDE\r") << two;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF>a\nPEP\n>b\nTIDE") << two;
    QTest::newRow("byte order mark within a name") << QByteArray(">\xEF\xBB\xBF"
                                                                 "a\nPEP\n")
                                                   << QStringList{QChar(QChar::ByteOrderMark) + u"a=PEP"_s};
    QTest::newRow("blank lines") << QByteArray("\n \n>a\n\nPEP\n\n\n>b\nTIDE\n\n") << two;
    QTest::newRow("comments") << QByteArray("; by hand\n# PEFF\n>a\n;inside\nPEP\n>b\nTIDE\n#end") << two;
    QTest::newRow("several lines") << QByteArray(">a\nP\nE\nP\n>b\nTI\nDE\n") << two;
    QTest::newRow("blanks and gaps") << QByteArray(">a\n P E\tP\n>b\n--TI-DE--\n") << two;
    QTest::newRow("lower case") << QByteArray(">a\npep\n>b\ntiDe\n") << two;
    QTest::newRow("stop at the end") << QByteArray(">a\nPEP*\n>b\nTIDE\n**\n") << two;
    QTest::newRow("names in brackets keep their case")
        << QByteArray(">a\nga[5mCe]*u\n") << QStringList{u"a=GA[5mCe]*U"_s};
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("mark alone") << QByteArray("\xEF\xBB\xBF") << QStringList();
    QTest::newRow("blank") << QByteArray("\n\r\n \t\n") << QStringList();
    QTest::newRow("one huge line") << ">a\n" + QByteArray(200000, 'K')
                                   << QStringList{u"a="_s + QString(200000, u'K')};
}

void TestFasta::oddTextsAreRead()
{
    QFETCH(QByteArray, text);
    const Outcome outcome = readAll(text);
    ORV_VERIFY_OK(outcome.error);
    QTEST(sequencesOf(outcome.entries), "entries");
}

void TestFasta::textReadsTheSameInPieces()
{
    QFETCH(QByteArray, text);
    SlowDevice device(text);
    const Outcome outcome = readAll(&device);
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.entries, readAll(text).entries);
    QTEST(sequencesOf(outcome.entries), "entries");
}

void TestFasta::headersAreANameAndADescription_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::newRow("both") << QByteArray(">sp|P02769|ALBU_BOVIN Albumin OS=Bos taurus")
                          << u"sp|P02769|ALBU_BOVIN"_s << u"Albumin OS=Bos taurus"_s;
    QTest::newRow("name alone") << QByteArray(">bsa") << u"bsa"_s << QString();
    QTest::newRow("blanks") << QByteArray(">  bsa \t bovine  serum ") << u"bsa"_s << u"bovine  serum"_s;
    QTest::newRow("nothing") << QByteArray(">") << QString() << QString();
    QTest::newRow("second >") << QByteArray(">a >b") << u"a"_s << u">b"_s;
    QTest::newRow("UTF-8") << QByteArray(">β-lactoglobulin") << u"β-lactoglobulin"_s << QString();
    QTest::newRow("Latin-1") << QByteArray(">prot\xE9ine lait") << u"protéine"_s << u"lait"_s;
}

void TestFasta::headersAreANameAndADescription()
{
    QFETCH(QByteArray, header);
    const Outcome outcome = readAll(header + "\nPEP\n");
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.entries.size(), 1);
    QTEST(outcome.entries.constFirst().name, "name");
    QTEST(outcome.entries.constFirst().description, "description");
}

void TestFasta::entriesKnowTheirLine()
{
    const Outcome outcome = readAll(QByteArray("; comment\r\n\r\n>a\r\nPE\r\nP\r\n;c\r\n>b\r\nTIDE"));
    QCOMPARE(outcome.entries.at(0).line, 3);
    QCOMPARE(outcome.entries.at(1).line, 7);
}

void TestFasta::odditiesAreWarnedOf_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("entries");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no sequence") << QByteArray(">a\n>b\nPEP\n") << 1 << u"Line 1: \"a\" has no sequence"_s;
    QTest::newRow("no sequence at the end")
        << QByteArray(">b\nPEP\n>a") << 1 << u"Line 3: \"a\" has no sequence"_s;
    QTest::newRow("name twice") << QByteArray(">a x\nPEP\n>a y\nTIDE\n") << 2 << u"Line 3: the name \"a\""_s;
    QTest::newRow("stop inside") << QByteArray(">a\nPE*P\n") << 1
                                 << u"Line 1: the sequence of \"a\" has a stop"_s;
}

void TestFasta::odditiesAreWarnedOf()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, warning);
    const Outcome outcome = readAll(text);
    ORV_VERIFY_OK(outcome.error);
    QTEST(int(outcome.entries.size()), "entries");
    QCOMPARE(outcome.warnings.size(), 1);
    QVERIFY2(outcome.warnings.constFirst().startsWith(warning), qPrintable(outcome.warnings.constFirst()));
}

void TestFasta::warningsBeyondAHundredAreCounted()
{
    const Outcome outcome = readAll(QByteArray(">a\nPEP\n").repeated(151));
    QCOMPARE(outcome.entries.size(), 151);
    QCOMPARE(outcome.warnings.size(), 101);
    QVERIFY2(outcome.warnings.constLast().contains(u"50 more"_s), qPrintable(outcome.warnings.constLast()));
}

void TestFasta::badTextsAreRefusedWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("entriesBefore");
    QTest::addColumn<QString>("place");
    QTest::newRow("text first") << QByteArray("\nPEPTIDE\n>a\nPEP\n") << 0 << u"Line 2: "_s;
    QTest::newRow("a workflow") << QByteArray("{\"tabs\": []}") << 0 << u"Line 1: "_s;
    QTest::newRow("digit") << QByteArray(">a\nPEP\n>b\nTI\nD3\n") << 1 << u"Line 5: "_s;
    QTest::newRow("NUL") << QByteArray(">a\nP\0P\n", 7) << 0 << u"Line 2: "_s;
    QTest::newRow("not ASCII") << QByteArray(">a\nP\xC3\x84\n") << 0 << u"Line 2: "_s;
    QTest::newRow("open bracket") << QByteArray(">a\nGA[Um\nG]\n") << 0 << u"Line 2: "_s;
    QTest::newRow("open bracket at the end") << QByteArray(">a\nGA[Um") << 0 << u"Line 2: "_s;
}

void TestFasta::badTextsAreRefusedWithTheirLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, place);
    const Outcome outcome = readAll(text);
    QCOMPARE(outcome.error.code(), ErrorCode::InvalidContent);
    QTEST(int(outcome.entries.size()), "entriesBefore");
    QVERIFY2(outcome.error.details().constFirst().startsWith(place),
             qPrintable(outcome.error.details().constFirst()));
    QCOMPARE(outcome.error.details().size(), 2);
}

void TestFasta::aFailureStays()
{
    QBuffer device;
    device.setData(">a\nP1\n>b\nPEP\n");
    device.open(QIODevice::ReadOnly);
    FastaReader reader(&device);
    const Result<std::optional<FastaEntry>> first = reader.next();
    const Result<std::optional<FastaEntry>> second = reader.next();
    QVERIFY(first.hasError() && second.hasError());
    QCOMPARE(second.error().details(), first.error().details());
}

void TestFasta::limitsAreKept_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("fits");
    QTest::newRow("header fits") << QByteArray(">1234567890\nK\n") << true;
    QTest::newRow("header too long") << QByteArray(">12345678901\nK\n") << false;
    QTest::newRow("sequence fits") << ">a\n" + QByteArray(20, 'K') << true;
    QTest::newRow("sequence too long") << ">a\n" + QByteArray(21, 'K') << false;
    QTest::newRow("sequence too long in lines") << ">a\n" + QByteArray("KK\n").repeated(11) << false;
    QTest::newRow("brackets too long") << ">a\n[" + QByteArray(30, 'K') + ']' << false;
}

void TestFasta::limitsAreKept()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, fits);
    const Outcome outcome = readAll(text, {.headerBytes = 10, .sequenceLetters = 20});
    QCOMPARE(!outcome.error.hasError(), fits);
    QCOMPARE(outcome.entries.size(), fits ? 1 : 0);
}

void TestFasta::inventedEntriesReadBackEqual()
{
    constexpr unsigned kSeed = 20240310;
    std::mt19937 random(kSeed);
    const auto below = [&](int bound) { return int(random() % unsigned(bound)); };
    for (int round = 0; round < 100; ++round) {
        QList<FastaEntry> entries;
        qsizetype line = 1;
        for (int i = below(6); i > 0; --i) {
            FastaEntry entry;
            entry.name = u"P%1µ"_s.arg(i);
            entry.description = below(2) ? u"some words OS=Homo sapiens"_s : QString();
            for (int letters = 1 + below(200); letters > 0; --letters)
                entry.sequence += below(30) ? QString(QChar(u'A' + below(26))) : u"[5mC%1]"_s.arg(below(999));
            entries.append(entry);
        }
        const QByteArray text = Fasta::toText(entries);
        const QList<QByteArray> lines = text.split('\n');
        for (FastaEntry &entry : entries) {
            while (!lines.at(line - 1).startsWith('>'))
                ++line;
            entry.line = line++;
        }
        const Outcome outcome = readAll(text);
        ORV_VERIFY_OK(outcome.error);
        QVERIFY2(outcome.entries == entries, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestFasta::linesHaveSixtyLetters()
{
    FastaEntry entry;
    entry.name = u"a\nb"_s;
    entry.description = u"c\r\n>d"_s;
    entry.sequence = QString(130, u'K');
    QCOMPARE(Fasta::toText({entry}), ">a b c >d\n" + QByteArray(60, 'K') + '\n' + QByteArray(60, 'K') + '\n' +
                                         QByteArray(10, 'K') + '\n');
    QCOMPARE(Fasta::toText({}), QByteArray());
}

void TestFasta::filesAreWrittenAndReadBack()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"proteins.fasta"_s);
    const Result<QList<FastaEntry>> antibody =
        Fasta::readFile(TestData::path(u"chemistry/trastuzumab_HC_LC.fasta"_s));
    ORV_VERIFY_OK(antibody);
    ORV_VERIFY_OK(Fasta::writeFile(path, *antibody));
    const Result<QList<FastaEntry>> back = Fasta::readFile(path);
    ORV_VERIFY_OK(back);
    QCOMPARE(*back, *antibody);
}

void TestFasta::filesThatCannotBeReadAreTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("code");
    QTest::newRow("zero bytes") << QByteArray() << static_cast<int>(ErrorCode::InvalidContent);
    QTest::newRow("header without sequence")
        << QByteArray(">a\n") << static_cast<int>(ErrorCode::InvalidContent);
    QTest::newRow("no FASTA") << QByteArray("PK\x03\x04") << static_cast<int>(ErrorCode::InvalidContent);
    QTest::newRow("missing") << QByteArray("-") << static_cast<int>(ErrorCode::CannotOpenFile);
}

void TestFasta::filesThatCannotBeReadAreTold()
{
    QFETCH(QByteArray, text);
    QFETCH(int, code);
    QTemporaryDir folder;
    const QString path = folder.filePath(u"odd.fasta"_s);
    if (text != "-") {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    const Result<QList<FastaEntry>> entries = Fasta::readFile(path);
    QVERIFY(entries.hasError());
    QCOMPARE(static_cast<int>(entries.error().code()), code);
    QVERIFY((entries.error().errorMessages() + entries.error().details()).join(u' ').contains(path));
}

void TestFasta::aFileThatCannotBeWrittenIsTold()
{
    QTemporaryDir folder;
    const Error error = Fasta::writeFile(folder.filePath(u"none/proteins.fasta"_s), {});
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QVERIFY(!error.details().isEmpty());
}

void TestFasta::modifiedNucleotidesHaveAFormula()
{
    const Result<QList<FastaEntry>> entries =
        Fasta::readFile(TestData::path(u"chemistry/let7_oligo.fasta"_s));
    ORV_VERIFY_OK(entries);
    QCOMPARE(entries->at(2).sequence, u"UGAGGUAGUAGGUUGUAUAG[Um]"_s);
    const auto formulaOf = [&](int index) {
        return ChemicalFactory::defaultFactory().formula(entries->at(index).sequence, ChainType::Rna);
    };
    ORV_VERIFY_OK(formulaOf(0));
    ORV_VERIFY_OK(formulaOf(2));
    // One methyl group more.
    QCOMPARE((*formulaOf(2) - *formulaOf(0)).toString(), u"CH2"_s);
}

ORV_REGISTER_TEST(TestFasta)
#include "TestFasta.moc"
