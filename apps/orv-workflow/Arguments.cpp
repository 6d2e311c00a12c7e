#include "Arguments.h"

#include <utility>

namespace orv::cli {

using Form = Argument::Form;

Arguments::Arguments()
{
    add(Form::Help, "-h,--help", {}, "Print this help message and exit");
}

void Arguments::positional(const char *name, QString *value, const char *description, ArgumentTraits traits)
{
    add(Form::Positional, name, value, description, std::move(traits));
}

void Arguments::positionals(const char *name, QStringList *values, const char *description,
                            ArgumentTraits traits)
{
    add(Form::Positional, name, values, description, std::move(traits));
}

void Arguments::option(const char *names, QString *value, const char *description, ArgumentTraits traits)
{
    add(Form::Option, names, value, description, std::move(traits));
}

void Arguments::option(const char *names, int *value, const char *description, ArgumentTraits traits)
{
    traits.kind = ValueKind::Number;
    add(Form::Option, names, value, description, std::move(traits));
}

void Arguments::options(const char *names, QStringList *values, const char *description,
                        ArgumentTraits traits)
{
    add(Form::Option, names, values, description, std::move(traits));
}

void Arguments::flag(const char *names, bool *isGiven, const char *description)
{
    add(Form::Flag, names, isGiven, description);
}

void Arguments::counter(const char *names, int *count, const char *description)
{
    add(Form::Flag, names, count, description);
}

void Arguments::version(const char *names, const char *description)
{
    add(Form::Version, names, {}, description);
}

void Arguments::add(Form form, const char *names, Argument::Target target, const char *description,
                    ArgumentTraits traits)
{
    m_list.append({form, QString::fromLatin1(names).split(QLatin1Char(',')), target,
                   QString::fromUtf8(description), std::move(traits)});
}

} // namespace orv::cli
