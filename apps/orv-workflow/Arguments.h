#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace orv::cli {

/// What a value stands for, so that a shell can offer values of that kind.
enum class ValueKind
{
    Text,
    Number,
    File,
    Folder,
    Workflow, ///< a workflow file, a folder of such files, or standard input
    CellType,
    Property,
    Validator,
};

/// What an option's file or folder is to its command.
enum class FileUse
{
    Read,
    Written,       ///< never an input of the same call
    WrittenAsTold, ///< it may be an input, and the command sees to it that nothing is lost
};

/// What may be said of an argument beside its name, value and description.
struct ArgumentTraits
{
    struct Range
    {
        int least;
        int most;
    };

    bool isRequired = false;
    ValueKind kind = ValueKind::Text;
    FileUse use = FileUse::Read;
    std::optional<Range> range = {};
    QStringList choices = {};    ///< the only values that are allowed; empty for any
    QStringList needs = {};      ///< names of the options without which this one is wrong usage
    QStringList excludes = {};   ///< names of the options with which this one is wrong usage
    bool takesFollowing = false; ///< an option that may be repeated takes all up to the next option, too
};

/// One argument as it is declared: the parser, the help, the completions and the manual read it.
struct Argument
{
    enum class Form
    {
        Positional,
        Option,  ///< has a value
        Flag,    ///< has none; an int counts how often it is given
        Help,    ///< prints the help
        Version, ///< prints the version
    };
    /// The variable that takes the value; it keeps what it holds when the argument isn't given.
    using Target = std::variant<std::monostate, bool *, int *, QString *, QStringList *>;

    Form form = Form::Flag;
    QStringList names; ///< with their dashes: "-o", "--output"; a positional has one without
    Target target;
    QString description;
    ArgumentTraits traits = {};
};

/// The arguments of a subcommand, in the order of its help; every subcommand has --help:
///
///     arguments.positional("FILE", &m_file, "Workflow file", {.isRequired = true});
///     arguments.option("-o,--output", &m_output, "Where to write");
///     arguments.flag("--stamp", &m_stamp, "Renew user, time and version");
///
/// The variables must outlive the parsing. Names are given with commas between them.
class Arguments
{
public:
    Arguments();

    void positional(const char *name, QString *value, const char *description, ArgumentTraits traits = {});
    /// Takes all that is left, at least one where it is required.
    void positionals(const char *name, QStringList *values, const char *description,
                     ArgumentTraits traits = {});
    void option(const char *names, QString *value, const char *description, ArgumentTraits traits = {});
    void option(const char *names, int *value, const char *description, ArgumentTraits traits = {});
    /// An option that may be repeated, with one value each time unless it takes what follows.
    void options(const char *names, QStringList *values, const char *description, ArgumentTraits traits = {});
    void flag(const char *names, bool *isGiven, const char *description);
    void counter(const char *names, int *count, const char *description);
    /// The flag that prints the version of the program.
    void version(const char *names, const char *description);

    [[nodiscard]] const QList<Argument> &list() const { return m_list; }

private:
    void add(Argument::Form form, const char *names, Argument::Target target, const char *description,
             ArgumentTraits traits = {});

    QList<Argument> m_list;
};

} // namespace orv::cli
