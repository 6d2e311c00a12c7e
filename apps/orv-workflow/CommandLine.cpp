#include "CommandLine.h"

#include "Console.h"
#include "NativeNames.h"

#include <orv/core/NearestNames.h>

// The one file that may include the parser: it takes ten seconds to compile.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <string>

namespace orv::cli {

namespace {

using Form = Argument::Form;

constexpr char kShield = '\x1F'; // a separator that nobody types

/// The argument as it may be given to the parser, which takes "[a,b]" apart as a list: such a path gets a
/// mark in front, and decoded() takes it away.
std::string shielded(const std::string &argument)
{
    return argument.starts_with('[') ? kShield + argument : argument;
}

QString decoded(const std::string &argument)
{
    return nameFromBytes(argument.c_str() + (argument.starts_with(kShield) ? 1 : 0));
}

QStringList decoded(const std::vector<std::string> &arguments)
{
    QStringList list;
    for (const std::string &argument : arguments)
        list.append(decoded(argument));
    return list;
}

std::vector<std::string> plainTexts(const QStringList &texts)
{
    std::vector<std::string> list;
    for (const QString &text : texts)
        list.push_back(text.toStdString());
    return list;
}

/// Adds one argument to the parser, by the variable that takes its value.
class Declaration
{
public:
    Declaration(const Argument &argument, CLI::App &app)
        : m_argument(argument)
        , m_names(argument.names.join(QLatin1Char(',')).toStdString())
        , m_description(argument.description.toStdString())
        , m_app(app)
    {}

    CLI::Option *operator()(std::monostate /*none*/) const { return nullptr; }
    CLI::Option *operator()(bool *isGiven) const { return m_app.add_flag(m_names, *isGiven, m_description); }
    CLI::Option *operator()(int *number) const
    {
        return m_argument.form == Form::Flag ? m_app.add_flag(m_names, *number, m_description)
                                             : m_app.add_option(m_names, *number, m_description);
    }
    CLI::Option *operator()(QString *text) const
    {
        return m_app.add_option_function<std::string>(
            m_names, [text](const std::string &given) { *text = decoded(given); }, m_description);
    }
    CLI::Option *operator()(QStringList *texts) const
    {
        CLI::Option *option = m_app.add_option_function<std::vector<std::string>>(
            m_names, [texts](const std::vector<std::string> &given) { *texts = decoded(given); },
            m_description);
        if (m_argument.form == Form::Positional)
            return option;
        return m_argument.traits.takesFollowing ? option->expected(1)->take_all()
                                                : option->allow_extra_args(false);
    }

private:
    const Argument &m_argument;
    std::string m_names;
    std::string m_description;
    CLI::App &m_app;
};

void setTraits(const ArgumentTraits &traits, CLI::Option *option)
{
    option->required(traits.isRequired);
    if (traits.range)
        option->check(CLI::Range(traits.range->least, traits.range->most));
    if (!traits.choices.isEmpty())
        option->check(CLI::IsMember(plainTexts(traits.choices)));
}

void setRelations(const Arguments &arguments, CLI::App &app)
{
    const auto optionOf = [&app](const QString &name) { return app.get_option(name.toStdString()); };
    for (const Argument &argument : arguments.list()) {
        for (const QString &other : argument.traits.needs)
            optionOf(argument.names.first())->needs(optionOf(other));
        for (const QString &other : argument.traits.excludes)
            optionOf(argument.names.first())->excludes(optionOf(other));
    }
}

void declare(const Arguments &arguments, const QString &version, CLI::App &app)
{
    for (const Argument &argument : arguments.list()) {
        const std::string names = argument.names.join(QLatin1Char(',')).toStdString();
        if (argument.form == Form::Help)
            app.set_help_flag(names, argument.description.toStdString());
        else if (argument.form == Form::Version)
            app.set_version_flag(names, version.toStdString(), argument.description.toStdString());
        else
            setTraits(argument.traits, std::visit(Declaration(argument, app), argument.target));
    }
    setRelations(arguments, app);
}

/// The parser takes them from the back.
std::vector<std::string> givenArguments(int argc, const char *const argv[])
{
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i)
        arguments.push_back(shielded(argv[i]));
    return arguments;
}

/// The first argument that is no option, which names the subcommand.
QString subcommandIn(int argc, const char *const argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (*argv[i] != '-')
            return nameFromBytes(argv[i]);
    }
    return {};
}

QStringList optionsIn(const CommandLine &line, const QString &subcommand)
{
    QList<Argument> all = line.arguments.list();
    for (const SubcommandLine &row : line.subcommands) {
        if (row.name == subcommand)
            all += row.arguments.list();
    }
    QStringList names;
    for (const Argument &argument : all) {
        if (argument.form != Form::Positional)
            names += argument.names;
    }
    return names;
}

/// What the parser says, with the names that may have been meant.
QString problemOf(const CLI::ParseError &error, const CommandLine &line, int argc, const char *const argv[])
{
    const QString subcommand = subcommandIn(argc, argv);
    QStringList subcommands;
    for (const SubcommandLine &row : line.subcommands)
        subcommands.append(row.name);
    if (!subcommand.isEmpty() && !subcommands.contains(subcommand)) {
        return QStringLiteral("There is no subcommand \"%1\".").arg(subcommand) +
               NearestNames::question(subcommand, subcommands);
    }
    QString problem = QString::fromLocal8Bit(error.what()) + QLatin1Char('.');
    const QStringList options = optionsIn(line, subcommand);
    for (int i = 1; i < argc; ++i) {
        const QString option = nameFromBytes(argv[i]).section(QLatin1Char('='), 0, 0);
        if (option.startsWith(QLatin1String("--")) && option.size() > 2 && !options.contains(option))
            problem += NearestNames::question(option, options);
    }
    return problem;
}

void printProblem(const QString &problem, const CLI::App &app)
{
    const QString text =
        QStringLiteral("%1\nRun with %2 for more information.\n")
            .arg(withoutControls(problem), QString::fromStdString(app.get_help_ptr()->get_name()));
    std::fputs(text.toLocal8Bit().constData(), stderr);
}

} // namespace

ParsedLine parse(const CommandLine &line, int argc, const char *const argv[])
{
    CLI::App app(line.description.toStdString(), line.program.toStdString());
    declare(line.arguments, line.version, app);
    app.require_subcommand(1);
    app.fallthrough();
    std::vector<CLI::App *> subcommands;
    for (const SubcommandLine &subcommand : line.subcommands) {
        CLI::App *added =
            app.add_subcommand(subcommand.name.toStdString(), subcommand.description.toStdString());
        added->footer("\nExample:\n  " + subcommand.example.toStdString());
        declare(subcommand.arguments, line.version, *added);
        subcommands.push_back(added);
    }
    try {
        app.parse(givenArguments(argc, argv));
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0)
            return {{}, app.exit(error) == 0 ? Done : WrongUsage};
        const QString problem = problemOf(error, line, argc, argv);
        printProblem(problem, app);
        return {{}, WrongUsage, problem};
    }
    const auto isAsked = [](const CLI::App *subcommand) { return subcommand->parsed(); };
    const auto asked = std::find_if(subcommands.begin(), subcommands.end(), isAsked);
    return {size_t(asked - subcommands.begin()), Done};
}

} // namespace orv::cli
