#include "../Console.h"
#include "../Failure.h"
#include "../Outcome.h"
#include "Command.h"

#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/engine/PreviewPreset.h>

namespace orv::cli {

namespace {

using Field = QPair<const char *, QJsonValue>;

QList<Field> fieldsOf(const PreviewPreset::Content &content)
{
    return {{"databaseFiles", content.databaseFiles},
            {"spectraFiles", content.spectraFiles},
            {"outputFolder", content.outputFolder},
            {"argMod", content.argMod},
            {"cTermMod", content.cTermMod},
            {"cysMod", content.cysMod},
            {"lysMod", content.lysMod},
            {"nTermMod", content.nTermMod},
            {"digestLetters", content.digestLetters},
            {"wildcard", content.wildcard},
            {"phosphoSearch", content.phosphoSearch},
            {"allCharges", content.allCharges},
            {"fragType", content.fragType},
            {"digestSide", content.digestSide},
            {"digestType", content.digestType}};
}

QString toText(const PreviewPreset::Content &content)
{
    QString text;
    for (const auto &[name, value] : fieldsOf(content)) {
        const QString line = QStringLiteral("%1 %2")
                                 .arg(QLatin1String(name), -14)
                                 .arg(withoutControls(value.toVariant().toString()));
        text += line.trimmed() + QLatin1Char('\n');
    }
    return text;
}

QJsonObject toJson(const PreviewPreset::Content &content)
{
    QJsonObject json{{QStringLiteral("error"), QJsonValue()}};
    for (const auto &[name, value] : fieldsOf(content))
        json.insert(QLatin1String(name), value);
    return json;
}

class ReadPrvCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        arguments.positional("PATH", &m_path, "Parameter file of the preview engine",
                             {.isRequired = true, .kind = ValueKind::File});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<PreviewPreset::Content> content = read();
        if (!content.hasFailed())
            return options.json ? printJson(toJson(*content)) : printText(toText(*content));
        const Failure &failure = content.failure();
        return printFailedCall(m_path, failure, {{QStringLiteral("error"), orv::cli::toJson(failure)}},
                               options);
    }

private:
    [[nodiscard]] Outcome<PreviewPreset::Content> read() const
    {
        const Result<PreviewPreset::Content> content = PreviewPreset::Content::fromPreviewPresetFile(m_path);
        if (content.hasError())
            return failureFrom(content.error(), BadInput);
        const Result<QByteArray> text = FileUtils::readFile(m_path);
        if (text && PreviewPreset::Content::isFileContent(*text))
            return *content;
        return Failure{BadInput, int(ErrorCode::InvalidContent),
                       QStringLiteral("The file holds no line of a parameter file, such as "
                                      "\"DigestLetters=RK\"; name a file that the preview engine reads.")};
    }

    QString m_path;
};

} // namespace

std::unique_ptr<Command> createReadPrvCommand()
{
    return std::make_unique<ReadPrvCommand>();
}

} // namespace orv::cli
