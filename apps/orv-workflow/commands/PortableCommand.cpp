#include "../CommonArguments.h"
#include "../Console.h"
#include "../Inputs.h"
#include "../LoadedWorkflow.h"
#include "../Losses.h"
#include "../Progress.h"
#include "Command.h"

#include <orv/propertyeditor/workflow/PortableSamples.h>
#include <orv/propertyeditor/workflow/PortableTarget.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/propertyeditor/workflow/WorkflowReferences.h>

#include <QDir>
#include <QFileInfo>

namespace orv::cli {

namespace {

constexpr QLatin1String kPortableSuffix(".wflwp");

/// The path without links, as far as it exists.
QString realPath(const QString &path)
{
    const QFileInfo info(QDir::cleanPath(QDir(path).absolutePath()));
    if (info.exists())
        return info.canonicalFilePath();
    const QString parent = info.path();
    return parent == info.filePath() ? parent : QDir(realPath(parent)).filePath(info.fileName());
}

bool isOrHolds(const QString &folder, const QString &path)
{
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

/// What the folder has, and what the workflow in it doesn't find there.
struct Carried
{
    QList<Loss> lost;
    QStringList names;
    QStringList dangling;
};

class SaveProgress : public PortableSaveObserver
{
public:
    SaveProgress(const QString &folder, bool enabled)
        : m_folder(folder)
        , m_enabled(enabled)
    {}

    void copying(const QString & /*source*/, qint64 done, qint64 total) override
    {
        if (!m_bar)
            m_bar.emplace(m_enabled, total, Progress::Unit::Bytes);
        m_bar->setDone(done);
    }

    void copied(const QString & /*source*/, const QString &destination) override
    {
        m_bar.reset();
        m_names.append(QDir(m_folder).relativeFilePath(QFileInfo(destination).absoluteFilePath()));
    }

    void dangling(const QString &text) override { m_dangling.append(text); }

    void failed(FileUtils::CopyFailure::Side side) override
    {
        m_bar.reset();
        m_exitCode = side == FileUtils::CopyFailure::Side::Source ? BadInput : BadOutput;
    }

    [[nodiscard]] const QStringList &names() const { return m_names; }
    [[nodiscard]] const QStringList &danglingTexts() const { return m_dangling; }
    [[nodiscard]] ExitCode exitCode() const { return m_exitCode; }

private:
    const QString m_folder;
    const bool m_enabled;
    std::optional<Progress> m_bar;
    QStringList m_names;
    QStringList m_dangling;
    ExitCode m_exitCode = BadOutput;
};

class PortableCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.flag("--with-samples", &m_withSamples,
                       "Copy the samples' files into the folder, too, and name the copies");
        arguments.option("-o,--output", &m_folder, "The folder to write; .wflwp is added where it lacks",
                         {.isRequired = true, .kind = ValueKind::Folder, .use = FileUse::WrittenAsTold});
    }

    int run(const GlobalOptions &options) override
    {
        const QString folder = targetFolder();
        Carried carried;
        const Outcome<void> saved = save(folder, options, &carried);
        const std::optional<Failure> &failure = saved.failureIfAny();
        if (!options.json)
            printLosses(m_file, carried.lost);
        if (failure)
            printFailure(failure->exitCode == BadOutput ? folder : m_file, *failure);
        for (const QString &text : std::as_const(carried.dangling)) {
            printRemark(
                m_file,
                QStringLiteral("\"%1\" isn't carried along, and isn't found from the folder.").arg(text));
        }
        const int exitCode = failure ? failure->exitCode : Done;
        if (options.json)
            return std::max(exitCode, printJson(report(folder, carried, failure)));
        return failure ? exitCode : printText(text(folder, carried));
    }

private:
    [[nodiscard]] QString targetFolder() const
    {
        QString folder = m_folder;
        while (folder.size() > 1 && folder.endsWith(QLatin1Char('/')))
            folder.chop(1);
        return WflwUtils::isMirelPortableWorkflow(folder) ? folder : folder + kPortableSuffix;
    }

    Outcome<void> save(const QString &folder, const GlobalOptions &options, Carried *carried) const
    {
        const Outcome<LoadedWorkflow> workflow = loadWorkflow(m_file);
        if (workflow.hasFailed())
            return workflow.failure();
        carried->lost = workflow->lost;
        if (const Outcome<void> allowed = refuseToWipe(folder, workflow->document); allowed.hasFailed())
            return allowed.failure();
        if (const Error foreign = PortableTarget::checkReplaceable(folder))
            return failureFrom(foreign, BadOutput);
        PortableTarget target(folder);
        if (const Error unready = target.prepare())
            return failureFrom(unready, BadOutput);
        SaveProgress progress(target.stagedFolder(), options.progress || standardErrorIsTerminal());
        if (Outcome<void> filled = fill(target, *workflow->content, &progress, carried); filled.hasFailed())
            return filled;
        if (const Error notReplaced = target.commit())
            return failureFrom(notReplaced, BadOutput);
        // Where the folder was made, files beside its place weren't found.
        carried->dangling.removeIf(
            [&folder](const QString &text) { return QFileInfo::exists(QDir(folder).filePath(text)); });
        return {};
    }

    Outcome<void> fill(const PortableTarget &target, const PropertyEditor::Content &content,
                       SaveProgress *progress, Carried *carried) const
    {
        QString error;
        const bool isSaved = WflwUtils::saveAsPortableWorkflow(content, target.stagedFolder(),
                                                               folderUrlOf(m_file), &error, progress);
        if (!isSaved) {
            if (error.isEmpty())
                error = QStringLiteral("The workflow can't be written into the folder.");
            return Failure{progress->exitCode(), 0, target.asInPlace(error)};
        }
        carried->names = progress->names();
        carried->dangling = progress->danglingTexts();
        if (!m_withSamples)
            return {};
        Outcome<void> carriedAlong = carrySamples(target.stagedFolder(), progress, carried);
        if (!carriedAlong.hasFailed())
            return {};
        Failure failure = carriedAlong.failure();
        failure.message = target.asInPlace(failure.message);
        return failure;
    }

    [[nodiscard]] Outcome<void> carrySamples(const QString &folder, SaveProgress *progress,
                                             Carried *carried) const
    {
        const PortableSamples::Report report = PortableSamples::carry(folder, folderUrlOf(m_file), progress);
        carried->names = progress->names();
        if (report.error)
            return failureFrom(report.error, progress->exitCode());
        carried->dangling.removeIf([&report](const QString &text) { return report.carried.contains(text); });
        for (const QString &text : report.missing) {
            if (!carried->dangling.contains(text))
                carried->dangling.append(text);
        }
        return {};
    }

    /// What stands at the target goes: not the workflow itself, nor a file that it refers to.
    [[nodiscard]] Outcome<void> refuseToWipe(const QString &folder, const QJsonObject &document) const
    {
        const QString target = realPath(folder);
        const QUrl base = folderUrlOf(m_file);
        if (!isStream(m_file)) {
            const QString home = realPath(base.toLocalFile());
            const bool isInside = WflwUtils::isMirelPortableWorkflow(home) && isOrHolds(home, target);
            if (isOrHolds(target, home) || isInside)
                return refusal(folder, QStringLiteral("the workflow's own folder"));
        }
        if (!QFileInfo::exists(target))
            return {};
        for (const QString &path : WorkflowReferences::localPaths(document, base)) {
            if (QFileInfo::exists(path) && isOrHolds(target, realPath(path)))
                return refusal(folder, path);
        }
        return {};
    }

    static Failure refusal(const QString &folder, const QString &what)
    {
        return {WrongUsage, 0,
                QStringLiteral("The folder %1 would be removed together with %2; name another folder.")
                    .arg(folder, what)};
    }

    static QJsonObject report(const QString &folder, const Carried &carried,
                              const std::optional<Failure> &failure)
    {
        const QString workflow = WflwUtils::workflowInPortableWorkflow(folder);
        return {
            {QStringLiteral("folder"), failure ? QJsonValue() : QJsonValue(folder)},
            {QStringLiteral("workflow"), failure ? QJsonValue() : QJsonValue(workflow)},
            {QStringLiteral("copied"), QJsonArray::fromStringList(failure ? QStringList() : carried.names)},
            {QStringLiteral("lost"), orv::cli::toJson(carried.lost)},
            {QStringLiteral("dangling"), QJsonArray::fromStringList(carried.dangling)},
            {QStringLiteral("error"), errorJson(failure)}};
    }

    static QString text(const QString &folder, const Carried &carried)
    {
        QString lines = withoutControls(WflwUtils::workflowInPortableWorkflow(folder)) + QLatin1Char('\n');
        for (const QString &name : carried.names)
            lines += withoutControls(folder + QLatin1Char('/') + name) + QLatin1Char('\n');
        return lines;
    }

    QString m_file;
    QString m_folder;
    bool m_withSamples = false;
};

} // namespace

std::unique_ptr<Command> createPortableCommand()
{
    return std::make_unique<PortableCommand>();
}

} // namespace orv::cli
