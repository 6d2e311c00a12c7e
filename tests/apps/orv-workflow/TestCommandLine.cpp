#include "OrvTest.h"

#include <CommandLine.h>

using namespace orv;
using namespace Qt::StringLiterals;
using cli::CommandLine;
using cli::ParsedLine;

/// Variables of every kind that an argument can be bound to.
struct Values
{
    QString file;
    QStringList names;
    QString output = u"unset"_s;
    QStringList patterns;
    QStringList checks;
    QString format;
    QString tab;
    QString column;
    int jobs = 4;
    int verbosity = 0;
    bool isDry = false;
};

class TestCommandLine : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesReachTheirVariables();
    void whatIsNotGivenKeepsItsValue();
    void globalOptionsStandAnywhere();
    void valuesArriveAsTheyWereGiven_data();
    void valuesArriveAsTheyWereGiven();
    void aRepeatedOptionTakesOneValueEachTime();
    void anOptionMayTakeWhatFollows();
    void wrongUsageRunsNothing_data();
    void wrongUsageRunsNothing();
    void helpAndVersionRunNothing_data();
    void helpAndVersionRunNothing();
};

namespace {

CommandLine lineWith(Values *values)
{
    CommandLine line{u"tool"_s, u"Do things"_s, u"tool 1"_s};
    line.arguments.counter("-v", &values->verbosity, "Say more");
    line.arguments.version("--version", "Print the version");
    cli::SubcommandLine make{u"make"_s, u"Make a thing"_s, u"tool make x"_s};
    cli::Arguments &arguments = make.arguments;
    arguments.positional("FILE", &values->file, "A file", {.isRequired = true});
    arguments.positionals("NAME", &values->names, "Names");
    arguments.option("-o,--output", &values->output, "Where to write",
                     {.excludes = {QStringLiteral("--dry")}});
    arguments.options("--match", &values->patterns, "Patterns");
    arguments.options("--check", &values->checks, "Checks", {.takesFollowing = true});
    arguments.option("--format", &values->format, "The format", {.choices = {u"text"_s, u"json"_s}});
    arguments.option("--tab", &values->tab, "The tab", {.needs = {u"--column"_s}});
    arguments.option("--column", &values->column, "The column");
    arguments.option("--jobs", &values->jobs, "Threads", {.range = cli::ArgumentTraits::Range{1, 8}});
    arguments.flag("--dry", &values->isDry, "Write nothing");
    line.subcommands.push_back({u"list"_s, u"List things"_s, u"tool list"_s});
    line.subcommands.push_back(make);
    return line;
}

ParsedLine parsed(const QStringList &given, Values *values)
{
    QList<QByteArray> texts{"tool"};
    for (const QString &argument : given)
        texts.append(argument.toUtf8());
    std::vector<const char *> pointers;
    for (const QByteArray &text : std::as_const(texts))
        pointers.push_back(text.constData());
    return cli::parse(lineWith(values), int(pointers.size()), pointers.data());
}

} // namespace

void TestCommandLine::valuesReachTheirVariables()
{
    Values values;
    const ParsedLine line =
        parsed({u"make"_s, u"a.wflw"_s, u"x"_s, u"y"_s, u"-o"_s, u"out"_s, u"--format"_s, u"json"_s,
                u"--tab"_s, u"0"_s, u"--column"_s, u"1"_s, u"--jobs"_s, u"8"_s},
               &values);
    QCOMPARE(line.subcommand, std::optional<size_t>(1));
    QCOMPARE(line.exitCode, cli::Done);
    QCOMPARE(values.file, u"a.wflw"_s);
    QCOMPARE(values.names, QStringList({u"x"_s, u"y"_s}));
    QCOMPARE(values.output, u"out"_s);
    QCOMPARE(values.format, u"json"_s);
    QCOMPARE(values.tab, u"0"_s);
    QCOMPARE(values.column, u"1"_s);
    QCOMPARE(values.jobs, 8);
    QVERIFY(!values.isDry);
}

void TestCommandLine::whatIsNotGivenKeepsItsValue()
{
    Values values;
    QVERIFY(parsed({u"make"_s, u"a"_s, u"--dry"_s}, &values).subcommand);
    QCOMPARE(values.output, u"unset"_s);
    QCOMPARE(values.jobs, 4);
    QCOMPARE(values.names, QStringList());
    QVERIFY(values.isDry);
}

void TestCommandLine::globalOptionsStandAnywhere()
{
    Values values;
    const ParsedLine line = parsed({u"-v"_s, u"list"_s, u"-v"_s}, &values);
    QCOMPARE(line.subcommand, std::optional<size_t>(0));
    QCOMPARE(values.verbosity, 2);
}

void TestCommandLine::valuesArriveAsTheyWereGiven_data()
{
    QTest::addColumn<QString>("given");
    QTest::newRow("in brackets") << u"[a,b]"_s;
    QTest::newRow("an open bracket") << u"[a"_s;
    QTest::newRow("beyond ASCII") << u"Säule µ.wflw"_s;
    QTest::newRow("a comma") << u"a,b"_s;
    QTest::newRow("standard input") << u"-"_s;
    QTest::newRow("nothing") << u""_s;
    QTest::newRow("blanks") << u" a b "_s;
}

void TestCommandLine::valuesArriveAsTheyWereGiven()
{
    QFETCH(const QString, given);
    Values values;
    const ParsedLine line = parsed({u"make"_s, given, given, u"-o"_s, given, u"--match"_s, given}, &values);
    QVERIFY(line.subcommand);
    QCOMPARE(values.file, given);
    QCOMPARE(values.names, QStringList(given));
    QCOMPARE(values.output, given);
    QCOMPARE(values.patterns, QStringList(given));
}

void TestCommandLine::aRepeatedOptionTakesOneValueEachTime()
{
    Values values;
    QVERIFY(
        parsed({u"make"_s, u"--match"_s, u"a"_s, u"x"_s, u"--match"_s, u"b"_s, u"y"_s}, &values).subcommand);
    QCOMPARE(values.patterns, QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(values.file, u"x"_s);
    QCOMPARE(values.names, QStringList(u"y"_s));
}

void TestCommandLine::anOptionMayTakeWhatFollows()
{
    Values values;
    const ParsedLine line =
        parsed({u"make"_s, u"x"_s, u"--check"_s, u"a"_s, u"b"_s, u"--dry"_s, u"--check"_s, u"c"_s}, &values);
    QVERIFY(line.subcommand);
    QCOMPARE(values.checks, QStringList({u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(values.names, QStringList());
}

void TestCommandLine::wrongUsageRunsNothing_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("an unknown subcommand") << QStringList(u"mend"_s);
    QTest::newRow("an unknown option") << QStringList({u"list"_s, u"--nope"_s});
    QTest::newRow("one too many") << QStringList({u"list"_s, u"x"_s});
    QTest::newRow("what is required") << QStringList(u"make"_s);
    QTest::newRow("no value") << QStringList({u"make"_s, u"a"_s, u"-o"_s});
    QTest::newRow("no number") << QStringList({u"make"_s, u"a"_s, u"--jobs"_s, u"many"_s});
    QTest::newRow("below the range") << QStringList({u"make"_s, u"a"_s, u"--jobs"_s, u"0"_s});
    QTest::newRow("above the range") << QStringList({u"make"_s, u"a"_s, u"--jobs"_s, u"9"_s});
    QTest::newRow("no such choice") << QStringList({u"make"_s, u"a"_s, u"--format"_s, u"xml"_s});
    QTest::newRow("what is needed") << QStringList({u"make"_s, u"a"_s, u"--tab"_s, u"0"_s});
    QTest::newRow("what excludes") << QStringList({u"make"_s, u"a"_s, u"-o"_s, u"b"_s, u"--dry"_s});
    QTest::newRow("two subcommands") << QStringList({u"list"_s, u"list"_s});
}

void TestCommandLine::wrongUsageRunsNothing()
{
    QFETCH(const QStringList, given);
    Values values;
    const ParsedLine line = parsed(given, &values);
    QVERIFY(!line.subcommand);
    QCOMPARE(line.exitCode, cli::WrongUsage);
}

void TestCommandLine::helpAndVersionRunNothing_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::newRow("help") << QStringList(u"--help"_s);
    QTest::newRow("help of a subcommand") << QStringList({u"make"_s, u"-h"_s});
    QTest::newRow("version") << QStringList(u"--version"_s);
}

void TestCommandLine::helpAndVersionRunNothing()
{
    QFETCH(const QStringList, given);
    Values values;
    const ParsedLine line = parsed(given, &values);
    QVERIFY(!line.subcommand);
    QCOMPARE(line.exitCode, cli::Done);
}

ORV_REGISTER_TEST(TestCommandLine)

#include "TestCommandLine.moc"
