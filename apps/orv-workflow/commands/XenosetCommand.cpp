#include "../Batch.h"
#include "../ColumnChoice.h"
#include "../CommonArguments.h"
#include "../Console.h"
#include "../FileIdentity.h"
#include "../Inputs.h"
#include "../Losses.h"
#include "../Output.h"
#include "../Progress.h"
#include "../ReferredFiles.h"
#include "Command.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/SysUtils.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>

#include <QDir>
#include <QHash>

namespace orv::cli {

namespace {

constexpr QLatin1String kSuffix(".xenoset");
/// Names of samples in a remark; a study has hundreds.
constexpr qsizetype kNamedSamples = 3;

/// A parameter file of one sample and one column.
struct ParameterFile
{
    QString sample;
    QString column;
    std::shared_ptr<const KarvonPresetCreator> creator;
    QString path;                            ///< empty for standard output
    QByteArray text;                         ///< kept where it is to be printed
    std::optional<QString> spectraFile = {}; ///< nothing where it can't be had
    std::optional<Failure> failure = {};
};

using Files = std::vector<ParameterFile>;

QJsonObject toJson(const ParameterFile &file)
{
    QJsonObject json{
        {QStringLiteral("sample"), file.sample},
        {QStringLiteral("column"), file.column},
        {QStringLiteral("path"), file.path.isEmpty() || file.failure ? QJsonValue() : QJsonValue(file.path)},
        {QStringLiteral("spectraFile"), file.spectraFile ? QJsonValue(*file.spectraFile) : QJsonValue()},
        {QStringLiteral("error"), errorJson(file.failure)}};
    if (file.path.isEmpty())
        json.insert(QStringLiteral("text"), QString::fromUtf8(file.text));
    return json;
}

/// Fails for the first two files that would be written to one path.
Outcome<void> refuseClash(const Files &files)
{
    QHash<QString, const ParameterFile *> byPath;
    for (const ParameterFile &file : files) {
        const ParameterFile *&other = byPath[file.path];
        if (!other) {
            other = &file;
            continue;
        }
        return Failure{
            Negative, 0,
            QStringLiteral("\"%1\" would be written for the sample \"%2\" of the column \"%3\" and "
                           "for the sample \"%4\" of the column \"%5\": nothing was written. Give "
                           "them names that differ, or choose one column.")
                .arg(file.path, other->sample, other->column, file.sample, file.column)};
    }
    return {};
}

class XenosetCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.option("--sample", &m_sample, "Write the file of this sample",
                         {.excludes = {QStringLiteral("--all")}});
        arguments.flag("--all", &m_all, "Write a file for every sample");
        arguments.option("--database", &m_database, "Sequence database that the files name (default: none)",
                         {.kind = ValueKind::File});
        m_columns.declare(arguments);
        arguments.option("-o,--output", &m_output,
                         "File to write (default: standard output), or with --all the folder",
                         {.kind = ValueKind::File, .use = FileUse::Written});
        declareJobs(arguments, &m_jobs);
    }

    int run(const GlobalOptions &options) override
    {
        if (m_sample.isEmpty() != m_all || (m_all && (m_output.isEmpty() || m_output == kStandardInput))) {
            return printWrongUsage(QStringLiteral("xenoset"),
                                   QStringLiteral("Give --sample NAME, or --all with -o FOLDER."), options);
        }
        const Outcome<LoadedWorkflow> workflow = loadResolvedWorkflow(m_file);
        if (workflow.hasFailed())
            return report({}, workflow.failure(), options);
        printLosses(m_file, workflow->lost);
        Outcome<Files> files = m_all ? filesOfAll(*workflow) : fileOfOne(*workflow);
        if (files.hasFailed())
            return report({}, files.failure(), options);
        make(*files, options);
        return report(*files, missingSample(*workflow->content), options);
    }

private:
    static std::shared_ptr<const KarvonPresetCreator> creatorOf(const LoadedWorkflow &workflow,
                                                                const ChosenCell &cell)
    {
        return std::make_shared<const KarvonPresetCreator>(*workflow.content, *cell.item);
    }

    [[nodiscard]] Outcome<Files> fileOfOne(const LoadedWorkflow &workflow) const
    {
        const Outcome<QList<ChosenCell>> cells = m_columns.cells(workflow, {BaseItemType::Karvon});
        if (cells.hasFailed())
            return cells.failure();
        if (cells->size() > 1) {
            return Failure{WrongUsage, 0,
                           QStringLiteral("The workflow has %1 cells with settings of a search; choose one "
                                          "with --tab and --column, or write all with --all.")
                               .arg(cells->size())};
        }
        const QString path = m_output == kStandardInput ? QString() : m_output;
        if (const Outcome<void> allowed = refuseReferred(workflow.document, m_file, {path});
            allowed.hasFailed())
            return allowed.failure();
        return Files{{m_sample, cells->first().column, creatorOf(workflow, cells->first()), path, {}}};
    }

    [[nodiscard]] Outcome<Files> filesOfAll(const LoadedWorkflow &workflow) const
    {
        const Outcome<QList<ChosenCell>> cells = m_columns.cells(workflow, {BaseItemType::Karvon});
        if (cells.hasFailed())
            return cells.failure();
        const QStringList samples = workflow.content->sampleNames();
        if (samples.isEmpty())
            return Failure{Negative, 0, QStringLiteral("The workflow has no samples.")};
        const QDir folder(m_output);
        Files files;
        for (const ChosenCell &cell : *cells) {
            const auto creator = creatorOf(workflow, cell);
            const QString column = cells->size() > 1 ? QLatin1Char('.') + cell.column : QString();
            for (const QString &sample : samples) {
                const QString name = FileNameUtils::nameFromText(sample + column) + kSuffix;
                files.push_back({sample, cell.column, creator, folder.filePath(name), {}});
            }
        }
        if (const Outcome<void> allowed = refuseClash(files); allowed.hasFailed())
            return allowed.failure();
        if (const Outcome<void> allowed = refuseInputs(files, workflow.document); allowed.hasFailed())
            return allowed.failure();
        if (!QDir().mkpath(folder.path())) {
            return Failure{BadOutput, int(ErrorCode::CannotOpenFile),
                           QStringLiteral("The folder \"%1\" can't be made.").arg(folder.path())};
        }
        return files;
    }

    [[nodiscard]] Outcome<void> refuseInputs(const Files &files, const QJsonObject &document) const
    {
        QStringList outputs;
        for (const ParameterFile &file : files) {
            outputs.append(file.path);
            for (const QString &input : {workflowFileOf(m_file), m_database}) {
                if (!input.isEmpty() && isSameFile(file.path, input)) {
                    return Failure{WrongUsage, 0,
                                   QStringLiteral("The parameter file of the sample \"%1\" would be written "
                                                  "over \"%2\". Nothing was written; name another folder.")
                                       .arg(file.sample, input)};
                }
            }
        }
        return refuseReferred(document, m_file, outputs);
    }

    void make(Files &files, const GlobalOptions &options) const
    {
        Progress progress(options.progress || standardErrorIsTerminal(), qsizetype(files.size()));
        runBatch(qsizetype(files.size()), m_jobs, progress, [&](qsizetype i) {
            ParameterFile &file = files[size_t(i)];
            if (const Result<QString> spectra = file.creator->spectraFileOf(file.sample))
                file.spectraFile = *spectra;
            file.text = file.creator->presetForSpectra(file.spectraFile.value_or(QString()), m_database);
            if (file.path.isEmpty())
                return;
            file.failure = writeReproducibleOutput(file.path, file.text).failureIfAny();
            file.text.clear();
        });
    }

    [[nodiscard]] std::optional<Failure> missingSample(const PropertyEditor::Content &content) const
    {
        if (m_all || content.sampleNames().contains(m_sample))
            return {};
        return Failure{
            Negative, 0,
            QStringLiteral("The workflow has no sample \"%1\"; its file names no spectra.").arg(m_sample)};
    }

    /// What can't be searched, as its spectra aren't here.
    void remarkMissingSpectra(const Files &files) const
    {
        QStringList missing;
        for (const ParameterFile &file : files) {
            if (!file.spectraFile && !missing.contains(file.sample))
                missing.append(file.sample);
        }
        if (missing.isEmpty())
            return;
        const bool areMany = missing.size() > kNamedSamples;
        const QString names = missing.first(qMin(missing.size(), kNamedSamples)).join(QLatin1String(", "));
        printRemark(
            m_file,
            QStringLiteral("The spectra of %1 can't be reached from here; the key SpectraFiles is empty.")
                .arg(areMany ? QStringLiteral("%1 and %2 more samples")
                                   .arg(names)
                                   .arg(missing.size() - kNamedSamples)
                             : names));
    }

    int report(const Files &files, const std::optional<Failure> &failure, const GlobalOptions &options) const
    {
        int exitCode = failure ? failure->exitCode : Done;
        std::optional<Failure> first = failure;
        if (failure)
            printFailure(m_file, *failure);
        else
            remarkMissingSpectra(files);
        QJsonArray array;
        qsizetype written = 0;
        for (const ParameterFile &file : files) {
            array.append(toJson(file));
            written += file.failure || file.path.isEmpty() ? 0 : 1;
            if (!file.failure)
                continue;
            printFailure(file.path, *file.failure);
            exitCode = std::max<int>(exitCode, file.failure->exitCode);
            if (!first)
                first = file.failure;
        }
        return std::max(exitCode, options.json
                                      ? printJson(QJsonObject{{QStringLiteral("files"), array},
                                                              {QStringLiteral("error"), errorJson(first)}})
                                      : printPlain(files, written));
    }

    [[nodiscard]] int printPlain(const Files &files, qsizetype written) const
    {
        if (files.size() == 1 && files.front().path.isEmpty())
            return printBytes(files.front().text);
        if (!m_all || written == 0)
            return Done;
        return printText(QStringLiteral("%1 parameter files in %2\n").arg(written).arg(m_output));
    }

    QString m_file;
    QString m_sample;
    QString m_database;
    QString m_output;
    ColumnChoice m_columns;
    int m_jobs = SysUtils::cpuCoresNumber();
    bool m_all = false;
};

} // namespace

std::unique_ptr<Command> createXenosetCommand()
{
    return std::make_unique<XenosetCommand>();
}

} // namespace orv::cli
