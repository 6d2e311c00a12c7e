#include "../Console.h"
#include "../Failure.h"
#include "Command.h"

#include <orv/core_ms/MsFileInfo.h>

#include <QFileInfo>

#include <algorithm>

namespace orv::cli {

namespace {

using msreader::DataSourceLocation;
using msreader::MsFileInfo;
using msreader::VendorDataFormat;

struct DetectAnswer
{
    QString path;
    QStringList formats;
    std::optional<Failure> failure;
};

/// Shells complete the name of a folder with a slash, which is no part of the name.
DataSourceLocation locationOf(QString path)
{
    while (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return DataSourceLocation::ofPath(path);
}

DetectAnswer answerFor(const QString &path, bool byName)
{
    DetectAnswer answer{path, {}, {}};
    const DataSourceLocation location = locationOf(path);
    const QSet<VendorDataFormat> found = MsFileInfo::detectFormat(location, byName, false);
    QList<VendorDataFormat> formats(found.begin(), found.end());
    std::sort(formats.begin(), formats.end());
    for (VendorDataFormat format : std::as_const(formats))
        answer.formats.append(msreader::vendorDataFormatToString(format));
    if (const Error error = DataSourceLocation::checkValidVendorFilePath(location.localPath)) {
        answer.failure = failureFrom(error, Negative);
    } else if (!byName && !QFileInfo::exists(path)) {
        answer.failure = Failure{Negative, int(ErrorCode::CannotOpenFile),
                                 QStringLiteral("There is no such file or folder.")};
    }
    return answer;
}

QJsonObject toJson(const DetectAnswer &answer)
{
    return {{QStringLiteral("path"), answer.path},
            {QStringLiteral("formats"), QJsonArray::fromStringList(answer.formats)},
            {QStringLiteral("error"), errorJson(answer.failure)}};
}

class DetectCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        arguments.positionals("PATH", &m_paths, "Files and folders of mass-spectrometry data",
                              {.isRequired = true, .kind = ValueKind::File});
        arguments.flag("--by-name", &m_byName, "Go by the name alone and list all formats that it may mean");
    }

    int run(const GlobalOptions &options) override
    {
        QList<DetectAnswer> answers;
        for (const QString &path : m_paths)
            answers.append(answerFor(path, m_byName));
        int exitCode = options.json ? printAnswersAsJson(answers) : printText(toText(answers));
        for (const DetectAnswer &answer : std::as_const(answers)) {
            if (answer.failure)
                printFailure(answer.path, *answer.failure);
            if (answer.failure || answer.formats.isEmpty())
                exitCode = std::max<int>(exitCode, Negative);
        }
        return exitCode;
    }

private:
    static int printAnswersAsJson(const QList<DetectAnswer> &answers)
    {
        QJsonArray array;
        for (const DetectAnswer &answer : answers)
            array.append(toJson(answer));
        return printJson(array);
    }

    [[nodiscard]] QString toText(const QList<DetectAnswer> &answers) const
    {
        qsizetype width = 0;
        for (const DetectAnswer &answer : answers)
            width = std::max(width, answer.path.size());
        QString text;
        for (const DetectAnswer &answer : answers)
            text += withoutControls(answer.path.leftJustified(width)) + QLatin1String("  ") +
                    verdict(answer) + QLatin1Char('\n');
        return text;
    }

    [[nodiscard]] QString verdict(const DetectAnswer &answer) const
    {
        if (!answer.formats.isEmpty())
            return styled(answer.formats.join(QLatin1String(", ")), Style::Good);
        const bool isMissing = !m_byName && !QFileInfo::exists(answer.path);
        return styled(isMissing ? QStringLiteral("no such file or folder") : QStringLiteral("not recognised"),
                      Style::Bad);
    }

    QStringList m_paths;
    bool m_byName = false;
};

} // namespace

std::unique_ptr<Command> createDetectCommand()
{
    return std::make_unique<DetectCommand>();
}

} // namespace orv::cli
