#include "../CommonArguments.h"
#include "../FileIdentity.h"
#include "../Inputs.h"
#include "../LoadedWorkflow.h"
#include "../Losses.h"
#include "../NewerDocument.h"
#include "../Output.h"
#include "../ReferredFiles.h"
#include "Command.h"

#include <orv/core/JsonNumbers.h>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/CellStamps.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace orv::cli {

namespace {

using PropertyEditor::Content;

/// The content mode of old documents, which the object form passes over and the value form takes up.
constexpr QLatin1String kLegacyModePath("/projectCreationMode");

struct Conversion
{
    QList<Loss> lost;
    std::optional<Failure> failure;
};

class ConvertCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.option("-o,--output", &m_output, "Where to write; - for standard output",
                         {.isRequired = true, .kind = ValueKind::File, .use = FileUse::WrittenAsTold});
        arguments.flag("--absolute-paths", &m_absolutePaths,
                       "Write relative file references as absolute ones");
        arguments.flag("--skip-type-validation", &m_skipTypeValidation, "Accept cells of unknown types");
        arguments.flag("--stamp", &m_stamp, "Renew user, time and version");
        arguments.flag("--fail-on-loss", &m_failOnLoss,
                       "Write nothing where something of the workflow would be lost");
        arguments.option("--user", &m_user, "The name to stamp with (default: the current user)");
    }

    int run(const GlobalOptions &options) override
    {
        if (!m_user.isEmpty() && !m_stamp) {
            return printWrongUsage(QStringLiteral("--user"), QStringLiteral("The option needs --stamp."),
                                   options);
        }
        const Conversion conversion = convert();
        int exitCode = conversion.failure ? conversion.failure->exitCode : Done;
        // Standard output holds one document: the workflow or, where none was written, the report.
        const bool workflowIsPrinted =
            m_output == kStandardInput && exitCode != BadInput && exitCode != Negative;
        if (options.json && !workflowIsPrinted)
            exitCode = std::max(exitCode, printJson(toJson(conversion)));
        else
            printLosses(m_file, conversion.lost);
        if (conversion.failure)
            printFailure(conversion.failure->exitCode == BadOutput ? m_output : m_file, *conversion.failure);
        return exitCode;
    }

private:
    [[nodiscard]] Conversion convert() const
    {
        const Outcome<FileText> text = readText(m_file);
        if (text.hasFailed())
            return {{}, text.failure()};
        const QJsonObject &document = text->document;
        if (const Outcome<void> allowed = refuseToDropNewer(document); allowed.hasFailed())
            return {{}, allowed.failure()};
        if (const Outcome<void> allowed = refuseReferred(document, m_file, {m_output}); allowed.hasFailed())
            return {{}, allowed.failure()};

        Content content;
        QList<Loss> lost;
        const Error error = load(document, content, lost);
        lost += lossesOfNumbers(text->bytes);
        if (error.hasError())
            return {lost, failureFrom(error, BadInput)};
        if (const PropertyEditor::ItemGroup *tab = content.firstUnevenGroup())
            return {lost, unevenFailure(tab->name())};
        if (const Outcome<void> allowed = refuseToLose(lost); allowed.hasFailed())
            return {lost, allowed.failure()};
        if (const Error unwritable = content.checkWritable())
            return {lost, failureFrom(unwritable, Negative)};
        return {lost, write(document, content).failureIfAny()};
    }

    Error load(const QJsonObject &json, Content &content, QList<Loss> &lost) const
    {
        PropertyEditor::ValidationOptions validation;
        validation.setFlag(PropertyEditor::ValidationOption::SkipTypeValidation, m_skipTypeValidation);
        LossCollector collector;
        content.setLossObserver(&collector);
        Error error = content.assignFromJson(json, validation);
        content.setLossObserver(nullptr);
        lost = collector.losses();
        if (error.hasError() || !m_stamp)
            return error;

        // The value form mends and drops without a word: only the load above tells what the document loses.
        LossCollector stamps;
        CellStamps::reportLosses(json, &stamps);
        lost += stamps.losses();
        if (!content.metadata().contains(PropertyEditorStringConstants::CONTENT_MODE_KEY))
            lost.removeIf([](const Loss &loss) { return loss.path == kLegacyModePath; });
        return content.assignFromJson(stamped(json), validation);
    }

    [[nodiscard]] Outcome<void> refuseToDropNewer(const QJsonObject &json) const
    {
        if (m_stamp)
            return refuseNewer(json, QStringLiteral("is not stamped with an older one; leave out --stamp"));
        if (isSameFile(workflowFileOf(m_file), m_output))
            return refuseNewer(json, QStringLiteral("is not written over; name another output"));
        return {};
    }

    /// The only copy isn't replaced by less.
    [[nodiscard]] Outcome<void> refuseToLose(const QList<Loss> &lost) const
    {
        if (lost.isEmpty())
            return {};
        if (m_failOnLoss)
            return Failure{Negative, 0, QStringLiteral("Not written, since something would be lost.")};
        if (isSameFile(workflowFileOf(m_file), m_output)) {
            return Failure{Negative, 0,
                           QStringLiteral("Not written over itself, since something would be lost; name "
                                          "another output.")};
        }
        return {};
    }

    QJsonObject stamped(const QJsonObject &json) const
    {
        PropertyEditorContent content(json);
        content.setCustomUser(m_user);
        return QJsonDocument::fromJson(content.toJson()).object();
    }

    static Failure unevenFailure(const QString &tab)
    {
        return {Negative, int(ErrorCode::MalformedStructure),
                QStringLiteral("The columns of the tab \"%1\" differ in height, and a tab is written as a "
                               "rectangle: nothing was written. Add the missing cells or remove the others.")
                    .arg(tab)};
    }

    Outcome<void> write(const QJsonObject &source, Content &content) const
    {
        auto flag = PropertyEditor::PropertyConversionFlag::KeepPaths;
        if (m_absolutePaths) {
            content.setBaseUrl(folderUrlOf(m_file));
            flag = PropertyEditor::PropertyConversionFlag::AbsolutePaths;
        }
        const QJsonObject json = content.toJsonObject(flag);
        return writeOutput(m_output,
                           QJsonDocument(m_stamp ? json : CellStamps::restored(json, source)).toJson());
    }

    [[nodiscard]] QJsonObject toJson(const Conversion &conversion) const
    {
        return {{QStringLiteral("file"), m_file},
                {QStringLiteral("output"), conversion.failure ? QJsonValue() : QJsonValue(m_output)},
                {QStringLiteral("lost"), orv::cli::toJson(conversion.lost)},
                {QStringLiteral("error"), errorJson(conversion.failure)}};
    }

    QString m_file;
    QString m_output;
    QString m_user;
    bool m_absolutePaths = false;
    bool m_skipTypeValidation = false;
    bool m_stamp = false;
    bool m_failOnLoss = false;
};

} // namespace

std::unique_ptr<Command> createConvertCommand()
{
    return std::make_unique<ConvertCommand>();
}

} // namespace orv::cli
