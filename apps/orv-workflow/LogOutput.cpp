#include "LogOutput.h"

#include "Console.h"

#include <orv/propertyeditor/validators/ContentValidator.h>

#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <cstdio>
#include <map>
#include <mutex>
#include <thread>

namespace orv::cli {

namespace {

struct Sink
{
    std::mutex mutex;
    std::FILE *file = stderr;
    bool repeatsFindings = false;
    std::map<std::thread::id, QString> documents; ///< that the threads of a batch work on

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

/// The report of a check tells its findings, and the library logs each, too.
bool isCopyOfFinding(const QString &text)
{
    static const QRegularExpression missingFile(QStringLiteral("^File \".*\" doesn't exist$"));
    return text.startsWith(PropertyEditor::ContentValidator::kLogPrefix) ||
           missingFile.match(text).hasMatch();
}

void writeLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    Sink &sink = Sink::instance();
    const std::lock_guard lock(sink.mutex);
    if (!sink.repeatsFindings && isCopyOfFinding(text))
        return;
    const auto document = sink.documents.find(std::this_thread::get_id());
    const QString about = document == sink.documents.end()
                              ? QString()
                              : withoutControls(document->second) + QLatin1String(": ");
    std::fprintf(sink.file, "%s: %s: %s%s\n", levelName(type),
                 context.category ? context.category : "default", about.toLocal8Bit().constData(),
                 text.toLocal8Bit().constData());
    std::fflush(sink.file);
}

QString filterRules(int verbosity)
{
    if (verbosity >= 2)
        return QStringLiteral("orv.*=true");
    return verbosity == 1 ? QStringLiteral("orv.*.info=true") : QString();
}

} // namespace

LogAbout::LogAbout(const QString &file)
{
    Sink &sink = Sink::instance();
    const std::lock_guard lock(sink.mutex);
    sink.documents.insert_or_assign(std::this_thread::get_id(), file);
}

LogAbout::~LogAbout()
{
    Sink &sink = Sink::instance();
    const std::lock_guard lock(sink.mutex);
    sink.documents.erase(std::this_thread::get_id());
}

bool installLogOutput(int verbosity, const QString &fileName)
{
    if (!fileName.isEmpty()) {
        std::FILE *file = std::fopen(QFile::encodeName(fileName).constData(), "a");
        if (!file)
            return false;
        Sink::instance().file = file;
    }
    Sink::instance().repeatsFindings = verbosity > 0;
    QLoggingCategory::setFilterRules(filterRules(verbosity));
    qInstallMessageHandler(writeLine);
    return true;
}

} // namespace orv::cli
