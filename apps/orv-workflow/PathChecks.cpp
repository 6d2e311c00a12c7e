#include "PathChecks.h"

#include "FileIdentity.h"
#include "Inputs.h"
#include "NativeNames.h"

namespace orv::cli {

namespace {

struct GivenPath
{
    QString path;
    FileUse use;
};

bool isPath(const Argument &argument)
{
    const ValueKind kind = argument.traits.kind;
    return kind == ValueKind::File || kind == ValueKind::Folder || kind == ValueKind::Workflow;
}

QStringList valuesOf(const Argument &argument)
{
    if (QString *const *text = std::get_if<QString *>(&argument.target))
        return (*text)->isEmpty() ? QStringList() : QStringList{**text};
    if (QStringList *const *texts = std::get_if<QStringList *>(&argument.target))
        return **texts;
    return {};
}

QList<GivenPath> pathsIn(const QList<Argument> &arguments)
{
    QList<GivenPath> paths;
    for (const Argument &argument : arguments) {
        if (!isPath(argument))
            continue;
        for (const QString &path : valuesOf(argument))
            paths.append({path, argument.traits.use});
    }
    return paths;
}

bool isClash(const GivenPath &other, const GivenPath &output)
{
    return other.use == FileUse::Read ? isSameFile(workflowFileOf(other.path), output.path)
                                      : isSameOutput(workflowFileOf(other.path), output.path);
}

std::optional<PathRefusal> refusedName(const QList<Argument> &arguments)
{
    for (const Argument &argument : arguments) {
        const bool isBatch = argument.traits.kind == ValueKind::Workflow &&
                             std::holds_alternative<QStringList *>(argument.target);
        if (!isPath(argument) || isBatch)
            continue;
        const ExitCode code = argument.traits.use == FileUse::Read ? BadInput : BadOutput;
        for (const QString &path : valuesOf(argument)) {
            if (const Outcome<void> name = checkName(path, code); name.hasFailed())
                return PathRefusal{path, name.failure()};
        }
    }
    return {};
}

} // namespace

std::optional<PathRefusal> refusedPath(const QList<Argument> &arguments)
{
    if (std::optional<PathRefusal> name = refusedName(arguments))
        return name;
    const QList<GivenPath> paths = pathsIn(arguments);
    for (const GivenPath &output : paths) {
        if (output.use != FileUse::Written)
            continue;
        for (const GivenPath &input : paths) {
            if (&input == &output || (input.use == FileUse::Written && &input < &output))
                continue;
            if (isClash(input, output)) {
                return PathRefusal{output.path,
                                   {WrongUsage, 0,
                                    QStringLiteral("It would be written over \"%1\", which this call uses, "
                                                   "too. Nothing was written; name another output.")
                                        .arg(input.path)}};
            }
        }
    }
    return {};
}

} // namespace orv::cli
