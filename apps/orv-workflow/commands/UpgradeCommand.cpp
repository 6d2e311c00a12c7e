#include "../UpgradeReports.h"
#include "ChangeCommand.h"

#include <QJsonDocument>

namespace orv::cli {

namespace {

/// Nothing was lost by a document that needed nothing.
QString verdictOf(const UpgradeAnswer &answer)
{
    if (answer.failure)
        return QStringLiteral("not upgraded");
    if (!answer.isChanged)
        return QStringLiteral("in need of no upgrade");
    if (faultOf(answer))
        return QStringLiteral("upgraded with faults");
    return answer.lost.isEmpty() ? QStringLiteral("upgraded") : QStringLiteral("upgraded with losses");
}

class UpgradeCommand : public ChangeCommand
{
public:
    UpgradeCommand()
        : ChangeCommand(QStringLiteral("upgrade"))
    {}

protected:
    void declareMore(Arguments &arguments) override
    {
        arguments.flag("--no-sample-data", &m_noSampleData,
                       "Pass over the two steps 5.10.1 and 5.39.0, which open the samples' files; 5.6.0 "
                       "opens them all the same");
        arguments.option("--user", &m_user, "The name to stamp with (default: the current user)");
    }

    [[nodiscard]] FileReport report(const BatchInput &input, const QString &output,
                                    bool isJson) const override
    {
        UpgradeAnswer answer = upgradeWorkflow(
            input, {.accessSampleData = !m_noSampleData, .user = m_user, .silentServers = &m_silentServers});
        FileReport report{.text = {}, .file = input.file, .lost = answer.lost, .failure = answer.failure};
        WrittenDocument written;
        if (!answer.failure) {
            written = write({input.file, answer.original, answer.upgraded, answer.isChanged, answer.lost,
                             answer.malformed},
                            output, &report);
            answer.failure = report.failure;
        }
        report.text = isJson ? QJsonDocument(upgradeReportJson(answer, written)).toJson()
                             : upgradeReportText(answer, written).toLocal8Bit();
        report.verdict = verdictOf(answer);
        report.exitCode = answer.lost.isEmpty() && !faultOf(answer) ? Done : Negative;
        return report;
    }

private:
    QString m_user;
    bool m_noSampleData = false;
    mutable SilentServers m_silentServers;
};

} // namespace

std::unique_ptr<Command> createUpgradeCommand()
{
    return std::make_unique<UpgradeCommand>();
}

} // namespace orv::cli
