// Checks of whole workflows: of many small documents against the bare read and parse of the same files, and
// of many samples on the disk against the bare question whether each file is there.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/ContentValidator.h>
#include <orv/propertyeditor/workflow/WorkflowPaths.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <functional>

using namespace orv;
using namespace Qt::StringLiterals;
using PropertyEditor::Content;
using PropertyEditor::ContentValidator;

namespace {

constexpr int kDocuments = 1'000;

void add(const std::string &name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("Can't write %s", qPrintable(path));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Can't read %s", qPrintable(path));
    return file.readAll();
}

qsizetype findingsOf(const Content &content)
{
    ContentValidator validator;
    validator.installDefaultValidators();
    QList<QString> warnings;
    QList<QString> errors;
    validator.validate(content, content.baseUrl(), &warnings, &errors);
    return warnings.size() + errors.size();
}

/// The way that windows and the command line take: on a copy with absolute paths.
qsizetype check(const QJsonObject &document, const QUrl &folder)
{
    Content content;
    if (content.assignFromJson(document, PropertyEditor::ValidationOption::SkipTypeValidation).hasError())
        qFatal("The benchmark's document can't be loaded");
    const Result<Content> copy = WorkflowPaths::absoluteCopy(content, folder);
    if (copy.hasError())
        qFatal("The benchmark's document can't be copied");
    return findingsOf(*copy);
}

void addDocuments(const QString &folder)
{
    QStringList paths;
    for (int i = 0; i < Lifelike::sized(kDocuments); ++i) {
        paths.append(u"%1/%2.wflw"_s.arg(folder).arg(i));
        writeFile(paths.constLast(), Lifelike::document(2, 1));
    }
    add("1000 documents/baseline", [=] {
        for (const QString &path : paths)
            benchmark::DoNotOptimize(QJsonDocument::fromJson(bytesOf(path)).object());
    });
    add("1000 documents/check", [=] {
        for (const QString &path : paths)
            benchmark::DoNotOptimize(
                check(QJsonDocument::fromJson(bytesOf(path)).object(), QUrl::fromLocalFile(folder + u'/')));
    });
}

void addSamples(const QString &folder, int count)
{
    QJsonObject document = QJsonDocument::fromJson(Lifelike::document(count, 1)).object();
    const auto content = std::make_shared<Content>();
    if (content->assignFromJson(document).hasError())
        qFatal("The benchmark's document can't be loaded");
    SamplesAndTracesContent samples = content->samplesAndTraces();
    QList<QByteArray> paths;
    for (SamplesInput::SampleWithCustomColumns &sample : samples.samples.samples) {
        const QString path = u"%1/%2.raw"_s.arg(folder).arg(paths.size());
        writeFile(path, "x");
        paths.append(QFile::encodeName(path));
        sample.msFile = *ResourceReference::fromString(path);
    }
    content->setSamplesAndTraces(samples);
    const std::string label = std::to_string(count) + " samples/";
    add(label + "baseline", [=] {
        for (const QByteArray &path : paths) {
            struct stat info = {};
            benchmark::DoNotOptimize(stat(path.constData(), &info));
        }
    });
    add(label + "check", [=] { benchmark::DoNotOptimize(findingsOf(*content)); });
}

/// 316 settings in four cells.
QByteArray settingsDocument()
{
    return Lifelike::document(2, 4);
}

/// The bare parse is the baseline here; ajv/measure.mjs times a schema validator on the same document.
void addSettings()
{
    const QByteArray bytes = settingsDocument();
    const auto content = std::make_shared<Content>();
    if (content->assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError())
        qFatal("The benchmark's document can't be loaded");
    add("316 settings in memory/baseline", [=] { benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes)); });
    add("316 settings in memory/check", [=] { benchmark::DoNotOptimize(findingsOf(*content)); });
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(u"orv.*=false"_s);
    if (argc == 3 && qstrcmp(argv[1], "--write-document") == 0) {
        writeFile(QFile::decodeName(argv[2]), settingsDocument());
        return 0;
    }
    const QTemporaryDir folder;
    for (const char *name : {"documents", "few", "many"})
        QDir(folder.path()).mkdir(QLatin1StringView(name));
    addDocuments(folder.filePath(u"documents"_s));
    addSamples(folder.filePath(u"few"_s), 1'000);
    addSamples(folder.filePath(u"many"_s), 10'000);
    addSettings();
    return runRatioBenchmarks(argc, argv);
}
