#include "OrvTest.h"

#include <orv/table_model/TableColumn.h>

using namespace orv;
using namespace Qt::StringLiterals;
using NumberText::DecimalSign;

namespace {

TableColumn columnOf(TableColumnKind kind)
{
    return {.name = u"c"_s, .title = u"Width"_s, .unit = u"ppm"_s, .kind = kind};
}

} // namespace

class TestTableColumn : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void headersCarryTheUnit();
    void headersOfOthersAreUnderstood();
    void problemsSayWhatIsAllowed_data();
    void problemsSayWhatIsAllowed();
    void emptyCellsAreAllowedUnlessRequired();
    void aRuleOfTheColumnComesLast();
    void keptFormsFollowTheKind();
    void helpSaysWhatMayStandThere_data();
    void helpSaysWhatMayStandThere();
};

void TestTableColumn::headersCarryTheUnit()
{
    QCOMPARE(columnOf(TableColumnKind::Number).header(), u"Width (ppm)"_s);
    TableColumn plain = columnOf(TableColumnKind::Number);
    plain.unit.clear();
    QCOMPARE(plain.header(), u"Width"_s);
}

void TestTableColumn::headersOfOthersAreUnderstood()
{
    const TableColumn column = columnOf(TableColumnKind::Number);
    for (const QString &header : {u"Width"_s, u" width "_s, u"WIDTH (PPM)"_s, u"Width [ppm]"_s, u"c"_s})
        QVERIFY2(column.isMeantBy(header), qPrintable(header));
    for (const QString &header : {u""_s, u"Wid"_s, u"ppm"_s, u"Width (Da)"_s})
        QVERIFY2(!column.isMeantBy(header), qPrintable(header));
}

void TestTableColumn::problemsSayWhatIsAllowed_data()
{
    QTest::addColumn<TableColumnKind>("kind");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("problem");
    using K = TableColumnKind;
    QTest::newRow("number") << K::Number << u"5.5"_s << QString();
    QTest::newRow("lowest") << K::Number << u"1"_s << QString();
    QTest::newRow("highest") << K::Number << u"10"_s << QString();
    QTest::newRow("too low") << K::Number << u"0.999"_s << u"Must lie between 1 and 10 ppm."_s;
    QTest::newRow("word") << K::Number << u"five"_s << u"Is not a number."_s;
    QTest::newRow("two readings") << K::Number << u"1,234"_s
                                  << u"May be 1234 or 1.234; write it without a sign between thousands."_s;
    QTest::newRow("fraction") << K::Integer << u"2.5"_s << u"Must be a whole number."_s;
    QTest::newRow("no integer") << K::Integer << u"x"_s << u"Is not a whole number."_s;
    QTest::newRow("choice") << K::Choice << u"HCD"_s << QString();
    QTest::newRow("other choice") << K::Choice << u"EThcD"_s << u"Is none of: CID, HCD."_s;
    QTest::newRow("sequence") << K::Sequence << u"PEPT(ox)IDE"_s << QString();
    QTest::newRow("odd letter") << K::Sequence << u"PEP?IDE"_s
                                << u"Position 4 holds \"?\", which no sequence has."_s;
    QTest::newRow("colour") << K::Color << u"#ff8800"_s << QString();
    QTest::newRow("no colour") << K::Color << u"reddish"_s << u"Is no colour; write it as #rrggbb."_s;
}

void TestTableColumn::problemsSayWhatIsAllowed()
{
    QFETCH(TableColumnKind, kind);
    QFETCH(QString, kept);
    TableColumn column = columnOf(kind);
    column.minimum = 1;
    column.maximum = 10;
    column.choices = {u"CID"_s, u"HCD"_s};
    QTEST(column.problem(kept), "problem");
}

void TestTableColumn::emptyCellsAreAllowedUnlessRequired()
{
    TableColumn column = columnOf(TableColumnKind::Number);
    QCOMPARE(column.problem({}), QString());
    column.isRequired = true;
    QCOMPARE(column.problem({}), u"Must not be empty."_s);
}

void TestTableColumn::aRuleOfTheColumnComesLast()
{
    TableColumn column = columnOf(TableColumnKind::Number);
    column.maximum = 3;
    column.check = [](QStringView text) { return text == u"2" ? u"Not two."_s : QString(); };
    QCOMPARE(column.problem(u"2"), u"Not two."_s);
    QCOMPARE(column.problem(u"4"), u"Must be at most 3 ppm."_s);
    QCOMPARE(column.problem(u"1"), QString());
}

void TestTableColumn::keptFormsFollowTheKind()
{
    TableColumn choice = columnOf(TableColumnKind::Choice);
    choice.choices = {u"HCD"_s};
    QCOMPARE(choice.kept(u" hcd ", DecimalSign::Point), u"HCD"_s);
    QCOMPARE(choice.kept(u" xyz ", DecimalSign::Point), u" xyz "_s);
    QCOMPARE(columnOf(TableColumnKind::Sequence).kept(u"pep tide\n", DecimalSign::Point), u"PEPTIDE"_s);
    QCOMPARE(columnOf(TableColumnKind::Sequence).kept(u"PEM(Oxidation)K", DecimalSign::Point),
             u"PEM(Oxidation)K"_s);
    QCOMPARE(columnOf(TableColumnKind::Number).kept(u"1,50", DecimalSign::Comma), u"1.50"_s);
    QCOMPARE(columnOf(TableColumnKind::Number).kept(u"about 2", DecimalSign::Comma), u"about 2"_s);
    QCOMPARE(columnOf(TableColumnKind::Text).kept(u" a ", DecimalSign::Comma), u" a "_s);
}

void TestTableColumn::helpSaysWhatMayStandThere_data()
{
    QTest::addColumn<TableColumnKind>("kind");
    QTest::addColumn<std::optional<double>>("lowest");
    QTest::addColumn<std::optional<double>>("highest");
    QTest::addColumn<QString>("help");
    using K = TableColumnKind;
    using Bound = std::optional<double>;
    QTest::newRow("text") << K::Text << Bound() << Bound() << QString();
    QTest::newRow("number") << K::Number << Bound() << Bound() << u"A number."_s;
    QTest::newRow("range") << K::Number << Bound(0.5) << Bound(9) << u"A number between 0.5 and 9 ppm."_s;
    QTest::newRow("lowest") << K::Integer << Bound(1) << Bound() << u"A whole number of at least 1 ppm."_s;
    QTest::newRow("highest") << K::Number << Bound() << Bound(9) << u"A number of at most 9 ppm."_s;
    QTest::newRow("choice") << K::Choice << Bound() << Bound() << u"One of: a, b."_s;
    QTest::newRow("colour") << K::Color << Bound() << Bound() << u"A colour, written as #rrggbb."_s;
}

void TestTableColumn::helpSaysWhatMayStandThere()
{
    QFETCH(TableColumnKind, kind);
    QFETCH(std::optional<double>, lowest);
    QFETCH(std::optional<double>, highest);
    QFETCH(QString, help);
    TableColumn column = columnOf(kind);
    column.choices = {u"a"_s, u"b"_s};
    column.minimum = lowest;
    column.maximum = highest;
    QCOMPARE(column.help(), help);
    column.explanation = u"How wide it is."_s;
    column.isRequired = true;
    column.isUnique = true;
    column.isReadOnly = true;
    const QString told = help.isEmpty() ? QString() : help + u' ';
    QCOMPARE(column.help(),
             u"How wide it is. "_s + told + u"Must not be empty. Must not repeat. Can't be changed."_s);
}

ORV_REGISTER_TEST(TestTableColumn)

#include "TestTableColumn.moc"
