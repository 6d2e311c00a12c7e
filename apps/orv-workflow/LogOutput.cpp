#include "LogOutput.h"

#include "Console.h"

#include <orv/propertyeditor/validators/ContentValidator.h>

#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <mutex>
#include <thread>

namespace orv::cli {

namespace {

/// Lines about one document that differ in names and numbers alone.
struct Kind
{
    QStringList shown;
    qsizetype leftOut = 0;
};

struct Sink
{
    std::mutex mutex;
    std::FILE *file = stderr;
    bool isVerbose = false;
    bool hasFailed = false;                       ///< a line couldn't be written
    std::map<std::thread::id, QString> documents; ///< that the threads of a batch work on
    std::map<QString, std::map<QString, Kind>>
        kinds; ///< by document, then by what their lines have in common

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

void print(Sink &sink, const QByteArray &head, const QString &document, const QString &text)
{
    const QString about = document.isEmpty() ? QString() : withoutControls(document) + QLatin1String(": ");
    const int written = std::fprintf(sink.file, "%s: %s%s\n", head.constData(),
                                     about.toLocal8Bit().constData(), text.toLocal8Bit().constData());
    const bool isWritten = std::fflush(sink.file) == 0 && written >= 0;
    sink.hasFailed = sink.hasFailed || (!isWritten && sink.file != stderr);
}

/// Whether the line says something that was said of the document before: documents are loaded several times
/// on the way, and one may have thousands of cells that nobody knows.
bool isLeftOut(Sink &sink, const QByteArray &head, const QString &document, const QString &text)
{
    constexpr qsizetype kMostOfOneKind = 5;
    static const QRegularExpression particulars(QStringLiteral(R"("[^"]*"|[0-9]+)"));
    Kind &kind = sink.kinds[document][QString::fromUtf8(head) + QLatin1String(": ") +
                                      QString(text).replace(particulars, QStringLiteral("*"))];
    if (kind.shown.contains(text))
        return true;
    if (kind.shown.size() >= kMostOfOneKind) {
        ++kind.leftOut;
        return true;
    }
    kind.shown.append(text);
    return false;
}

void tellLeftOut(Sink &sink, const QString &document)
{
    for (const auto &[name, kind] : sink.kinds[document]) {
        if (kind.leftOut == 0)
            continue;
        const qsizetype end = name.indexOf(QLatin1String(": "), name.indexOf(QLatin1String(": ")) + 2);
        print(sink, name.left(end).toUtf8(), document,
              QStringLiteral("%1 more lines such as: %2").arg(kind.leftOut).arg(kind.shown.constLast()));
    }
    sink.kinds.erase(document);
}

void writeLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    Sink &sink = Sink::instance();
    const std::lock_guard lock(sink.mutex);
    if (!sink.isVerbose && isCopyOfFinding(text))
        return;
    const auto found = sink.documents.find(std::this_thread::get_id());
    const QString document = found == sink.documents.end() ? QString() : found->second;
    const QByteArray head =
        QByteArray(levelName(type)) + ": " + (context.category ? context.category : "default");
    if (sink.isVerbose || !isLeftOut(sink, head, document, text))
        print(sink, head, document, text);
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
    const auto document = sink.documents.find(std::this_thread::get_id());
    if (document == sink.documents.end())
        return;
    tellLeftOut(sink, document->second);
    sink.documents.erase(document);
}

bool isLogLine(const QByteArray &line)
{
    constexpr std::array kTypes = {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg};
    return std::ranges::any_of(
        kTypes, [&line](QtMsgType type) { return line.startsWith(levelName(type) + QByteArray(": ")); });
}

bool finishLog()
{
    Sink &sink = Sink::instance();
    const std::lock_guard lock(sink.mutex);
    tellLeftOut(sink, {});
    return !sink.hasFailed;
}

bool installLogOutput(int verbosity, const QString &fileName)
{
    if (!fileName.isEmpty()) {
        std::FILE *file = std::fopen(QFile::encodeName(fileName).constData(), "a");
        if (!file)
            return false;
        Sink::instance().file = file;
    }
    Sink::instance().isVerbose = verbosity > 0;
    QLoggingCategory::setFilterRules(filterRules(verbosity));
    qInstallMessageHandler(writeLine);
    return true;
}

} // namespace orv::cli
