// Reads, parses and writes the file named first to the one named second: the floor of any change to a
// document.

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    QFile in(QFile::decodeName(argv[1]));
    QFile out(QFile::decodeName(argv[2]));
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        return 1;
    const QByteArray json = QJsonDocument::fromJson(in.readAll()).toJson();
    return out.write(json) == json.size() ? 0 : 1;
}
