#include "OrvTest.h"
#include "TestData.h"

#include <orv/chemistry/InsilicoPeptidesCsvReader.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestInsilicoPeptidesCsvReader : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFileOfAnotherProgramIsRead();
    void columnsAreFoundByTheirHeader_data();
    void columnsAreFoundByTheirHeader();
    void fieldsOfAllKindsAreRead();
    void odditiesAreWarnedOf_data();
    void odditiesAreWarnedOf();
    void badFilesAreRefusedWithTheirLine_data();
    void badFilesAreRefusedWithTheirLine();
    void aMissingFileIsTold();
    void rowsAreAppendedAndAllTargetsMayBeNull();

private:
    QString written(const QByteArray &text)
    {
        const QString path = m_folder.filePath(u"peptides %1.csv"_s.arg(++m_files));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("can't write the test's file");
        return path;
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};

void TestInsilicoPeptidesCsvReader::aFileOfAnotherProgramIsRead()
{
    QList<InsilicoPeptide> peptides;
    QString warnings;
    QString errors;
    ORV_VERIFY_OK(InsilicoPeptidesCsvReader(TestData::path(u"chemistry/bsa_trypsin_digest.csv"_s))
                      .readAll(&peptides, &warnings, &errors));
    QCOMPARE(warnings + errors, QString());
    QCOMPARE(peptides.size(), 130);
    const InsilicoPeptide &first = peptides.constFirst();
    QCOMPARE(first.sequence, u"MKWVTFISLLLLFSSAYSR"_s);
    QCOMPARE(first.protein, u"bsa"_s);
    QCOMPARE(first.massDa, 2261.22823);
    QCOMPARE(first.otherFields.value(u"missed_cleavages"_s), u"1"_s);
    QCOMPARE(first.line, 2);
}

void TestInsilicoPeptidesCsvReader::columnsAreFoundByTheirHeader_data()
{
    QTest::addColumn<QByteArray>("header");
    for (const char *header :
         {"Sequence,Charge", "SEQ,z", "peptide,CHARGE", " S_equence ,charge", "\xEF\xBB\xBFsequence,z"})
        QTest::newRow(header) << QByteArray(header);
}

void TestInsilicoPeptidesCsvReader::columnsAreFoundByTheirHeader()
{
    QFETCH(QByteArray, header);
    QList<InsilicoPeptide> peptides;
    ORV_VERIFY_OK(InsilicoPeptidesCsvReader(written(header + "\r\npeptide,2\r\n"))
                      .readAll(&peptides, nullptr, nullptr));
    QCOMPARE(peptides.size(), 1);
    QCOMPARE(peptides.constFirst().sequence, u"PEPTIDE"_s);
    QCOMPARE(peptides.constFirst().charge, 2);
}

void TestInsilicoPeptidesCsvReader::fieldsOfAllKindsAreRead()
{
    QList<InsilicoPeptide> peptides;
    ORV_VERIFY_OK(
        InsilicoPeptidesCsvReader(written("RT,Mods,Sequence,Monoisotopic mass,Note,Sequence\n"
                                          "12.5,\"8|Oxidation, M\",PEPTIDE,799.36,good,second\n,,LK,,,\n"))
            .readAll(&peptides, nullptr, nullptr));
    InsilicoPeptide first;
    first.sequence = u"PEPTIDE"_s;
    first.modifications = u"8|Oxidation, M"_s;
    first.massDa = 799.36;
    first.retentionTimeMinutes = 12.5;
    first.otherFields = {{u"Note"_s, u"good"_s}, {u"Sequence"_s, u"second"_s}};
    first.line = 2;
    InsilicoPeptide second;
    second.sequence = u"LK"_s;
    second.line = 3;
    QCOMPARE(peptides, (QList<InsilicoPeptide>{first, second}));
}

void TestInsilicoPeptidesCsvReader::odditiesAreWarnedOf_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no rows") << QByteArray("Sequence\n") << u"no peptides"_s;
    QTest::newRow("wide row") << QByteArray("Sequence\nPEP,5\nTIDE\n") << u"1 rows have more fields"_s;
    QTest::newRow("row twice") << QByteArray("Sequence\nPEP\nTIDE\npep\n") << u"1 peptides stand twice"_s;
}

void TestInsilicoPeptidesCsvReader::odditiesAreWarnedOf()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, warning);
    QString warnings;
    ORV_VERIFY_OK(InsilicoPeptidesCsvReader(written(text)).readAll(nullptr, &warnings, nullptr));
    QVERIFY2(warnings.contains(warning), qPrintable(warnings));
}

void TestInsilicoPeptidesCsvReader::badFilesAreRefusedWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("place");
    QTest::newRow("empty") << QByteArray() << u"Line 1"_s;
    QTest::newRow("no sequences") << QByteArray("Name,Mass\na,5\n") << u"\"Sequence\""_s;
    QTest::newRow("sequence missing") << QByteArray("Sequence,z\nPEP,1\n,2\n") << u"Line 3"_s;
    QTest::newRow("no letters") << QByteArray("Sequence\nPEP[+16]\n") << u"Line 2"_s;
    QTest::newRow("charge in words") << QByteArray("Sequence,z\nPEP,two\n") << u"\"two\""_s;
    QTest::newRow("charge too high") << QByteArray("Sequence,z\nPEP,1001\n") << u"\"1001\""_s;
    QTest::newRow("mass in words") << QByteArray("Sequence,mass\nPEP,heavy\n") << u"\"heavy\""_s;
    QTest::newRow("negative time") << QByteArray("Sequence,RT\nPEP,-1\n") << u"\"-1\""_s;
    QTest::newRow("endless number") << QByteArray("Sequence,RT\nPEP,inf\n") << u"\"inf\""_s;
    QTest::newRow("open quote") << QByteArray("Sequence\nPEP\n\"TIDE\n") << u"ine 3"_s;
}

void TestInsilicoPeptidesCsvReader::badFilesAreRefusedWithTheirLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, place);
    QList<InsilicoPeptide> peptides;
    QString warnings;
    QString errors;
    const Error error = InsilicoPeptidesCsvReader(written(text)).readAll(&peptides, &warnings, &errors);
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY2(errors.contains(place), qPrintable(errors));
    QVERIFY(errors.contains(m_folder.path()));
    QVERIFY(peptides.isEmpty());
    QCOMPARE(warnings, QString());
}

void TestInsilicoPeptidesCsvReader::aMissingFileIsTold()
{
    QString errors;
    const Error error =
        InsilicoPeptidesCsvReader(m_folder.filePath(u"none.csv"_s)).readAll(nullptr, nullptr, &errors);
    QCOMPARE(error.code(), ErrorCode::CannotOpenFile);
    QVERIFY(errors.contains(u"none.csv"_s));
}

void TestInsilicoPeptidesCsvReader::rowsAreAppendedAndAllTargetsMayBeNull()
{
    QList<InsilicoPeptide> peptides(1);
    const QString path = written("Sequence\nPEP\n");
    ORV_VERIFY_OK(InsilicoPeptidesCsvReader(path).readAll(&peptides, nullptr, nullptr));
    QCOMPARE(peptides.size(), 2);
    ORV_VERIFY_OK(InsilicoPeptidesCsvReader(path).readAll(nullptr, nullptr, nullptr));
    QVERIFY(InsilicoPeptidesCsvReader(written("x\n")).readAll(nullptr, nullptr, nullptr).hasError());
}

ORV_REGISTER_TEST(TestInsilicoPeptidesCsvReader)
#include "TestInsilicoPeptidesCsvReader.moc"
