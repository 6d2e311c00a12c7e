// Memory at its peak while a document is loaded, against that of the bare parse, each in a process of its
// own.

#include "LifelikeDocument.h"
#include "ProcessMemory.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <string>

using namespace orv;

namespace {

bool loadValueForm(const QByteArray &bytes)
{
    return !PropertyEditorContent(bytes).tabsAndContent().isEmpty();
}

bool loadObjectForm(const QByteArray &bytes)
{
    PropertyEditor::Content content;
    return !content.assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError();
}

/// As a window that showed each cell.
bool loadObjectFormAndProperties(const QByteArray &bytes)
{
    PropertyEditor::Content content;
    if (content.assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError())
        return false;
    for (const PropertyEditor::BaseItem *item : content.findAllItems(content.allItems())) {
        const auto *settings = qobject_cast<const PropertyEditor::KeyValueItem *>(item);
        if (settings && !settings->propertySet())
            return false;
    }
    return true;
}

struct Case
{
    const char *name;
    bool (*work)(const QByteArray &bytes);
};

const Case kCases[] = {
    {"text alone", [](const QByteArray &bytes) { return !bytes.isEmpty(); }},
    {"bare parse", [](const QByteArray &bytes) { return !QJsonDocument::fromJson(bytes).isNull(); }},
    {"value form", loadValueForm},
    {"object form", loadObjectForm},
    {"object form with all properties", loadObjectFormAndProperties},
    {"bare parse and write",
     [](const QByteArray &bytes) { return !QJsonDocument::fromJson(bytes).toJson().isEmpty(); }},
    {"value form, loaded and written",
     [](const QByteArray &bytes) { return !PropertyEditorContent(bytes).toJson().isEmpty(); }},
};

/// The child: reads the file, does one case, and prints its peak.
int runCase(int index, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !kCases[index].work(file.readAll()))
        return 1;
    std::printf("%ld\n", ProcessMemory::peakKilobytes());
    return 0;
}

long peakOfCase(int index, const QString &path)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QString::number(index), path});
    if (!child.waitForFinished(120000) || child.exitCode() != 0)
        qFatal("A case failed");
    return child.readAllStandardOutput().trimmed().toLong();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3)
        return runCase(QByteArray(argv[1]).toInt(), QFile::decodeName(argv[2]));

    struct Document
    {
        const char *label;
        int samples;
        int steps;
    };
    constexpr int kSmall = 10;
    const bool isForAMoment = Lifelike::isForAMoment();
    std::printf("%-52s %10s %8s\n", "peak memory", "kB", "ratio");
    for (const Document &document : {Document{"settings", 10, isForAMoment ? kSmall : 4500},
                                     Document{"samples", isForAMoment ? kSmall : 150000, 4},
                                     Document{"6 MB of settings", 10, isForAMoment ? kSmall : 450},
                                     Document{"6 MB of samples", isForAMoment ? kSmall : 15000, 4}}) {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("large.wflw")));
        const QByteArray bytes = Lifelike::document(document.samples, document.steps);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The benchmark's file can't be written");
        file.close();
        const long bare = peakOfCase(1, file.fileName());
        for (int i = 0; i < int(std::size(kCases)); ++i) {
            const long peak = peakOfCase(i, file.fileName());
            const std::string name = std::string(document.label) + ": " + kCases[i].name;
            std::printf("%-52s %10ld %8.2f\n", name.c_str(), peak, double(peak) / double(bare));
        }
    }
    return 0;
}
