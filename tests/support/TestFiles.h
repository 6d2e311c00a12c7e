// Files and circumstances that the tests of reading and writing share.
#pragma once

#include "ChildProcess.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#endif

namespace TestFiles {

inline void makeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Cannot write %s", qPrintable(path));
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool makeFifo(const QString &path)
{
#ifdef Q_OS_UNIX
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
#else
    Q_UNUSED(path)
    return false;
#endif
}

/// From here on the process can't write a file beyond \a size, as on a disk that is full.
inline bool limitFileSize(unsigned size)
{
#ifdef Q_OS_UNIX
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{size, size};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
#else
    Q_UNUSED(size)
    return false;
#endif
}

/// What a check in a child process gives.
enum Outcome
{
    Refused = 0,
    Succeeded = 1,
    Undone = 2,
    WrongError = 3
};

/// The names of all entries of a folder, hidden ones too.
inline QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace TestFiles
