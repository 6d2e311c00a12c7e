#include "OrvTest.h"

#include <QRegularExpression>
#include <QSet>

#include <commands/Command.h>

using namespace orv;
using namespace Qt::StringLiterals;
using cli::Argument;
using cli::Arguments;
using cli::CommandRow;
using Form = cli::Argument::Form;

class TestDeclarations : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void subcommandsHaveNamesOfTheirOwn();
    void everySubcommandIsExplained_data();
    void everySubcommandIsExplained();
    void everyArgumentIsExplained_data();
    void everyArgumentIsExplained();
    void everyArgumentHasAPlaceForItsValue_data();
    void everyArgumentHasAPlaceForItsValue();
    void noNameMeansTwoThings_data();
    void noNameMeansTwoThings();
    void whatTakesAllStandsLast_data();
    void whatTakesAllStandsLast();
    void relationsNameOtherOptions_data();
    void relationsNameOtherOptions();
};

namespace {

/// The arguments of a subcommand, with the command that holds their variables.
struct Declared
{
    explicit Declared(const CommandRow &row)
        : command(row.create())
    {
        command->declare(arguments);
    }

    [[nodiscard]] const QList<Argument> &list() const { return arguments.list(); }

    std::unique_ptr<cli::Command> command;
    Arguments arguments;
};

void addSubcommands()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const CommandRow &row : cli::commandRows())
        QTest::newRow(row.name) << number++;
}

const CommandRow &rowOf(int number)
{
    return cli::commandRows().at(size_t(number));
}

QStringList namesOf(const QList<Argument> &arguments)
{
    QStringList names;
    for (const Argument &argument : arguments)
        names += argument.names;
    return names;
}

/// A sentence without its full stop, as the help prints it.
bool isExplanation(const QString &text)
{
    return !text.isEmpty() && text.front().isUpper() && text == text.trimmed() && !text.endsWith(u'.');
}

} // namespace

void TestDeclarations::subcommandsHaveNamesOfTheirOwn()
{
    QSet<QString> names;
    for (const CommandRow &row : cli::commandRows()) {
        const QString name = QString::fromUtf8(row.name);
        QVERIFY2(!names.contains(name), row.name);
        names.insert(name);
    }
    QVERIFY(!names.isEmpty());
}

void TestDeclarations::everySubcommandIsExplained_data()
{
    addSubcommands();
}

void TestDeclarations::everySubcommandIsExplained()
{
    QFETCH(const int, number);
    const CommandRow &row = rowOf(number);
    QVERIFY(isExplanation(QString::fromUtf8(row.description)));
    const QString example = QString::fromUtf8(row.example);
    const QString call = u"orv-workflow "_s + QString::fromUtf8(row.name);
    QVERIFY2(example == call || example.startsWith(call + u' '), row.example);
}

void TestDeclarations::everyArgumentIsExplained_data()
{
    addSubcommands();
}

void TestDeclarations::everyArgumentIsExplained()
{
    QFETCH(const int, number);
    static const QRegularExpression positional(u"^[A-Z=]+$"_s);
    static const QRegularExpression option(u"^(-[a-z]|--[a-z][a-z-]+)$"_s);
    const Declared declared(rowOf(number));
    QCOMPARE(declared.list().first().form, Form::Help);
    for (const Argument &argument : declared.list()) {
        QVERIFY2(isExplanation(argument.description), qPrintable(argument.names.join(u',')));
        QVERIFY(!argument.names.isEmpty());
        for (const QString &name : argument.names) {
            const QRegularExpression &form = argument.form == Form::Positional ? positional : option;
            QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
        }
    }
}

void TestDeclarations::everyArgumentHasAPlaceForItsValue_data()
{
    addSubcommands();
}

void TestDeclarations::everyArgumentHasAPlaceForItsValue()
{
    QFETCH(const int, number);
    const Declared declared(rowOf(number));
    for (const Argument &argument : declared.list()) {
        const bool hasPlace = std::visit(
            [](auto target) { return !std::is_same_v<decltype(target), std::monostate>; }, argument.target);
        QCOMPARE(hasPlace, argument.form != Form::Help);
        // What is set without being given can't be left out.
        if (const auto *const *isGiven = std::get_if<bool *>(&argument.target))
            QVERIFY2(!**isGiven, qPrintable(argument.names.join(u',')));
    }
}

void TestDeclarations::noNameMeansTwoThings_data()
{
    addSubcommands();
}

void TestDeclarations::noNameMeansTwoThings()
{
    QFETCH(const int, number);
    const Declared declared(rowOf(number));
    Arguments global;
    cli::GlobalOptions options;
    options.declare(global);
    QStringList names = namesOf(declared.list()) + namesOf(global.list().mid(1)); // both start with the help
    names.sort();
    QCOMPARE(names.removeDuplicates(), 0);
}

void TestDeclarations::whatTakesAllStandsLast_data()
{
    addSubcommands();
}

void TestDeclarations::whatTakesAllStandsLast()
{
    QFETCH(const int, number);
    const Declared declared(rowOf(number));
    bool isAllTaken = false;
    bool mayBeMissing = false;
    for (const Argument &argument : declared.list()) {
        if (argument.form != Form::Positional)
            continue;
        QVERIFY2(!isAllTaken, qPrintable(argument.names.first()));
        QVERIFY2(!mayBeMissing, qPrintable(argument.names.first()));
        isAllTaken = std::holds_alternative<QStringList *>(argument.target);
        mayBeMissing = !argument.traits.isRequired;
    }
}

void TestDeclarations::relationsNameOtherOptions_data()
{
    addSubcommands();
}

void TestDeclarations::relationsNameOtherOptions()
{
    QFETCH(const int, number);
    const Declared declared(rowOf(number));
    const QStringList names = namesOf(declared.list());
    for (const Argument &argument : declared.list()) {
        for (const QString &other : argument.traits.needs + argument.traits.excludes) {
            QVERIFY2(names.contains(other), qPrintable(other));
            QVERIFY2(!argument.names.contains(other), qPrintable(other));
        }
    }
}

ORV_REGISTER_TEST(TestDeclarations)

#include "TestDeclarations.moc"
