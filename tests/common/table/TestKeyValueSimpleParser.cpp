#include "OrvTest.h"

#include <orv/table/KeyValueSimpleParser.h>

using namespace orv;
using namespace Qt::StringLiterals;

using Options = QHash<QString, QString>;

class TestKeyValueSimpleParser : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void textComesBackAsItWas_data();
    void textComesBackAsItWas();
    void optionsAreRead_data();
    void optionsAreRead();
    void newOptionsStandAtTheEnd_data();
    void newOptionsStandAtTheEnd();
    void knownOptionsAreReplacedInPlace();
    void aRepeatedOptionIsLeftOnce();
    void aLineBreakInAValueMakesNoLine();
    void optionsAreRemoved();
    void whatIsAddedCanBeRemoved();
};

void TestKeyValueSimpleParser::textComesBackAsItWas_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a line feed") << u"\n"_s;
    QTest::newRow("no line feed at the end") << u"a=1\nb = 2"_s;
    QTest::newRow("a line feed at the end") << u"a=1\nOxidation / +15.994915 @ M | common1\n"_s;
    QTest::newRow("empty lines") << u"\n\na=1\n\n\n"_s;
    QTest::newRow("line breaks of Windows") << u"a=1\r\nb=2\r\n"_s;
}

void TestKeyValueSimpleParser::textComesBackAsItWas()
{
    QFETCH(const QString, text);
    QCOMPARE(KeyValueSimpleParser(text).toString(), text);
}

void TestKeyValueSimpleParser::optionsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Options>("options");
    QTest::newRow("nothing") << QString() << Options();
    QTest::newRow("two") << u"a=1\nb=x y"_s << Options{{u"a"_s, u"1"_s}, {u"b"_s, u"x y"_s}};
    QTest::newRow("an empty value") << u"a="_s << Options{{u"a"_s, QString()}};
    QTest::newRow("the first equals sign divides") << u"a=b=c"_s << Options{{u"a"_s, u"b=c"_s}};
    QTest::newRow("blanks around the key") << u" \ta =1"_s << Options{{u"a"_s, u"1"_s}};
    QTest::newRow("blanks of the value") << u"a= 1 "_s << Options{{u"a"_s, u" 1 "_s}};
    QTest::newRow("the last of two") << u"a=1\na=2"_s << Options{{u"a"_s, u"2"_s}};
    QTest::newRow("case counts") << u"a=1\nA=2"_s << Options{{u"a"_s, u"1"_s}, {u"A"_s, u"2"_s}};
    QTest::newRow("line breaks of Windows") << u"a=1\r\n"_s << Options{{u"a"_s, u"1"_s}};
    QTest::newRow("a comment") << u"% a=1"_s << Options();
    QTest::newRow("a modification") << u"Label:13C(6) / +6.020129 @ K=R"_s << Options();
    QTest::newRow("a key begins with no digit") << u"13C=1"_s << Options();
}

void TestKeyValueSimpleParser::optionsAreRead()
{
    QFETCH(const QString, text);
    QFETCH(const Options, options);
    QCOMPARE(KeyValueSimpleParser(text).options(), options);
}

void TestKeyValueSimpleParser::newOptionsStandAtTheEnd_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");
    QTest::newRow("of nothing") << QString() << u"enable_rps=0\noligo_search=1"_s;
    QTest::newRow("of an open line") << u"M / 1 @ C"_s << u"M / 1 @ C\nenable_rps=0\noligo_search=1"_s;
    QTest::newRow("of a closed line") << u"M / 1 @ C\n"_s << u"M / 1 @ C\nenable_rps=0\noligo_search=1\n"_s;
}

void TestKeyValueSimpleParser::newOptionsStandAtTheEnd()
{
    QFETCH(const QString, text);
    QFETCH(const QString, after);
    KeyValueSimpleParser parser(text);
    parser.addOptions({{u"oligo_search"_s, u"1"_s}, {u"enable_rps"_s, u"0"_s}});
    QCOMPARE(parser.toString(), after);
}

void TestKeyValueSimpleParser::knownOptionsAreReplacedInPlace()
{
    KeyValueSimpleParser parser(u"a=1\n% b=2\nb = 2\nM / 1 @ C\n"_s);
    parser.addOptions({{u"b"_s, u"3"_s}, {u"c"_s, u"4"_s}});
    QCOMPARE(parser.toString(), u"a=1\n% b=2\nb=3\nM / 1 @ C\nc=4\n"_s);
}

void TestKeyValueSimpleParser::aRepeatedOptionIsLeftOnce()
{
    KeyValueSimpleParser parser(u"a=1\nb=2\na=3"_s);
    parser.addOptions({{u"a"_s, u"4"_s}});
    QCOMPARE(parser.toString(), u"a=4\nb=2"_s);
}

void TestKeyValueSimpleParser::aLineBreakInAValueMakesNoLine()
{
    KeyValueSimpleParser parser(QString{});
    parser.addOptions({{u"a"_s, u"1\nb=2\r\nc=3\rd"_s}});
    QCOMPARE(parser.toString(), u"a=1 b=2 c=3 d"_s);
}

void TestKeyValueSimpleParser::optionsAreRemoved()
{
    KeyValueSimpleParser parser(u"a=1\nM / 1 @ C\n\na=2\nb=3\n"_s);
    parser.removeOptions({u"a"_s, u"unknown"_s, QString()});
    QCOMPARE(parser.toString(), u"M / 1 @ C\n\nb=3\n"_s);
}

void TestKeyValueSimpleParser::whatIsAddedCanBeRemoved()
{
    for (const QString &text : {QString(), u"M / 1 @ C"_s, u"M / 1 @ C\n"_s}) {
        KeyValueSimpleParser parser(text);
        parser.addOptions({{u"a"_s, u"1"_s}});
        KeyValueSimpleParser again(parser.toString());
        again.removeOptions({u"a"_s});
        QCOMPARE(again.toString(), text);
    }
}

ORV_REGISTER_TEST(TestKeyValueSimpleParser)
#include "TestKeyValueSimpleParser.moc"
