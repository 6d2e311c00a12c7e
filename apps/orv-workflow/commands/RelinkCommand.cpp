#include "../Console.h"
#include "../NewerDocument.h"
#include "../ValueText.h"
#include "ChangeCommand.h"

#include <orv/core/JsonMerge.h>
#include <orv/propertyeditor/workflow/WorkflowRelink.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace orv::cli {

namespace {

/// What became of the references of one document.
struct RelinkAnswer
{
    QString file;
    WorkflowRelinkReport report = {};
    ChangedDocument changed = {};
    WrittenDocument written = {};
    std::optional<Failure> failure = {};
};

QJsonValue existsJson(const std::optional<bool> &exists)
{
    return exists ? QJsonValue(*exists) : QJsonValue();
}

QString existsInWords(const std::optional<bool> &exists)
{
    if (!exists)
        return styled(QStringLiteral("unknown"), Style::Faint);
    return *exists ? styled(QStringLiteral("exists"), Style::Good)
                   : styled(QStringLiteral("missing"), Style::Bad);
}

QJsonObject toJson(const RelinkAnswer &answer)
{
    QJsonArray relinked;
    for (const WorkflowRelinkedReference &reference : answer.report.relinked) {
        relinked.append(QJsonObject{{QStringLiteral("path"), reference.path},
                                    {QStringLiteral("from"), reference.from},
                                    {QStringLiteral("to"), reference.to},
                                    {QStringLiteral("exists"), existsJson(reference.exists)}});
    }
    QJsonArray left;
    for (const WorkflowLeftReference &reference : answer.report.left) {
        left.append(QJsonObject{{QStringLiteral("path"), reference.path},
                                {QStringLiteral("text"), reference.text},
                                {QStringLiteral("exists"), existsJson(reference.exists)}});
    }
    return {{QStringLiteral("file"), answer.file},
            {QStringLiteral("output"), orNull(answer.written.output)},
            {QStringLiteral("backup"), orNull(answer.written.backup)},
            {QStringLiteral("relinked"), relinked},
            {QStringLiteral("left"), left},
            {QStringLiteral("error"), errorJson(answer.failure)}};
}

QString headline(const RelinkAnswer &answer)
{
    QString text = styled(withoutControls(answer.file), Style::Heading) + QLatin1String(": ");
    if (answer.failure)
        return text + styled(QStringLiteral("not written"), Style::Bad);
    const qsizetype count = answer.report.relinked.size();
    text += count == 0   ? QStringLiteral("no such reference")
            : count == 1 ? QStringLiteral("1 reference")
                         : QStringLiteral("%1 references").arg(count);
    if (!answer.written.output.isEmpty())
        text += withoutControls(QStringLiteral(", written to %1").arg(answer.written.output));
    if (!answer.written.backup.isEmpty())
        text += withoutControls(QStringLiteral(", as it was in %1").arg(answer.written.backup));
    return text;
}

QString toText(const RelinkAnswer &answer)
{
    QString text = headline(answer) + QLatin1Char('\n');
    for (const WorkflowRelinkedReference &reference : answer.report.relinked) {
        text += withoutControls(
                    QStringLiteral("  %1: %2 -> %3, ").arg(reference.path, reference.from, reference.to)) +
                existsInWords(reference.exists) + QLatin1Char('\n');
    }
    for (const WorkflowLeftReference &reference : answer.report.left) {
        text += withoutControls(QStringLiteral("  %1: %2, left, ").arg(reference.path, reference.text)) +
                existsInWords(reference.exists) + QLatin1Char('\n');
    }
    return text;
}

class RelinkCommand : public ChangeCommand
{
public:
    RelinkCommand()
        : ChangeCommand(QStringLiteral("relink"))
    {}

protected:
    void declareMore(Arguments &arguments) override
    {
        arguments.options("--from", &m_from,
                          "What references begin with now; may be repeated, each with a --to",
                          {.isRequired = true});
        arguments.options("--to", &m_to, "What they are to begin with", {.isRequired = true});
    }

    [[nodiscard]] Outcome<void> checkUsage() const override
    {
        if (m_from.size() != m_to.size()) {
            return Failure{WrongUsage, 0,
                           QStringLiteral("Every --from needs a --to; there are %1 and %2.")
                               .arg(m_from.size())
                               .arg(m_to.size())};
        }
        if (!m_from.contains(QString()) && !m_to.contains(QString()))
            return {};
        return Failure{
            WrongUsage, 0,
            QStringLiteral("The text of %1 is empty; name what references begin with, \".\" for the "
                           "workflow's own folder.")
                .arg(m_from.contains(QString()) ? QStringLiteral("--from") : QStringLiteral("--to"))};
    }

    [[nodiscard]] FileReport report(const BatchInput &input, const QString &output,
                                    bool isJson) const override
    {
        RelinkAnswer answer{.file = input.file, .failure = input.failure};
        if (!answer.failure)
            answer.failure = relink(&answer).failureIfAny();
        FileReport report{.text = {}, .file = input.file, .lost = {}, .failure = answer.failure};
        if (!answer.failure) {
            answer.written = write(answer.changed, output, &report);
            answer.failure = report.failure;
        }
        report.text = isJson ? QJsonDocument(toJson(answer)).toJson() : toText(answer).toLocal8Bit();
        report.verdict = answer.failure                     ? QStringLiteral("not written")
                         : answer.report.relinked.isEmpty() ? QStringLiteral("without such a reference")
                                                            : QStringLiteral("relinked");
        return report;
    }

private:
    [[nodiscard]] Outcome<void> relink(RelinkAnswer *answer) const
    {
        const Outcome<FileText> text = readText(answer->file);
        if (text.hasFailed())
            return text.failure();
        Outcome<void> allowed =
            refuseNewer(text->document, QStringLiteral("is not changed; use the software that wrote it"));
        if (allowed.hasFailed())
            return allowed;
        if (!text->document.value(QLatin1String("tabs")).isArray())
            return Failure{BadInput, 0, QStringLiteral("The document has no tabs, so it is no workflow.")};
        QList<WorkflowRelinkRule> rules;
        for (qsizetype i = 0; i < m_from.size(); ++i)
            rules.append({m_from.at(i), m_to.at(i)});
        Result<WorkflowRelinkReport> report =
            WorkflowRelink::run(text->document, rules, folderUrlOf(answer->file));
        if (report.hasError())
            return failureFrom(report.error(), BadInput);
        answer->report = *report;
        answer->changed = {.file = answer->file,
                           .original = text->bytes,
                           .bytes = text->bytes,
                           .isChanged = !report->relinked.isEmpty(),
                           .lost = {},
                           .malformed = {}};
        if (answer->changed.isChanged)
            answer->changed.bytes = mergedJson(text->bytes, report->document);
        return {};
    }

    QStringList m_from;
    QStringList m_to;
};

} // namespace

std::unique_ptr<Command> createRelinkCommand()
{
    return std::make_unique<RelinkCommand>();
}

} // namespace orv::cli
