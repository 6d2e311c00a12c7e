#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A Java runtime that runs a shell script instead, found by JAVA_HOME while it lives.
struct FakeJava
{
    explicit FakeJava(const QByteArray &script = "echo 'openjdk version \"17.0.2\"' >&2\n")
        : earlier(qgetenv("JAVA_HOME"))
    {
        QDir(home.path()).mkdir(QStringLiteral("bin"));
        QFile program(home.filePath(QStringLiteral("bin/java")));
        const QByteArray text = "#!/bin/sh\n" + script;
        if (!program.open(QIODevice::WriteOnly) || program.write(text) != text.size())
            qFatal("Cannot write the file");
        program.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("JAVA_HOME", home.path().toLocal8Bit());
    }
    ~FakeJava() { qputenv("JAVA_HOME", earlier); }
    Q_DISABLE_COPY_MOVE(FakeJava)

    QTemporaryDir home;
    QByteArray earlier;
};
