#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

/// A temporary folder in which tests build what instruments leave behind.
class SampleTree
{
public:
    [[nodiscard]] QString at(const QString &name) const { return m_dir.filePath(name); }

    /// An entry with its folders: a folder when \a name ends with a slash, otherwise a file.
    void add(const QString &name, const QByteArray &bytes = "x") const
    {
        const QString path = at(name);
        QVERIFY(QDir().mkpath(name.endsWith(QLatin1Char('/')) ? path : QFileInfo(path).path()));
        if (name.endsWith(QLatin1Char('/')))
            return;
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    void addAll(const QStringList &names) const
    {
        for (const QString &name : names)
            add(name);
    }
    /// \a name is a link to \a target, counted from the link's folder.
    void link(const QString &name, const QString &target) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(at(name)).path()));
        QVERIFY(QFile::link(target, at(name)));
    }

private:
    QTemporaryDir m_dir;
};
