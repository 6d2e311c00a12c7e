#include "LogCapture.h"

#include <QLoggingCategory>
#include <QMutex>

namespace {

QMutex mutex;
QList<LogCapture::Line> captured;

void capture(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QMutexLocker lock(&mutex);
    captured.append({type, QString::fromUtf8(context.category), text});
}

} // namespace

LogCapture::LogCapture()
{
    clear();
    QLoggingCategory::setFilterRules(QStringLiteral("orv.*=true"));
    m_previous = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    QLoggingCategory::setFilterRules({});
}

QList<LogCapture::Line> LogCapture::lines() const
{
    const QMutexLocker lock(&mutex);
    return captured;
}

QStringList LogCapture::texts(QtMsgType type) const
{
    QStringList texts;
    for (const Line &line : lines()) {
        if (line.type == type)
            texts.append(line.text);
    }
    return texts;
}

void LogCapture::clear()
{
    const QMutexLocker lock(&mutex);
    captured.clear();
}
