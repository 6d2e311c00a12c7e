#include "orv/widgets/JavaChecker.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace orv::JavaChecker {

namespace {

struct JavaCheckerTr
{
    Q_DECLARE_TR_FUNCTIONS(JavaChecker)
};

constexpr int kWaitMs = 10000;

QString javaProgram()
{
    const QString home = qEnvironmentVariable("JAVA_HOME");
    const QString name = QStringLiteral("java");
    const QString ofHome =
        home.isEmpty() ? QString()
                       : QStandardPaths::findExecutable(name, {QDir(home).filePath(QStringLiteral("bin"))});
    return ofHome.isEmpty() ? QStandardPaths::findExecutable(name) : ofHome;
}

int told(Answer answer, const QString &text, QString *message)
{
    if (message)
        *message = text;
    return answer;
}

} // namespace

int majorVersion(const QString &output)
{
    static const QRegularExpression version(QStringLiteral("version \"(?:1\\.)?(\\d{1,4})"));
    const QRegularExpressionMatch match = version.match(output);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

int isJavaInstalled(QString *message)
{
    const QString program = javaProgram();
    if (program.isEmpty())
        return told(NotFound,
                    JavaCheckerTr::tr("The Java runtime is missing. Install version %1 or later, or set "
                                      "JAVA_HOME to its folder.")
                        .arg(kLowestVersion),
                    message);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, {QStringLiteral("-version")}, QIODevice::ReadOnly);
    const bool isFinished = process.waitForFinished(kWaitMs);
    if (!isFinished)
        process.kill();
    const int version = majorVersion(QString::fromLocal8Bit(process.readAll()));
    if (!isFinished || process.exitCode() != 0 || version < 0)
        return told(
            Fails,
            JavaCheckerTr::tr("The Java runtime \"%1\" doesn't work. Install it anew, or set JAVA_HOME "
                              "to another one.")
                .arg(program),
            message);
    if (version < kLowestVersion)
        return told(TooOld,
                    JavaCheckerTr::tr("The Java runtime \"%1\" has version %2. Install version %3 or later.")
                        .arg(program)
                        .arg(version)
                        .arg(kLowestVersion),
                    message);
    return told(Usable, QString(), message);
}

} // namespace orv::JavaChecker
