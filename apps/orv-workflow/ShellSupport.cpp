#include "ShellSupport.h"

#include <CLI/CLI.hpp>

#include <array>

namespace orv::cli {

namespace {

struct Option
{
    QStringList names; ///< "-o", "--output"
    QString description;
    bool takesValue = false;
    bool isPositional = false;
};

struct Subcommand
{
    QString name;
    QString description;
    QString example;
    QList<Option> options;
};

QList<Option> optionsOf(const CLI::App &app)
{
    QList<Option> options;
    for (const CLI::Option *option : app.get_options()) {
        if (option->get_group().empty())
            continue;
        Option entry;
        for (const std::string &name : option->get_snames())
            entry.names.append(QLatin1Char('-') + QString::fromStdString(name));
        for (const std::string &name : option->get_lnames())
            entry.names.append(QLatin1String("--") + QString::fromStdString(name));
        entry.isPositional = entry.names.isEmpty();
        if (entry.isPositional)
            entry.names.append(QString::fromStdString(option->get_name()));
        entry.description = QString::fromStdString(option->get_description());
        entry.takesValue = option->get_expected_min() > 0;
        options.append(entry);
    }
    return options;
}

QList<Subcommand> subcommandsOf(const CLI::App &app)
{
    QList<Subcommand> subcommands;
    for (const CLI::App *subcommand : app.get_subcommands([](const CLI::App *) { return true; })) {
        QString example = QString::fromStdString(subcommand->get_footer()).trimmed();
        example.remove(QLatin1String("Example:"));
        subcommands.append({QString::fromStdString(subcommand->get_name()),
                            QString::fromStdString(subcommand->get_description()), example.trimmed(),
                            optionsOf(*subcommand)});
    }
    return subcommands;
}

QStringList names(const QList<Option> &options)
{
    QStringList all;
    for (const Option &option : options) {
        if (!option.isPositional)
            all += option.names;
    }
    return all;
}

QStringList names(const QList<Subcommand> &subcommands)
{
    QStringList all;
    for (const Subcommand &subcommand : subcommands)
        all.append(subcommand.name);
    return all;
}

QString bashCompletion(const CLI::App &app)
{
    const QList<Subcommand> subcommands = subcommandsOf(app);
    const QString global = names(optionsOf(app)).join(QLatin1Char(' '));
    QString cases;
    for (const Subcommand &subcommand : subcommands) {
        cases += QStringLiteral("        %1) words=\"%2 %3\" ;;\n")
                     .arg(subcommand.name, names(subcommand.options).join(QLatin1Char(' ')), global);
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
        .arg(cases, names(subcommands).join(QLatin1Char(' ')), global);
}

QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

QString zshCompletion(const CLI::App &app)
{
    QString described;
    QString cases;
    for (const Subcommand &subcommand : subcommandsOf(app)) {
        described += QStringLiteral("        %1\n")
                         .arg(quoted(subcommand.name + QLatin1Char(':') + subcommand.description));
        QString specs;
        for (const Option &option : subcommand.options + optionsOf(app)) {
            if (option.isPositional)
                continue;
            for (const QString &name : option.names) {
                QString text = option.description;
                text.replace(QLatin1Char('['), QLatin1Char('(')).replace(QLatin1Char(']'), QLatin1Char(')'));
                specs += QLatin1Char(' ') +
                         quoted(QStringLiteral("%1[%2]%3")
                                    .arg(name, text,
                                         option.takesValue ? QStringLiteral(":value:_files") : QString()));
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

QString fishOption(const Option &option, const QString &condition)
{
    QString line = QStringLiteral("complete -c orv-workflow%1").arg(condition);
    for (const QString &name : option.names) {
        line += name.startsWith(QLatin1String("--")) ? QLatin1String(" -l ") + name.mid(2)
                                                     : QLatin1String(" -s ") + name.mid(1);
    }
    if (option.takesValue)
        line += QLatin1String(" -r");
    return line + QLatin1String(" -d ") + quoted(option.description) + QLatin1Char('\n');
}

QString fishCompletion(const CLI::App &app)
{
    QString script = QStringLiteral("# fish completion for orv-workflow\n");
    for (const Option &option : optionsOf(app)) {
        if (!option.isPositional)
            script += fishOption(option, {});
    }
    for (const Subcommand &subcommand : subcommandsOf(app)) {
        script += QStringLiteral("complete -c orv-workflow -n __fish_use_subcommand -a %1 -d %2\n")
                      .arg(subcommand.name, quoted(subcommand.description));
        for (const Option &option : subcommand.options) {
            if (!option.isPositional)
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

QString manOptions(const QList<Option> &options)
{
    QString page;
    for (const Option &option : options) {
        page +=
            QStringLiteral(".TP\n.B %1%2\n%3\n")
                .arg(manText(option.names.join(QLatin1String(", "))),
                     option.takesValue && !option.isPositional ? QStringLiteral(" \\fIvalue\\fR") : QString(),
                     manText(option.description));
    }
    return page;
}

QString manPage(const CLI::App &app)
{
    QString page =
        QStringLiteral(".TH ORV\\-WORKFLOW 1\n.SH NAME\norv\\-workflow \\- %1\n"
                       ".SH SYNOPSIS\n.B orv\\-workflow\n[\\fIoptions\\fR] \\fIsubcommand\\fR ...\n"
                       ".SH OPTIONS\n")
            .arg(manText(QString::fromStdString(app.get_description())));
    page += manOptions(optionsOf(app)) + QLatin1String(".SH SUBCOMMANDS\n");
    for (const Subcommand &subcommand : subcommandsOf(app)) {
        page +=
            QStringLiteral(".SS %1\n%2.\n").arg(manText(subcommand.name), manText(subcommand.description));
        page += manOptions(subcommand.options);
        page += QStringLiteral(".PP\nExample:\n.PP\n.EX\n%1\n.EE\n").arg(manText(subcommand.example));
    }
    return page +
           QLatin1String(
               ".SH EXIT STATUS\n0 done and positive; 1 the answer is negative; 2 wrong usage; 3 an input "
               "can't be read or is no workflow; 4 an output can't be written.\n");
}

struct Kind
{
    const char *name;
    QString (*generate)(const CLI::App &app);
};

constexpr std::array kKinds = {Kind{"bash", bashCompletion}, Kind{"zsh", zshCompletion},
                               Kind{"fish", fishCompletion}, Kind{"man", manPage}};

} // namespace

QStringList shellSupportKinds()
{
    QStringList kinds;
    for (const Kind &kind : kKinds)
        kinds.append(QString::fromLatin1(kind.name));
    return kinds;
}

QString generateShellSupport(const QString &kind, const CLI::App &app)
{
    for (const Kind &row : kKinds) {
        if (kind == QLatin1String(row.name))
            return row.generate(app);
    }
    return {};
}

} // namespace orv::cli
