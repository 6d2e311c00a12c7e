#include "LogOutput.h"

#include <QFile>
#include <QLoggingCategory>

#include <cstdio>
#include <memory>
#include <mutex>

namespace orv::cli {

namespace {

struct Sink
{
    std::mutex mutex;
    std::FILE *file = stderr;

    static Sink &instance()
    {
        static Sink sink;
        return sink;
    }
};

const char *levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
    case QtFatalMsg:
        return "critical";
    }
    return "log";
}

void writeLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QByteArray line = text.toLocal8Bit();
    Sink &sink = Sink::instance();
    const std::lock_guard lock(sink.mutex);
    std::fprintf(sink.file, "%s: %s: %s\n", levelName(type), context.category ? context.category : "default",
                 line.constData());
    std::fflush(sink.file);
}

QString filterRules(int verbosity)
{
    if (verbosity >= 2)
        return QStringLiteral("orv.*=true");
    // Lines that nobody will see aren't put together either.
    return verbosity == 1 ? QStringLiteral("orv.*.debug=false")
                          : QStringLiteral("orv.*.debug=false\norv.*.info=false");
}

} // namespace

bool installLogOutput(int verbosity, const QString &fileName)
{
    if (!fileName.isEmpty()) {
        std::FILE *file = std::fopen(QFile::encodeName(fileName).constData(), "a");
        if (!file)
            return false;
        Sink::instance().file = file;
    }
    QLoggingCategory::setFilterRules(filterRules(verbosity));
    qInstallMessageHandler(writeLine);
    return true;
}

} // namespace orv::cli
