#include "TestData.h"

#include <QFile>

namespace TestData {

QString path(const QString &name)
{
    return QStringLiteral(ORV_TEST_DATA_DIR "/") + name;
}

QString examplePath(const QString &name)
{
    return QStringLiteral(ORV_EXAMPLES_DIR "/") + name;
}

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Test data is missing: %s", qPrintable(path));
    return file.readAll();
}

} // namespace TestData
