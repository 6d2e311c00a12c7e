#include "ShellSupport.h"

#include <array>

namespace orv::cli {

namespace {

bool isPositional(const Argument &argument)
{
    return argument.form == Argument::Form::Positional;
}

bool takesValue(const Argument &argument)
{
    return argument.form == Argument::Form::Option;
}

QString namesIn(const Arguments &arguments)
{
    QStringList all;
    for (const Argument &argument : arguments.list()) {
        if (!isPositional(argument))
            all += argument.names;
    }
    return all.join(QLatin1Char(' '));
}

QString namesOf(const std::vector<SubcommandLine> &subcommands)
{
    QStringList all;
    for (const SubcommandLine &subcommand : subcommands)
        all.append(subcommand.name);
    return all.join(QLatin1Char(' '));
}

QString bashCompletion(const CommandLine &line)
{
    const QString global = namesIn(line.arguments);
    QString cases;
    for (const SubcommandLine &subcommand : line.subcommands) {
        cases += QStringLiteral("        %1) words=\"%2 %3\" ;;\n")
                     .arg(subcommand.name, namesIn(subcommand.arguments), global);
    }
    return QStringLiteral("# bash completion for orv-workflow\n"
                          "_orv_workflow() {\n"
                          "    local current=\"${COMP_WORDS[COMP_CWORD]}\" subcommand=\"\" word words\n"
                          "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
                          "        case \"$word\" in -*) ;; *) subcommand=\"$word\"; break ;; esac\n"
                          "    done\n"
                          "    case \"$subcommand\" in\n"
                          "%1"
                          "        *) words=\"%2 %3\" ;;\n"
                          "    esac\n"
                          "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
                          "}\n"
                          "complete -o default -F _orv_workflow orv-workflow\n")
        .arg(cases, namesOf(line.subcommands), global);
}

QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

QString zshCompletion(const CommandLine &line)
{
    QString described;
    QString cases;
    for (const SubcommandLine &subcommand : line.subcommands) {
        described += QStringLiteral("        %1\n")
                         .arg(quoted(subcommand.name + QLatin1Char(':') + subcommand.description));
        QString specs;
        for (const Argument &option : subcommand.arguments.list() + line.arguments.list()) {
            if (isPositional(option))
                continue;
            for (const QString &name : option.names) {
                QString text = option.description;
                text.replace(QLatin1Char('['), QLatin1Char('(')).replace(QLatin1Char(']'), QLatin1Char(')'));
                specs += QLatin1Char(' ') +
                         quoted(QStringLiteral("%1[%2]%3")
                                    .arg(name, text,
                                         takesValue(option) ? QStringLiteral(":value:_files") : QString()));
            }
        }
        cases += QStringLiteral("        %1) _arguments%2 '*:file:_files' ;;\n").arg(subcommand.name, specs);
    }
    return QStringLiteral("#compdef orv-workflow\n"
                          "_orv_workflow() {\n"
                          "    local -a subcommands\n"
                          "    subcommands=(\n%1    )\n"
                          "    if (( CURRENT == 2 )); then\n"
                          "        _describe 'subcommand' subcommands\n"
                          "        return\n"
                          "    fi\n"
                          "    local subcommand=$words[2]\n"
                          "    shift words; (( CURRENT-- ))\n"
                          "    case $subcommand in\n%2    esac\n"
                          "}\n"
                          "_orv_workflow \"$@\"\n")
        .arg(described, cases);
}

QString fishOption(const Argument &option, const QString &condition)
{
    QString command = QStringLiteral("complete -c orv-workflow%1").arg(condition);
    for (const QString &name : option.names) {
        command += name.startsWith(QLatin1String("--")) ? QLatin1String(" -l ") + name.mid(2)
                                                        : QLatin1String(" -s ") + name.mid(1);
    }
    if (takesValue(option))
        command += QLatin1String(" -r");
    return command + QLatin1String(" -d ") + quoted(option.description) + QLatin1Char('\n');
}

QString fishCompletion(const CommandLine &line)
{
    QString script = QStringLiteral("# fish completion for orv-workflow\n");
    for (const Argument &option : line.arguments.list()) {
        if (!isPositional(option))
            script += fishOption(option, {});
    }
    for (const SubcommandLine &subcommand : line.subcommands) {
        script += QStringLiteral("complete -c orv-workflow -n __fish_use_subcommand -a %1 -d %2\n")
                      .arg(subcommand.name, quoted(subcommand.description));
        for (const Argument &option : subcommand.arguments.list()) {
            if (!isPositional(option))
                script += fishOption(
                    option, QStringLiteral(" -n '__fish_seen_subcommand_from %1'").arg(subcommand.name));
        }
    }
    return script;
}

QString manText(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('-'), QLatin1String("\\-"));
}

QString manOptions(const Arguments &arguments)
{
    QString page;
    for (const Argument &option : arguments.list()) {
        page += QStringLiteral(".TP\n.B %1%2\n%3\n")
                    .arg(manText(option.names.join(QLatin1String(", "))),
                         takesValue(option) ? QStringLiteral(" \\fIvalue\\fR") : QString(),
                         manText(option.description));
    }
    return page;
}

QString manPage(const CommandLine &line)
{
    QString page =
        QStringLiteral(".TH ORV\\-WORKFLOW 1\n.SH NAME\norv\\-workflow \\- %1\n"
                       ".SH SYNOPSIS\n.B orv\\-workflow\n[\\fIoptions\\fR] \\fIsubcommand\\fR ...\n"
                       ".SH OPTIONS\n")
            .arg(manText(line.description));
    page += manOptions(line.arguments) + QLatin1String(".SH SUBCOMMANDS\n");
    for (const SubcommandLine &subcommand : line.subcommands) {
        page +=
            QStringLiteral(".SS %1\n%2.\n").arg(manText(subcommand.name), manText(subcommand.description));
        page += manOptions(subcommand.arguments);
        page += QStringLiteral(".PP\nExample:\n.PP\n.EX\n%1\n.EE\n").arg(manText(subcommand.example));
    }
    return page +
           QLatin1String(
               ".SH EXIT STATUS\n0 done and positive; 1 the answer is negative; 2 wrong usage; 3 an input "
               "can't be read or is no workflow; 4 an output can't be written.\n");
}

struct SupportFile
{
    const char *name;
    QString (*generate)(const CommandLine &line);
};

constexpr std::array kSupportFiles = {SupportFile{"bash", bashCompletion}, SupportFile{"zsh", zshCompletion},
                                      SupportFile{"fish", fishCompletion}, SupportFile{"man", manPage}};

} // namespace

QStringList shellSupportKinds()
{
    QStringList kinds;
    for (const SupportFile &kind : kSupportFiles)
        kinds.append(QString::fromLatin1(kind.name));
    return kinds;
}

QString generateShellSupport(const QString &kind, const CommandLine &line)
{
    for (const SupportFile &row : kSupportFiles) {
        if (kind == QLatin1String(row.name))
            return row.generate(line);
    }
    return {};
}

} // namespace orv::cli
