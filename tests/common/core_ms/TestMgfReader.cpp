#include "OrvTest.h"
#include "TestData.h"

#include <orv/core_ms/MgfReader.h>

#include <QBuffer>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace {

struct Outcome
{
    QList<MgfQuery> queries;
    Error error;

    [[nodiscard]] QList<int> levels() const
    {
        QList<int> list;
        for (const MgfQuery &query : queries)
            list.append(query.msLevel);
        return list;
    }
};

Outcome readAll(QIODevice *device, const MgfReader::Limits &limits = {})
{
    MgfReader reader(device, limits);
    Outcome outcome;
    for (;;) {
        const Result<std::optional<MgfQuery>> query = reader.next();
        if (query.hasError()) {
            outcome.error = query.error();
            return outcome;
        }
        if (!query->has_value())
            return outcome;
        outcome.queries.append(**query);
    }
}

Outcome readAll(const QByteArray &text, const MgfReader::Limits &limits = {})
{
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly);
    return readAll(&device, limits);
}

QByteArray query(const QByteArray &settings)
{
    return "BEGIN IONS\n" + settings + "100.5 20\nEND IONS\n";
}

/// Gives its bytes a few at a time, and fails behind the last one if it is told to.
class SlowDevice : public QIODevice
{
public:
    SlowDevice(QByteArray bytes, qint64 piece, bool fails)
        : m_bytes(std::move(bytes))
        , m_piece(piece)
        , m_fails(fails)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return m_bytes.isEmpty() && !m_fails; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = qMin(size, qMin<qint64>(m_piece, m_bytes.size()));
        if (count == 0) {
            setErrorString(u"the disk is gone"_s);
            return -1;
        }
        std::copy_n(m_bytes.constData(), count, data);
        m_bytes.remove(0, count);
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_piece;
    bool m_fails;
};

} // namespace

class TestMgfReader : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void levelsAreTold_data();
    void levelsAreTold();
    void queriesAreDescribed();
    void onlyPeaksAreCounted();
    void aByteOrderMarkIsPassedOver();
    void linesEndInManyWays_data();
    void linesEndInManyWays();
    void filesOfOthersAreRead_data();
    void filesOfOthersAreRead();
    void malformedTextIsRefusedWithItsLine_data();
    void malformedTextIsRefusedWithItsLine();
    void longLinesAreRefused();
    void piecesMakeNoDifference();
    void aDeviceThatFailsIsReported();
    void aFailureIsGivenAgain();
};

void TestMgfReader::levelsAreTold_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("level");
    QTest::newRow("no precursor") << "TITLE=a\nRTINSECONDS=3\n"_ba << 1;
    QTest::newRow("nothing") << ""_ba << 1;
    QTest::newRow("precursor") << "PEPMASS=500.2\n"_ba << 2;
    QTest::newRow("precursor with intensity and charge") << "PEPMASS=500.2 1234 2+\n"_ba << 2;
    QTest::newRow("precursor of unknown mass") << "PEPMASS=0.0\n"_ba << 2;
    QTest::newRow("precursor in small letters") << "pepmass = 500.2\n"_ba << 2;
    QTest::newRow("precursor by another key") << "PRECURSOR_MZ=238.0844\n"_ba << 2;
    QTest::newRow("precursor by a third key") << "PrecursorMZ=238.0844\n"_ba << 2;
    QTest::newRow("precursor left empty") << "PEPMASS=\n"_ba << 1;
    QTest::newRow("precursor that is none") << "PEPMASS=None\n"_ba << 1;
    QTest::newRow("charge alone") << "CHARGE=2+\n"_ba << 1;
    QTest::newRow("marked as level 1") << "MSLEVEL=1\n"_ba << 1;
    QTest::newRow("marked as level 1 with a precursor") << "PEPMASS=500.2\nMSLEVEL=1\n"_ba << 1;
    QTest::newRow("marked as level 1 before the precursor") << "MS_LEVEL=1\nPEPMASS=500.2\n"_ba << 1;
    QTest::newRow("marked as level 2 without precursor") << "MSLEVEL=2\n"_ba << 2;
    QTest::newRow("marked as level 3") << "ms_level=3\nPEPMASS=500.2\n"_ba << 3;
    QTest::newRow("marked as no level") << "MSLEVEL=0\nPEPMASS=500.2\n"_ba << 2;
    QTest::newRow("marked by words") << "MSLEVEL=one\n"_ba << 1;
    QTest::newRow("marked beyond all levels") << "MSLEVEL=99999999999\n"_ba << 1;
    QTest::newRow("a longer key") << "PEPMASSES=3\n"_ba << 1;
}

void TestMgfReader::levelsAreTold()
{
    QFETCH(QByteArray, settings);
    QFETCH(int, level);
    const Outcome outcome = readAll(query(settings));
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.levels(), QList{level});
}

void TestMgfReader::queriesAreDescribed()
{
    const Outcome outcome = readAll("COM=a comment\nPEPMASS=1\n\n begin ions \nTITLE=Größe = 3\nPEPMASS=2\n"
                                    "1 2\n3\t4\n5.5e2\n END IONS\nBEGIN IONS\nEND IONS"_ba);
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.queries, (QList<MgfQuery>{{u"Größe = 3"_s, 2, 3, 4}, {QString(), 1, 0, 11}}));
}

void TestMgfReader::onlyPeaksAreCounted()
{
    const Outcome outcome =
        readAll("BEGIN IONS\n# comment\nCORRUPT\n\n-\n.\n1abc\n2+\n12=13\n+7.5 1\n.5\n-3 4\nnan\n"
                "END IONS\n100 200\n"_ba);
    ORV_VERIFY_OK(outcome.error);
    // The last number stands outside, and words that mean numbers to some aren't peaks to anyone.
    QCOMPARE(outcome.queries.size(), 1);
    QCOMPARE(outcome.queries.first().peaks, 3);
}

void TestMgfReader::aByteOrderMarkIsPassedOver()
{
    const QByteArray text = "\xEF\xBB\xBF" + query("PEPMASS=500\n");
    for (const qint64 piece : {1, 2, 3, 1000}) {
        SlowDevice device(text, piece, false);
        const Outcome outcome = readAll(&device);
        ORV_VERIFY_OK(outcome.error);
        QCOMPARE(outcome.levels(), QList<int>{2});
    }
    // Elsewhere it is no part of a keyword.
    QVERIFY(readAll("\n" + text).error.hasError());
}

void TestMgfReader::linesEndInManyWays_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("line feed") << query("PEPMASS=1\n");
    QTest::newRow("both") << query("PEPMASS=1\n").replace("\n", "\r\n");
    QTest::newRow("none at the end") << query("PEPMASS=1\n").chopped(1);
    QTest::newRow("byte order mark before a comment") << "\xEF\xBB\xBF# x\n" + query("PEPMASS=1\n");
}

void TestMgfReader::linesEndInManyWays()
{
    QFETCH(QByteArray, text);
    const Outcome outcome = readAll(text);
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.levels(), QList{2});
    QCOMPARE(outcome.queries.first().peaks, 1);
}

void TestMgfReader::filesOfOthersAreRead_data()
{
    QTest::addColumn<int>("ms1");
    QTest::addColumn<int>("ms2");
    QTest::newRow("matchms_testdata.mgf") << 0 << 30;
    QTest::newRow("mixed_ms1_ms2.mgf") << 1 << 2;
    QTest::newRow("ms1_no_pepmass.mgf") << 6 << 0;
    QTest::newRow("pyteomics_test.mgf") << 0 << 2;
    QTest::newRow("save_as_msp_from_mgf.mgf") << 0 << 1;
}

void TestMgfReader::filesOfOthersAreRead()
{
    QFETCH(int, ms1);
    QFETCH(int, ms2);
    QFile file(TestData::path(u"core_ms/ms/"_s + QString::fromLatin1(QTest::currentDataTag())));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Outcome outcome = readAll(&file);
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.levels().count(1), ms1);
    QCOMPARE(outcome.levels().count(2), ms2);
    for (const MgfQuery &query : outcome.queries)
        QVERIFY(query.peaks > 0);
}

void TestMgfReader::malformedTextIsRefusedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("whole");
    QTest::addColumn<QString>("place");
    QTest::newRow("cut short") << query("") + "BEGIN IONS\nPEPMASS=3\n1 2" << 1
                               << u"Line 6: The text ends inside the query that begins in line 4."_s;
    QTest::newRow("begins twice") << "BEGIN IONS\n1 2\nBEGIN IONS\n1 2\nEND IONS\n"_ba << 0
                                  << u"Line 3: A query begins before the one of line 1 has ended."_s;
    QTest::newRow("ends twice") << query("") + "END IONS\n"
                                << 1 << u"Line 4: A query ends that has not begun."_s;
}

void TestMgfReader::malformedTextIsRefusedWithItsLine()
{
    QFETCH(QByteArray, text);
    QFETCH(int, whole);
    QFETCH(QString, place);
    const Outcome outcome = readAll(text);
    QCOMPARE(outcome.error.code(), ErrorCode::InvalidContent);
    QCOMPARE(outcome.queries.size(), whole);
    QCOMPARE(outcome.error.details().first(), place);
    QCOMPARE(outcome.error.details().size(), 2);
}

void TestMgfReader::longLinesAreRefused()
{
    const MgfReader::Limits limits{.lineBytes = 20};
    ORV_VERIFY_OK(readAll(query("TITLE=" + QByteArray(14, 'x') + '\n'), limits).error);
    const Outcome outcome = readAll(query("TITLE=" + QByteArray(15, 'x') + '\n'), limits);
    QCOMPARE(outcome.error.details().first(), u"Line 2: A line is longer than 20 bytes."_s);
    QCOMPARE(readAll(QByteArray(3 << 20, '\0')).error.code(), ErrorCode::InvalidContent);
}

void TestMgfReader::piecesMakeNoDifference()
{
    const QByteArray text = TestData::read(TestData::path(u"core_ms/ms/mixed_ms1_ms2.mgf"_s));
    const QList<MgfQuery> whole = readAll(text).queries;
    QCOMPARE(whole.size(), 3);
    for (qint64 piece : {1, 2, 3, 7, 64, 1000}) {
        SlowDevice device(text, piece, false);
        const Outcome outcome = readAll(&device);
        ORV_VERIFY_OK(outcome.error);
        QCOMPARE(outcome.queries, whole);
    }
}

void TestMgfReader::aDeviceThatFailsIsReported()
{
    SlowDevice device(query("") + "BEGIN IONS\n1", 5, true);
    const Outcome outcome = readAll(&device);
    QCOMPARE(outcome.queries.size(), 1);
    QCOMPARE(outcome.error.code(), ErrorCode::CannotOpenFile);
    QVERIFY(outcome.error.details().first().contains(u"the disk is gone"_s));
}

void TestMgfReader::aFailureIsGivenAgain()
{
    QBuffer device;
    device.setData("END IONS\n" + query(""));
    device.open(QIODevice::ReadOnly);
    MgfReader reader(&device);
    const Error first = reader.next().error();
    QVERIFY(first.hasError());
    QCOMPARE(reader.next().error().details(), first.details());
}

ORV_REGISTER_TEST(TestMgfReader)

#include "TestMgfReader.moc"
