#include "ShellSupport.h"

#include "Completions.h"
#include "ManPages.h"
#include "Output.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace orv::cli {

namespace {

struct SupportFile
{
    const char *kind;
    const char *path;
    QString (*generate)(const CommandLine &line);
};

constexpr std::array kSupportFiles = {
    SupportFile{"bash", "bash-completion/completions/orv-workflow", &bashCompletion},
    SupportFile{"zsh", "zsh/site-functions/_orv-workflow", &zshCompletion},
    SupportFile{"fish", "fish/vendor_completions.d/orv-workflow.fish", &fishCompletion},
    SupportFile{"man", "man/man1/orv-workflow.1", &manPage},
};

constexpr QLatin1String kManPrefix("man-");

QString pathOf(const QString &kind)
{
    for (const SupportFile &row : kSupportFiles) {
        if (kind == QLatin1String(row.kind))
            return QLatin1String(row.path);
    }
    return QStringLiteral("man/man1/orv-workflow-%1.1").arg(kind.mid(kManPrefix.size()));
}

} // namespace

QStringList shellSupportKinds(const CommandLine &line)
{
    QStringList kinds;
    for (const SupportFile &row : kSupportFiles)
        kinds.append(QLatin1String(row.kind));
    for (const SubcommandLine &subcommand : line.subcommands)
        kinds.append(kManPrefix + subcommand.name);
    return kinds;
}

QString generateShellSupport(const QString &kind, const CommandLine &line)
{
    for (const SupportFile &row : kSupportFiles) {
        if (kind == QLatin1String(row.kind))
            return row.generate(line);
    }
    for (const SubcommandLine &subcommand : line.subcommands) {
        if (kind == kManPrefix + subcommand.name)
            return manPage(line, subcommand);
    }
    return {};
}

Outcome<void> writeShellSupport(const QString &folder, const CommandLine &line)
{
    for (const QString &kind : shellSupportKinds(line)) {
        const QString path = QDir(folder).filePath(pathOf(kind));
        if (!QDir().mkpath(QFileInfo(path).path()))
            return Failure{BadOutput, 0, QStringLiteral("The folder of \"%1\" can't be made.").arg(path)};
        Outcome<void> written = writeReproducibleOutput(path, generateShellSupport(kind, line).toUtf8());
        if (written.hasFailed())
            return written;
    }
    return {};
}

} // namespace orv::cli
