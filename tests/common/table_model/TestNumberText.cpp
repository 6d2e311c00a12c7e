#include "OrvTest.h"

#include <orv/table_model/NumberText.h>

using namespace orv;
using namespace Qt::StringLiterals;
using NumberText::DecimalSign;

Q_DECLARE_METATYPE(orv::NumberText::DecimalSign)

class TestNumberText : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void typedNumbersAreKeptWithTheirDigits_data();
    void typedNumbersAreKeptWithTheirDigits();
    void whatIsNoNumberIsNotGuessed_data();
    void whatIsNoNumberIsNotGuessed();
    void aCommaThatMayPartThousandsIsTold();
    void digitsAreShownAsTheyAreKept();
    void valuesAreThoseOfTheKeptForm();
    void numbersAreWrittenToBeRead();
    void localesTellTheirSign();
};

void TestNumberText::typedNumbersAreKeptWithTheirDigits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<DecimalSign>("sign");
    QTest::addColumn<QString>("kept");
    const auto row = [](const QString &typed, DecimalSign sign, const QString &kept) {
        QTest::newRow(qPrintable(typed + (sign == DecimalSign::Comma ? u" comma"_s : u" point"_s)))
            << typed << sign << kept;
    };
    const auto both = [&](const QString &typed, const QString &kept) {
        row(typed, DecimalSign::Point, kept);
        row(typed, DecimalSign::Comma, kept);
    };
    both(u"1.50"_s, u"1.50"_s);
    both(u" 12 "_s, u"12"_s);
    both(u"+7"_s, u"7"_s);
    both(u"\u2212 3"_s.remove(u' '), u"-3"_s);
    both(u"0,435"_s, u"0.435"_s);
    both(u"0,5"_s, u"0.5"_s);
    both(u"12,25"_s, u"12.25"_s);
    both(u"445.120"_s, u"445.120"_s);
    both(u"1,234.5"_s, u"1234.5"_s);
    both(u"1.234,5"_s, u"1234.5"_s);
    both(u"1,234,567"_s, u"1234567"_s);
    both(u"1.234.567"_s, u"1234567"_s);
    both(u"1 234 567,25"_s, u"1234567.25"_s);
    both(u"1\u202F234"_s, u"1234"_s);
    both(u"1'234.5"_s, u"1234.5"_s);
    both(u"1e-5"_s, u"1e-5"_s);
    both(u"1,5E3"_s, u"1.5E3"_s);
    both(u".5"_s, u".5"_s);
    row(u"1,234"_s, DecimalSign::Comma, u"1.234"_s);
    row(u"445,120"_s, DecimalSign::Comma, u"445.120"_s);
    row(u"-1,5"_s, DecimalSign::Comma, u"-1.5"_s);
}

void TestNumberText::typedNumbersAreKeptWithTheirDigits()
{
    QFETCH(QString, typed);
    QFETCH(DecimalSign, sign);
    QFETCH(QString, kept);
    QCOMPARE(NumberText::canonical(typed, sign), std::optional(kept));
}

void TestNumberText::whatIsNoNumberIsNotGuessed_data()
{
    QTest::addColumn<QString>("typed");
    for (const QString &typed :
         {u""_s, u"-"_s, u"."_s, u"abc"_s, u"1.2.3"_s, u"1,23,4"_s, u"12,34.5"_s, u"1e"_s, u"nan"_s, u"inf"_s,
          u"0x1A"_s, u"1 2"_s, u"--1"_s, u"1,234"_s, u"5 %"_s, u"0,123,456"_s, u"1..5"_s})
        QTest::newRow(qPrintable(u'"' + typed + u'"')) << typed;
}

void TestNumberText::whatIsNoNumberIsNotGuessed()
{
    QFETCH(QString, typed);
    QCOMPARE(NumberText::canonical(typed, DecimalSign::Point), std::nullopt);
}

void TestNumberText::aCommaThatMayPartThousandsIsTold()
{
    QVERIFY(NumberText::isAmbiguous(u"1,234"));
    QVERIFY(NumberText::isAmbiguous(u"-12,345"));
    QVERIFY(!NumberText::isAmbiguous(u"0,435"));
    QVERIFY(!NumberText::isAmbiguous(u"1,23"));
    QVERIFY(!NumberText::isAmbiguous(u"1,234.5"));
}

void TestNumberText::digitsAreShownAsTheyAreKept()
{
    QCOMPARE(NumberText::shown(u"1.50", DecimalSign::Comma), u"1,50"_s);
    QCOMPARE(NumberText::shown(u"1.50", DecimalSign::Point), u"1.50"_s);
    QCOMPARE(NumberText::shown(u"v1.50", DecimalSign::Comma), u"v1.50"_s);
}

void TestNumberText::valuesAreThoseOfTheKeptForm()
{
    QCOMPARE(NumberText::value(u"1.50"), std::optional(1.5));
    QCOMPARE(NumberText::value(u"-2e3"), std::optional(-2000.0));
    QCOMPARE(NumberText::value(u"1,5"), std::nullopt);
    QCOMPARE(NumberText::value(u"1e999"), std::nullopt);
    QCOMPARE(NumberText::value(u"nan"), std::nullopt);
}

void TestNumberText::numbersAreWrittenToBeRead()
{
    QCOMPARE(NumberText::fromDouble(200000), u"200000"_s);
    QCOMPARE(NumberText::fromDouble(-0.1), u"-0.1"_s);
    QCOMPARE(NumberText::fromDouble(0), u"0"_s);
    QCOMPARE(NumberText::fromDouble(524.265), u"524.265"_s);
    QCOMPARE(NumberText::fromDouble(1e22), u"1e+22"_s);
    QCOMPARE(NumberText::fromDouble(2.5e-9), u"2.5e-09"_s);
    QVERIFY(NumberText::isCanonical(NumberText::fromDouble(1e22)));
}

void TestNumberText::localesTellTheirSign()
{
    QCOMPARE(NumberText::signOf(QLocale(u"de_DE"_s)), DecimalSign::Comma);
    QCOMPARE(NumberText::signOf(QLocale(u"en_US"_s)), DecimalSign::Point);
    QCOMPARE(NumberText::signOf(QLocale(u"de_CH"_s)), DecimalSign::Point);
    QCOMPARE(NumberText::signOf(QLocale::c()), DecimalSign::Point);
}

ORV_REGISTER_TEST(TestNumberText)

#include "TestNumberText.moc"
