#include "OrvTest.h"

#include <orv/core_ms/MsDataFormat.h>

#include <QMetaEnum>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

class TestMsDataFormat : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAndTextsStand_data();
    void numbersAndTextsStand();
    void everyEnumeratorHasAText();
    void textsAreReadInAnyCase();
    void otherTextsAreRefused_data();
    void otherTextsAreRefused();
    void anUnknownNumberHasNoText();
};

void TestMsDataFormat::numbersAndTextsStand_data()
{
    QTest::addColumn<int>("number");
    const char *const texts[] = {"Unknown",
                                 "Testing",
                                 "Ulvar2",
                                 "BrukerFID",
                                 "BrukerYEP",
                                 "BrukerBAF",
                                 "BrukerU2",
                                 "BrukerBAF_and_U2",
                                 "BrukerTims",
                                 "BrukerTsf",
                                 "AgilentAcqData",
                                 "Mobilion",
                                 "Waters",
                                 "Shimadzu",
                                 "SciexWiff",
                                 "SciexWiff2",
                                 "MsFaux",
                                 "MsFaux2",
                                 "Thermo",
                                 "Mgf",
                                 "Mzml",
                                 "Mzxml",
                                 "Tolq",
                                 "DataCut",
                                 "DataCutEmbedded",
                                 "Csv2d"};
    for (int number = 0; number < int(std::size(texts)); ++number)
        QTest::newRow(texts[number]) << number;
}

void TestMsDataFormat::numbersAndTextsStand()
{
    QFETCH(int, number);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(vendorDataFormatToString(VendorDataFormat(number)), text);
    const Result<VendorDataFormat> format = vendorDataFormatFromString(text);
    ORV_VERIFY_OK(format);
    QCOMPARE(int(*format), number);
    QCOMPARE(QString::fromLatin1(QMetaEnum::fromType<VendorDataFormat>().valueToKey(number)), text);
}

void TestMsDataFormat::everyEnumeratorHasAText()
{
    const QMetaEnum formats = QMetaEnum::fromType<VendorDataFormat>();
    QCOMPARE(formats.keyCount(), 26);
    for (int i = 0; i < formats.keyCount(); ++i)
        QVERIFY(!vendorDataFormatToString(VendorDataFormat(formats.value(i))).isEmpty());
}

void TestMsDataFormat::textsAreReadInAnyCase()
{
    for (const QString &text : {u"brukerbaf_AND_u2"_s, u"BRUKERBAF_AND_U2"_s}) {
        const Result<VendorDataFormat> format = vendorDataFormatFromString(text);
        ORV_VERIFY_OK(format);
        QCOMPARE(*format, VendorDataFormat::BrukerBAF_and_U2);
    }
}

void TestMsDataFormat::otherTextsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("with a blank") << u"Thermo "_s;
    QTest::newRow("a part") << u"Bruker"_s;
    QTest::newRow("a number") << u"18"_s;
}

void TestMsDataFormat::otherTextsAreRefused()
{
    QFETCH(QString, text);
    const Result<VendorDataFormat> format = vendorDataFormatFromString(text);
    QVERIFY(format.hasError());
    QCOMPARE(format.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(format.error().errorMessage(),
             u"Could not find match for converting vendor data format to string: "_s + text);
}

void TestMsDataFormat::anUnknownNumberHasNoText()
{
    QCOMPARE(vendorDataFormatToString(VendorDataFormat(26)), QString());
    QCOMPARE(vendorDataFormatToString(VendorDataFormat(-1)), QString());
}

ORV_REGISTER_TEST(TestMsDataFormat)

#include "TestMsDataFormat.moc"
