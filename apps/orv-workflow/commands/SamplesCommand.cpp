#include "../CommonArguments.h"
#include "../Console.h"
#include "../Inputs.h"
#include "Command.h"

#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

namespace orv::cli {

namespace {

struct SampleNames
{
    QStringList all;
    QStringList matching;
};

class SamplesCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        declareWorkflow(arguments, &m_file);
        arguments.options("--match", &m_patterns,
                          "Choose names by a pattern with *, ? and sets such as [12]; may be repeated",
                          {.takesFollowing = true});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<QJsonObject> document = readDocument(m_file);
        if (document.hasFailed())
            return printFailedCall(m_file, document.failure(), json({}, toJson(document.failure())), options);
        if (!document->value(QLatin1String("tabs")).isArray()) {
            const Failure failure{BadInput, 0,
                                  QStringLiteral("The document has no tabs, so it is no workflow.")};
            return printFailedCall(m_file, failure, json({}, toJson(failure)), options);
        }
        const SampleNames names = namesIn(*document);
        return options.json ? printJson(json(names, {})) : printText(text(names.matching));
    }

private:
    [[nodiscard]] SampleNames namesIn(const QJsonObject &document) const
    {
        const QStringList patterns = m_patterns.isEmpty() ? QStringList{QStringLiteral("*")} : m_patterns;
        // The samples of a workflow are those of its first table, as every other query has it.
        const QList<PropertiesGetter::CellData> tables =
            PropertiesGetter(PropertyEditorContent(document)).samples();
        if (tables.isEmpty())
            return {};
        const PropertiesGetter::CellData &table = tables.constFirst();
        return {PropertiesGetter::samplesMatchingRegExp(table, QStringLiteral("*")),
                PropertiesGetter::samplesMatchingRegExp(table, patterns)};
    }

    static QJsonObject json(const SampleNames &names, const QJsonValue &error)
    {
        return {{QStringLiteral("samples"), QJsonArray::fromStringList(names.all)},
                {QStringLiteral("matching"), QJsonArray::fromStringList(names.matching)},
                {QStringLiteral("error"), error}};
    }

    static QString text(const QStringList &names)
    {
        QString lines;
        for (const QString &name : names)
            lines += withoutControls(name) + QLatin1Char('\n');
        return lines;
    }

    QString m_file;
    QStringList m_patterns;
};

} // namespace

std::unique_ptr<Command> createSamplesCommand()
{
    return std::make_unique<SamplesCommand>();
}

} // namespace orv::cli
