#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Collects the log lines of the library of all levels while it lives, in place of printing them. One at a
/// time.
class LogCapture
{
public:
    struct Line
    {
        QtMsgType type;
        QString category;
        QString text;
    };

    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    [[nodiscard]] QList<Line> lines() const;
    /// The texts of one level, in order.
    [[nodiscard]] QStringList texts(QtMsgType type) const;
    [[nodiscard]] QStringList warnings() const { return texts(QtWarningMsg); }
    void clear();

private:
    QtMessageHandler m_previous;
};
