#include "Completions.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/validators/Validators.h>

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

QStringList cellTypeNames()
{
    QMap<BaseItemType, QString> names = PropertyEditor::BaseItem::typeNameMap();
    names.remove(BaseItemType::Unknown);
    return names.values();
}

QStringList propertyNames()
{
    QStringList names;
    for (const PropertyFeatures &features : *PropertiesNames::names())
        names.append(features.internalNameV2);
    return names;
}

/// How the shells complete a value.
struct KindRow
{
    ValueKind kind;
    QStringList (*names)();
    const char *bash; ///< the action of compgen
    const char *zsh;
    const char *fish;
};

constexpr std::array kKinds = {
    KindRow{ValueKind::Text, nullptr, "", ":value: ", "-x"},
    KindRow{ValueKind::Number, nullptr, "", ":number: ", "-x"},
    KindRow{ValueKind::File, nullptr, "-f", ":file:_files", "-r -F"},
    KindRow{ValueKind::Folder, nullptr, "-d", ":folder:_files -/", "-x -a '(__fish_complete_directories)'"},
    KindRow{ValueKind::Workflow, nullptr, "-f -X '!*.[wW][fF][lL][wW]' -o plusdirs",
            ":workflow:_files -g \"*.wflw(-.)\"", "-x -a '(__fish_complete_suffix .wflw)'"},
    KindRow{ValueKind::CellType, cellTypeNames, "", "", ""},
    KindRow{ValueKind::Property, propertyNames, "", "", ""},
    KindRow{ValueKind::Validator, PropertyEditor::Validators::names, "", "", ""},
};

const KindRow &rowOf(const Argument &argument)
{
    return kKinds.at(size_t(argument.traits.kind));
}

/// The names that the argument may have; none where it may have any.
QString namesFor(const Argument &argument)
{
    const KindRow &row = rowOf(argument);
    const QStringList names = row.names ? row.names() : argument.traits.choices;
    return names.join(QLatin1Char(' '));
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

QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\'');
}

/// Offers the values of an argument; nothing for texts and numbers, which nobody can guess.
QString bashOffer(const Argument &argument)
{
    const QString names = namesFor(argument);
    const QString action =
        names.isEmpty() ? QString::fromLatin1(rowOf(argument).bash) : QStringLiteral("-W \"%1\"").arg(names);
    return action.isEmpty() ? QStringLiteral("return")
                            : QStringLiteral("_orv_workflow_offer %1; return").arg(action);
}

/// What to offer behind the options, and for the positionals, of one subcommand.
QString bashValues(const SubcommandLine &subcommand, const Arguments &global)
{
    QString values;
    QString positional;
    for (const Argument &argument : subcommand.arguments.list() + global.list()) {
        if (takesValue(argument)) {
            QStringList words;
            for (const QString &name : argument.names)
                words.append(QStringLiteral("\"%1 %2\"").arg(subcommand.name, name));
            values += QStringLiteral("        %1) %2 ;;\n")
                          .arg(words.join(QLatin1String(" | ")), bashOffer(argument));
        } else if (isPositional(argument) && positional.isEmpty()) {
            positional = QStringLiteral("        \"%1 \"[!-]* | \"%1 \") %2 ;;\n")
                             .arg(subcommand.name, bashOffer(argument));
        }
    }
    return QStringLiteral("    case \"$subcommand $previous\" in\n%1    esac\n"
                          "    case \"$subcommand $current\" in\n%2    esac\n")
        .arg(values, positional);
}

QString zshArgument(const Argument &argument)
{
    const QString names = namesFor(argument);
    return names.isEmpty() ? QString::fromLatin1(rowOf(argument).zsh)
                           : QStringLiteral(":value:(%1)").arg(names);
}

QString zshSpecifications(const SubcommandLine &subcommand, const Arguments &global)
{
    QString specs;
    QString positional;
    for (const Argument &option : subcommand.arguments.list() + global.list()) {
        if (isPositional(option) && positional.isEmpty())
            positional = QLatin1Char(' ') + quoted(QLatin1Char('*') + zshArgument(option));
        if (isPositional(option))
            continue;
        QString text = option.description;
        text.replace(QLatin1Char('['), QLatin1Char('(')).replace(QLatin1Char(']'), QLatin1Char(')'));
        for (const QString &name : option.names) {
            specs += QLatin1Char(' ') +
                     quoted(QStringLiteral("%1[%2]%3")
                                .arg(name, text, takesValue(option) ? zshArgument(option) : QString()));
        }
    }
    return specs + positional;
}

QString fishValues(const Argument &argument)
{
    const QString names = namesFor(argument);
    return QLatin1Char(' ') + (names.isEmpty() ? QString::fromLatin1(rowOf(argument).fish)
                                               : QStringLiteral("-x -a %1").arg(quoted(names)));
}

QString fishOption(const Argument &option, const QString &condition)
{
    QString command = QStringLiteral("complete -c orv-workflow%1").arg(condition);
    for (const QString &name : option.names) {
        command += name.startsWith(QLatin1String("--")) ? QLatin1String(" -l ") + name.mid(2)
                                                        : QLatin1String(" -s ") + name.mid(1);
    }
    if (takesValue(option))
        command += fishValues(option);
    return command + QLatin1String(" -d ") + quoted(option.description) + QLatin1Char('\n');
}

QString fishSubcommand(const SubcommandLine &subcommand)
{
    QString script = QStringLiteral("complete -c orv-workflow -n __fish_use_subcommand -f -a %1 -d %2\n")
                         .arg(subcommand.name, quoted(subcommand.description));
    const QString condition = QStringLiteral(" -n '__fish_seen_subcommand_from %1'").arg(subcommand.name);
    bool hasPositional = false;
    for (const Argument &argument : subcommand.arguments.list()) {
        if (!isPositional(argument))
            script += fishOption(argument, condition);
        else if (!std::exchange(hasPositional, true))
            script += QStringLiteral("complete -c orv-workflow%1%2\n").arg(condition, fishValues(argument));
    }
    return script;
}

} // namespace

QString bashCompletion(const CommandLine &line)
{
    const QString global = namesIn(line.arguments);
    QString cases;
    QString values;
    for (const SubcommandLine &subcommand : line.subcommands) {
        cases += QStringLiteral("        %1) words=\"%2 %3\" ;;\n")
                     .arg(subcommand.name, namesIn(subcommand.arguments), global);
        values += bashValues(subcommand, line.arguments);
    }
    return QStringLiteral(
               "# bash completion for orv-workflow\n"
               "_orv_workflow_offer() {\n"
               "    compopt -o filenames 2> /dev/null\n"
               "    mapfile -t COMPREPLY < <(compgen \"$@\" -- \"$current\")\n"
               "}\n"
               "_orv_workflow() {\n"
               "    local current=\"${COMP_WORDS[COMP_CWORD]}\" previous=\"${COMP_WORDS[COMP_CWORD-1]}\"\n"
               "    local subcommand=\"\" word words\n"
               "    COMPREPLY=()\n"
               "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
               "        case \"$word\" in -*) ;; *) subcommand=\"$word\"; break ;; esac\n"
               "    done\n"
               "%1"
               "    case \"$subcommand\" in\n"
               "%2"
               "        *) words=\"%3 %4\" ;;\n"
               "    esac\n"
               "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
               "}\n"
               "complete -F _orv_workflow orv-workflow\n")
        .arg(values, cases, namesOf(line.subcommands), global);
}

QString zshCompletion(const CommandLine &line)
{
    QString described;
    QString cases;
    for (const SubcommandLine &subcommand : line.subcommands) {
        described += QStringLiteral("        %1\n")
                         .arg(quoted(subcommand.name + QLatin1Char(':') + subcommand.description));
        cases += QStringLiteral("        %1) _arguments%2 ;;\n")
                     .arg(subcommand.name, zshSpecifications(subcommand, line.arguments));
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

QString fishCompletion(const CommandLine &line)
{
    QString script = QStringLiteral("# fish completion for orv-workflow\n");
    for (const Argument &option : line.arguments.list()) {
        if (!isPositional(option))
            script += fishOption(option, {});
    }
    for (const SubcommandLine &subcommand : line.subcommands)
        script += fishSubcommand(subcommand);
    return script;
}

} // namespace orv::cli
