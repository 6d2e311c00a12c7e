#include "OrvTest.h"

#include <orv/core/Decimal.h>

#include <limits>

using namespace orv;
using namespace Qt::StringLiterals;

class TestDecimal : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneIsZero();
    void doublesAreRounded_data();
    void doublesAreRounded();
    void doublesThatDoNotFitAreNoDecimal_data();
    void doublesThatDoNotFitAreNoDecimal();
    void textsAreParsed_data();
    void textsAreParsed();
    void otherTextsAreRefused_data();
    void otherTextsAreRefused();
    void numbersAreComparedNotTexts_data();
    void numbersAreComparedNotTexts();
};

void TestDecimal::aDefaultOneIsZero()
{
    const Decimal decimal;
    QCOMPARE(decimal.toString(), u"0"_s);
    QCOMPARE(decimal.decimals(), 0);
    QCOMPARE(std::optional(decimal), Decimal::fromDouble(0.0, 2));
}

void TestDecimal::doublesAreRounded_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, double value, int decimals, const QString &text) {
        QTest::newRow(name) << value << decimals << text;
    };
    row("whole", 1.0, 2, u"1.00"_s);
    row("no decimals", 7.4, 0, u"7"_s);
    row("half up", 0.5, 0, u"1"_s);
    row("negative half away from zero", -0.5, 0, u"-1"_s);
    row("half of a binary fraction", 0.125, 2, u"0.13"_s);
    row("negative half of a binary fraction", -0.125, 2, u"-0.13"_s);
    row("below half", 0.124, 2, u"0.12"_s);
    row("negative that rounds to zero has no sign", -0.001, 2, u"0.00"_s);
    row("negative zero", -0.0, 1, u"0.0"_s);
    row("negative below one keeps its sign", -0.25, 2, u"-0.25"_s);
    row("leading zeros of the fraction", 3.007, 3, u"3.007"_s);
    row("nine decimals", 1.123456789, 9, u"1.123456789"_s);
    row("more than nine decimals are clamped", 1.5, 12, u"1.500000000"_s);
    row("negative count is clamped", 1.6, -3, u"2"_s);
    row("large", 123456789012.0, 2, u"123456789012.00"_s);
    row("18 digits", 8.9e17, 0, u"890000000000000000"_s);
    row("denormal", 5e-324, 9, u"0.000000000"_s);
}

void TestDecimal::doublesAreRounded()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    const std::optional<Decimal> decimal = Decimal::fromDouble(value, decimals);
    QVERIFY(decimal);
    QTEST(decimal->toString(), "text");
    QVERIFY(Decimal::fromString(decimal->toString()) == decimal);
}

void TestDecimal::doublesThatDoNotFitAreNoDecimal_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::newRow("19 digits") << 1e18 << 0;
    QTest::newRow("rounded up to 19 digits") << 999999999999999999.0 << 0;
    QTest::newRow("too large for its decimals") << 1e12 << 9;
    QTest::newRow("huge") << 1e308 << 9;
    QTest::newRow("huge negative") << -1e308 << 1;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 2;
    QTest::newRow("negative infinite") << -std::numeric_limits<double>::infinity() << 2;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 2;
}

void TestDecimal::doublesThatDoNotFitAreNoDecimal()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QVERIFY(!Decimal::fromDouble(value, decimals));
}

void TestDecimal::textsAreParsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("decimals");

    QTest::newRow("whole") << u"12"_s << 12.0 << 0;
    QTest::newRow("zero") << u"0.00"_s << 0.0 << 2;
    QTest::newRow("negative") << u"-12.50"_s << -12.5 << 2;
    QTest::newRow("negative below one") << u"-0.5"_s << -0.5 << 1;
    QTest::newRow("nine decimals") << u"0.000000001"_s << 1e-9 << 9;
    QTest::newRow("18 digits") << u"123456789.123456789"_s << 123456789.123456789 << 9;
    QTest::newRow("18 digits before the point") << u"999999999999999999"_s << 999999999999999999.0 << 0;
}

void TestDecimal::textsAreParsed()
{
    QFETCH(QString, text);
    const std::optional<Decimal> decimal = Decimal::fromString(text);
    QVERIFY(decimal.has_value());
    QCOMPARE(decimal->toString(), text);
    QTEST(decimal->toDouble(), "number");
    QTEST(decimal->decimals(), "decimals");
}

void TestDecimal::otherTextsAreRefused_data()
{
    QTest::addColumn<QString>("text");

    const QStringList texts = {u""_s,
                               u"-"_s,
                               u"."_s,
                               u"-."_s,
                               u"1."_s,
                               u"1.2.3"_s,
                               u"1..2"_s,
                               u"--1"_s,
                               u"+1"_s,
                               u"1-"_s,
                               u" 1"_s,
                               u"1 "_s,
                               u"1,5"_s,
                               u"1e3"_s,
                               u"0x10"_s,
                               u"NaN"_s,
                               u"inf"_s,
                               u"12a"_s,
                               u"a12"_s,
                               u"1 000"_s,
                               u"\u0661"_s,
                               u"\uFF11"_s,
                               u"0.0000000001"_s,
                               u"1234567890123456789"_s,
                               u"0.1234567890"_s};
    for (const QString &text : texts)
        QTest::addRow("\"%s\"", qPrintable(text)) << text;
    QTest::newRow("null character") << QString(QChar(u'\0'));
}

void TestDecimal::otherTextsAreRefused()
{
    QFETCH(QString, text);
    QVERIFY(!Decimal::fromString(text));
}

void TestDecimal::numbersAreComparedNotTexts_data()
{
    QTest::addColumn<QString>("smaller");
    QTest::addColumn<QString>("larger");
    QTest::addColumn<bool>("equal");

    const auto row = [](const QString &a, const QString &b, bool equal) {
        QTest::addRow("%s and %s", qPrintable(a), qPrintable(b)) << a << b << equal;
    };
    row(u"1.0"_s, u"1.00"_s, true);
    row(u"0"_s, u"-0.000"_s, true);
    row(u"-2.5"_s, u"-2.500000000"_s, true);
    row(u"9"_s, u"10"_s, false);
    row(u"1.05"_s, u"1.5"_s, false);
    row(u"-1.5"_s, u"-1.05"_s, false);
    row(u"-0.5"_s, u"0.25"_s, false);
    row(u"-0.1"_s, u"0"_s, false);
    row(u"-1"_s, u"1"_s, false);
    row(u"999999999999999998"_s, u"999999999999999999"_s, false);
    row(u"0.999999999"_s, u"999999999999999999"_s, false);
    row(u"-999999999999999999"_s, u"-0.999999999"_s, false);
}

void TestDecimal::numbersAreComparedNotTexts()
{
    QFETCH(QString, smaller);
    QFETCH(QString, larger);
    QFETCH(bool, equal);
    const Decimal a = *Decimal::fromString(smaller);
    const Decimal b = *Decimal::fromString(larger);
    QCOMPARE(a == b, equal);
    QCOMPARE(b == a, equal);
    QCOMPARE(a < b, !equal);
    QVERIFY(!(b < a));
    QCOMPARE(compare(a, b) < 0, !equal);
    QCOMPARE(compare(b, a) > 0, !equal);
}

ORV_REGISTER_TEST(TestDecimal)

#include "TestDecimal.moc"
