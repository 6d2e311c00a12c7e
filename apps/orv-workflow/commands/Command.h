#pragma once

#include "../Arguments.h"
#include "../Failure.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

namespace orv::cli {

/// The options that every subcommand has.
struct GlobalOptions
{
    bool json = false;
    bool progress = false;
    int verbosity = 0;
    QString logFile;

    void declare(Arguments &arguments);
};

/// A subcommand: declares its arguments, then runs.
class Command
{
public:
    Command() = default;
    virtual ~Command();
    Command(const Command &) = delete;
    Command &operator=(const Command &) = delete;

    virtual void declare(Arguments &arguments) = 0;
    /// The exit code.
    virtual int run(const GlobalOptions &options) = 0;
};

/// One row per subcommand.
struct CommandRow
{
    const char *name;
    const char *description;
    const char *example;
    std::unique_ptr<Command> (*create)();
};

[[nodiscard]] const std::vector<CommandRow> &commandRows();

std::unique_ptr<Command> createInfoCommand();
std::unique_ptr<Command> createCheckCommand();
std::unique_ptr<Command> createConvertCommand();
std::unique_ptr<Command> createDetectCommand();
std::unique_ptr<Command> createDiffCommand();
std::unique_ptr<Command> createFastaCommand();
std::unique_ptr<Command> createGetCommand();
std::unique_ptr<Command> createNewCommand();
std::unique_ptr<Command> createPortableCommand();
std::unique_ptr<Command> createPropertiesCommand();
std::unique_ptr<Command> createReferencesCommand();
std::unique_ptr<Command> createRelinkCommand();
std::unique_ptr<Command> createSamplesCommand();
std::unique_ptr<Command> createSchemaCommand();
std::unique_ptr<Command> createSetCommand();
std::unique_ptr<Command> createTableCommand();
std::unique_ptr<Command> createTypesCommand();
std::unique_ptr<Command> createUpgradeCommand();
std::unique_ptr<Command> createXenosetCommand();
std::unique_ptr<Command> createReadXenosetCommand();
std::unique_ptr<Command> createPrvCommand();
std::unique_ptr<Command> createReadPrvCommand();

/// Prints why the call failed and, with --json, the document that tells it; the exit code.
[[nodiscard]] int printFailedCall(const QString &file, const Failure &failure, const QJsonObject &document,
                                  const GlobalOptions &options);

/// The same for a call whose document tells the failure alone: {"error"}.
[[nodiscard]] int printFailedCall(const QString &file, const Failure &failure, const GlobalOptions &options);
/// What is wrong with \a argument; the exit code.
[[nodiscard]] int printWrongUsage(const QString &argument, const QString &message,
                                  const GlobalOptions &options);

/// Prints a JSON document; Done, or BadOutput when standard output fails.
[[nodiscard]] int printJson(const QJsonObject &object);
[[nodiscard]] int printJson(const QJsonArray &array);
[[nodiscard]] int printText(const QString &text);
/// Bytes as they stand, such as those of a file format.
[[nodiscard]] int printBytes(const QByteArray &bytes);

} // namespace orv::cli
