// How checks of documents in which everything is wrong grow: each case is measured at one size, which is its
// baseline, and at ten times that size. What is linear gives about 10, and may give 14.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/chemistry/MassUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>

#include <functional>

using namespace orv;
using namespace Qt::StringLiterals;
using PropertyEditor::Content;
using PropertyEditor::WorkflowCheck;
using PropertyEditor::WorkflowSource;

namespace {

/// \a prepare makes what is to be measured at a size.
void addGrowth(const std::string &name, int size, const std::function<std::function<void()>(int)> &prepare)
{
    const int small = Lifelike::sized(size) / (Lifelike::isForAMoment() ? 10 : 1);
    for (const auto &[label, count] : {std::pair{"/baseline", small}, std::pair{"/ten times", small * 10}}) {
        benchmark::RegisterBenchmark((name + label).c_str(), [work =
                                                                  prepare(count)](benchmark::State &state) {
            for ([[maybe_unused]] auto iteration : state)
                work();
        })->Unit(benchmark::kMicrosecond);
    }
}

/// Findings with their places in the file, as the command line tells them.
std::function<void()> checkOf(const QByteArray &text)
{
    const WorkflowSource source{QJsonDocument::fromJson(text).object(), text};
    const auto content = std::make_shared<Content>();
    if (content->assignFromJson(source.document, PropertyEditor::ValidationOption::SkipTypeValidation))
        qFatal("The benchmark's document can't be loaded");
    return [=] {
        const auto report = WorkflowCheck().run(*content, QUrl(u"file:///nowhere/"_s), source);
        if (report.hasError() || report->findings.isEmpty())
            qFatal("The benchmark's document isn't wrong");
        benchmark::DoNotOptimize(report->findings);
    };
}

QByteArray documentOf(const QJsonArray &samples, const QJsonArray &searches)
{
    const QJsonObject table{{u"name"_s, u"SamplesTable"_s},
                            {u"value"_s, QJsonObject{{u"Samples"_s, samples}}}};
    const QJsonObject cell{{u"type"_s, u"Samples"_s}, {u"properties"_s, QJsonArray{table}}};
    const auto tab = [](const QString &name, const QJsonArray &cells) {
        return QJsonObject{{u"name"_s, name}, {u"columns"_s, QJsonArray{name}}, {u"cells"_s, cells}};
    };
    return QJsonDocument(
               QJsonObject{{u"metadata"_s, uR"({"version":"5.47.0"})"_s},
                           {u"tabs"_s, QJsonArray{tab(u"Samples"_s, {cell}), tab(u"Search"_s, searches)}}})
        .toJson();
}

QJsonArray samplesOfOneName(int count)
{
    QJsonArray samples;
    for (int i = 0; i < count; ++i)
        samples.append(QJsonObject{{u"SampleName"_s, u"lot"_s}, {u"SamplePath"_s, u"a%1.raw"_s.arg(i)}});
    return samples;
}

QJsonArray samplesOfManyNames(int count)
{
    QJsonArray samples = samplesOfOneName(count);
    for (int i = 0; i < count; ++i)
        samples[i] =
            QJsonObject{{u"SampleName"_s, u"lot %1"_s.arg(i)}, {u"SamplePath"_s, u"a%1.raw"_s.arg(i)}};
    return samples;
}

QJsonObject searchOf(const QString &pattern)
{
    const QJsonObject entry{{u"name"_s, u"Samples"_s}, {u"value"_s, pattern}};
    return {{u"type"_s, u"Karvon"_s}, {u"properties"_s, QJsonArray{entry}}};
}

QString otherNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(u"other %1"_s.arg(i));
    return names.join(u';');
}

void addDocuments()
{
    addGrowth("samples, all wrong", 1'000,
              [](int n) { return checkOf(Lifelike::allWrong(Lifelike::document(n, 1))); });
    addGrowth("cells of settings, all wrong", 10,
              [](int n) { return checkOf(Lifelike::allWrong(Lifelike::document(2, n))); });
    addGrowth("proteins, all wrong", 200,
              [](int n) { return checkOf(Lifelike::allWrong(Lifelike::proteins(n))); });
    addGrowth("samples of one name", 1'000,
              [](int n) { return checkOf(documentOf(samplesOfOneName(n), {searchOf({})})); });
}

void addPatterns()
{
    addGrowth("length of a pattern", 40'000, [](int n) {
        return checkOf(documentOf(samplesOfManyNames(10), {searchOf(QString(n, u'l'))}));
    });
    addGrowth("length of a pattern with sets", 40'000, [](int n) {
        return checkOf(documentOf(samplesOfManyNames(10), {searchOf(u"[lo]"_s.repeated(n / 4))}));
    });
    addGrowth("samples and names that choose among them", 1'000,
              [](int n) { return checkOf(documentOf(samplesOfManyNames(n), {searchOf(otherNames(n))})); });
    addGrowth("samples and searches", 100, [](int n) {
        QJsonArray searches;
        for (int i = 0; i < n; ++i)
            searches.append(searchOf(u"other %1"_s.arg(i)));
        return checkOf(documentOf(samplesOfManyNames(n), searches));
    });
}

void addMasses()
{
    addGrowth("rows of masses of one name", 2'000, [](int n) -> std::function<void()> {
        QList<DeltaMass> masses;
        for (int i = 0; i < n; ++i) {
            DeltaMass mass;
            mass.name = u"G0F"_s;
            mass.massDa = i;
            masses.append(mass);
        }
        return [masses] {
            QStringList errors;
            QStringList warnings;
            benchmark::DoNotOptimize(MassUtils::validate(masses, {}, &errors, &warnings));
        };
    });
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(u"orv.*=false"_s);
    addDocuments();
    addPatterns();
    addMasses();
    return runRatioBenchmarks(argc, argv);
}
