#include "ManPages.h"

namespace orv::cli {

namespace {

constexpr QLatin1String kExitStatus(
    ".SH EXIT STATUS\n0 done and positive; 1 the answer is negative; 2 wrong usage; 3 an input can't be read "
    "or is no workflow; 4 an output can't be written. In a batch the highest one wins.\n");

QString manText(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('-'), QLatin1String("\\-"))
        .replace(QLatin1Char('\''), QLatin1String("\\(aq"));
}

QString manArguments(const Arguments &arguments)
{
    QString page;
    for (const Argument &argument : arguments.list()) {
        const QString value =
            argument.form == Argument::Form::Option ? QStringLiteral(" \\fIvalue\\fR") : QString();
        page +=
            QStringLiteral(".TP\n.B %1%2\n%3\n")
                .arg(manText(argument.names.join(QLatin1String(", "))), value, manText(argument.description));
    }
    return page;
}

QString pageOf(const SubcommandLine &subcommand)
{
    return QStringLiteral("orv\\-workflow\\-%1").arg(manText(subcommand.name));
}

QString synopsisOf(const SubcommandLine &subcommand)
{
    QString positionals;
    for (const Argument &argument : subcommand.arguments.list()) {
        if (argument.form != Argument::Form::Positional)
            continue;
        const bool isMany = std::holds_alternative<QStringList *>(argument.target);
        const QString name =
            QStringLiteral("\\fI%1\\fR%2")
                .arg(manText(argument.names.first()), isMany ? QStringLiteral(" ...") : QString());
        positionals +=
            QLatin1Char(' ') + (argument.traits.isRequired ? name : QStringLiteral("[%1]").arg(name));
    }
    return QStringLiteral(".SH SYNOPSIS\n.B orv\\-workflow %1\n[\\fIoptions\\fR]%2\n")
        .arg(manText(subcommand.name), positionals);
}

} // namespace

QString manPage(const CommandLine &line)
{
    QString page =
        QStringLiteral(".TH ORV\\-WORKFLOW 1\n.SH NAME\norv\\-workflow \\- %1\n"
                       ".SH SYNOPSIS\n.B orv\\-workflow\n[\\fIoptions\\fR] \\fIsubcommand\\fR ...\n"
                       ".SH OPTIONS\n")
            .arg(manText(line.description));
    page += manArguments(line.arguments) + QLatin1String(".SH SUBCOMMANDS\n");
    for (const SubcommandLine &subcommand : line.subcommands)
        page +=
            QStringLiteral(".TP\n.BR %1 (1)\n%2.\n").arg(pageOf(subcommand), manText(subcommand.description));
    return page + kExitStatus;
}

QString manPage(const CommandLine &line, const SubcommandLine &subcommand)
{
    QString page =
        QStringLiteral(".TH ORV\\-WORKFLOW\\-%1 1\n.SH NAME\n%2 \\- %3\n")
            .arg(manText(subcommand.name.toUpper()), pageOf(subcommand), manText(subcommand.description));
    page += synopsisOf(subcommand);
    page += QLatin1String(".SH ARGUMENTS\n") + manArguments(subcommand.arguments);
    page += QLatin1String(".SH OPTIONS OF EVERY SUBCOMMAND\n") + manArguments(line.arguments);
    page += QStringLiteral(".SH EXAMPLE\n.EX\n%1\n.EE\n").arg(manText(subcommand.example));
    return page + kExitStatus + QLatin1String(".SH SEE ALSO\n.BR orv\\-workflow (1)\n");
}

} // namespace orv::cli
