#include "../CommonArguments.h"
#include "../Console.h"
#include "../Inputs.h"
#include "../LoadedWorkflow.h"
#include "../Losses.h"
#include "Command.h"

#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <algorithm>
#include <optional>

namespace orv::cli {

namespace {

struct Finding
{
    ResourceReferenceSPtr reference;
    std::optional<bool> exists; ///< unset when nobody asked, or nobody knows
};

class ReferencesCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.flag("--check", &m_check,
                       "Tell whether each is there; relative paths count from the workflow");
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<LoadedWorkflow> workflow = loadWorkflow(m_file);
        if (workflow.hasFailed())
            return printFailedCall(m_file, workflow.failure(), json({}, toJson(workflow.failure())), options);
        printLosses(m_file, workflow->lost);
        const QList<Finding> findings = findingsIn(*workflow->content);
        const bool isMissing = std::any_of(findings.begin(), findings.end(),
                                           [](const Finding &finding) { return finding.exists == false; });
        const int printed = options.json ? printJson(json(findings, {})) : printText(text(findings));
        return std::max<int>(isMissing ? Negative : Done, printed);
    }

private:
    [[nodiscard]] QList<Finding> findingsIn(const PropertyEditor::Content &content) const
    {
        const QUrl folder = folderUrlOf(m_file);
        QList<Finding> findings;
        for (const ResourceReferenceSPtr &reference : content.allReferences()) {
            Finding finding{reference, {}};
            if (m_check) {
                const auto exists =
                    ResourceHandlerUtils::exists(ResourceReferenceUtils::resolved(reference, folder));
                finding.exists = exists.hasError() ? std::nullopt : std::optional(*exists);
            }
            findings.append(finding);
        }
        std::sort(findings.begin(), findings.end(), [](const Finding &a, const Finding &b) {
            return a.reference->text() < b.reference->text();
        });
        return findings;
    }

    static QJsonObject json(const QList<Finding> &findings, const QJsonValue &error)
    {
        QJsonArray references;
        for (const Finding &finding : findings) {
            references.append(QJsonObject{
                {QStringLiteral("text"), finding.reference->text()},
                {QStringLiteral("scheme"), int(finding.reference->scheme())},
                {QStringLiteral("exists"), finding.exists ? QJsonValue(*finding.exists) : QJsonValue()}});
        }
        return {{QStringLiteral("references"), references}, {QStringLiteral("error"), error}};
    }

    [[nodiscard]] QString text(const QList<Finding> &findings) const
    {
        QString lines;
        for (const Finding &finding : findings) {
            if (m_check)
                lines += verdict(finding.exists) + QLatin1String("  ");
            lines += withoutControls(finding.reference->readableText()) + QLatin1Char('\n');
        }
        return lines;
    }

    static QString verdict(std::optional<bool> exists)
    {
        if (!exists)
            return styled(QStringLiteral("unknown"), Style::Caution);
        return *exists ? styled(QStringLiteral("there  "), Style::Good)
                       : styled(QStringLiteral("missing"), Style::Bad);
    }

    QString m_file;
    bool m_check = false;
};

} // namespace

std::unique_ptr<Command> createReferencesCommand()
{
    return std::make_unique<ReferencesCommand>();
}

} // namespace orv::cli
