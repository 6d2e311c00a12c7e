// Reads and parses every file named on the command line, on all cores: the floor of any batch.

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QThread>

#include <atomic>
#include <thread>
#include <vector>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::atomic<int> next = 1;
    std::atomic<int> broken = 0;
    const auto worker = [&] {
        for (int i = next++; i < argc; i = next++) {
            QFile file(QFile::decodeName(argv[i]));
            if (!file.open(QIODevice::ReadOnly) || QJsonDocument::fromJson(file.readAll()).isNull())
                ++broken;
        }
    };
    std::vector<std::jthread> threads;
    for (int i = 1; i < QThread::idealThreadCount(); ++i)
        threads.emplace_back(worker);
    worker();
    threads.clear();
    return broken == 0 ? 0 : 1;
}
