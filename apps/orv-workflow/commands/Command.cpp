#include "Command.h"

#include "Console.h"

#include <QJsonDocument>

#include <algorithm>

namespace orv::cli {

namespace {

int print(const QByteArray &bytes)
{
    if (writeStandardOutput(bytes))
        return Done;
    printFailure(QStringLiteral("-"),
                 {BadOutput, 0, QStringLiteral("The standard output can't be written.")});
    return BadOutput;
}

} // namespace

void GlobalOptions::declare(Arguments &arguments)
{
    arguments.flag("--json", &json, "Print one JSON document");
    arguments.flag("--progress", &progress, "Show progress though standard error is no terminal");
    arguments.counter("-v", &verbosity, "Show info lines of the library; twice: debug lines too");
    arguments.option("--log", &logFile, "Append the library's log lines to this file",
                     {.kind = ValueKind::File, .use = FileUse::Written});
    arguments.version("--version", "Display program version information and exit");
}

Command::~Command() = default;

const std::vector<CommandRow> &commandRows()
{
    static const std::vector<CommandRow> rows = {
        {"info", "Show version, state, tabs, columns, cells and samples of workflows",
         "orv-workflow info examples/workflows", createInfoCommand},
        {"convert", "Load a workflow into objects and write it again",
         "orv-workflow convert old.wflw -o new.wflw --stamp", createConvertCommand},
        {"upgrade", "Bring workflows of earlier format versions into the present form",
         "orv-workflow upgrade archive --in-place --backup", createUpgradeCommand},
        {"check", "Check workflows for what would make them fail",
         "orv-workflow check studies --format sarif > findings.sarif", createCheckCommand},
        {"diff", "Tell in what two workflows differ", "orv-workflow diff old.wflw new.wflw",
         createDiffCommand},
        {"get", "Show the settings in a cell", "orv-workflow get study.wflw --tab Search --column 0 --row 0",
         createGetCommand},
        {"set", "Change settings in a cell",
         "orv-workflow set study.wflw --tab Search --column 0 KarvonCentroidTopk=200 -o new.wflw",
         createSetCommand},
        {"table", "Show the table in a cell",
         "orv-workflow table study.wflw --tab Sequences --column 0 --csv", createTableCommand},
        {"samples", "List the samples, and those that patterns choose",
         "orv-workflow samples study.wflw --match 'lot*'", createSamplesCommand},
        {"references", "List the files and server objects that a workflow names",
         "orv-workflow references study.wflw --check", createReferencesCommand},
        {"fasta", "Write the proteins of a workflow as FASTA text",
         "orv-workflow fasta study.wflw -o study.fasta", createFastaCommand},
        {"portable", "Gather a workflow and the files that its settings name in one folder",
         "orv-workflow portable study.wflw -o study.wflwp", createPortableCommand},
        {"relink", "Let workflows refer to files that have moved",
         "orv-workflow relink studies --from 'D:\\data' --to /mnt/data --in-place --backup",
         createRelinkCommand},
        {"detect", "Tell the formats of mass-spectrometry files and folders",
         "orv-workflow detect runs/*.raw runs/*.d", createDetectCommand},
        {"new", "Make a workflow with default contents",
         "orv-workflow new --name Check --cell Samples --cell Intact -o check.wflw", createNewCommand},
        {"xenoset", "Write the parameter files of the search engine",
         "orv-workflow xenoset study.wflw --all --database human.fasta -o parameters", createXenosetCommand},
        {"read-xenoset", "Show the settings in a parameter file of the search engine",
         "orv-workflow read-xenoset parameters/A01.xenoset", createReadXenosetCommand},
        {"prv", "Write the parameter file of the preview engine",
         "orv-workflow prv preview.wflw --spectra qc.raw --database human.fasta -o preview.prv",
         createPrvCommand},
        {"read-prv", "Show the settings in a parameter file of the preview engine",
         "orv-workflow read-prv preview.prv", createReadPrvCommand},
        {"properties", "Explain the settings that cells may hold", "orv-workflow properties 55",
         createPropertiesCommand},
        {"schema", "Print a JSON Schema of the file format, for editors",
         "orv-workflow schema > wflw.schema.json", createSchemaCommand},
        {"types", "List the workflow types and the cell types", "orv-workflow types --json",
         createTypesCommand},
    };
    return rows;
}

int printFailedCall(const QString &file, const Failure &failure, const QJsonObject &document,
                    const GlobalOptions &options)
{
    printFailure(file, failure);
    const int printed = options.json ? printJson(document) : Done;
    return std::max<int>(failure.exitCode, printed);
}

int printFailedCall(const QString &file, const Failure &failure, const GlobalOptions &options)
{
    return printFailedCall(file, failure, {{QStringLiteral("error"), toJson(failure)}}, options);
}

int printWrongUsage(const QString &argument, const QString &message, const GlobalOptions &options)
{
    return printFailedCall(argument, {WrongUsage, 0, message}, options);
}

int printJson(const QJsonObject &object)
{
    return print(QJsonDocument(object).toJson());
}

int printJson(const QJsonArray &array)
{
    return print(QJsonDocument(array).toJson());
}

int printText(const QString &text)
{
    return print(text.toLocal8Bit());
}

int printBytes(const QByteArray &bytes)
{
    return print(bytes);
}

} // namespace orv::cli
