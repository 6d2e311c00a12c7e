// Tables: loading and writing against the bare parse and write of the same bytes, in time and in memory, and
// access to cells of tables of growing size.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/table/RowNode.h>
#include <orv/table/rn.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

constexpr int kRows = 100000;
constexpr unsigned kSeed = 20240131;

using MakeRow = VariantItems (*)(int row, std::mt19937 &random);

double massIn(std::mt19937 &random)
{
    return std::uniform_real_distribution(400.0, 4000.0)(random);
}

/// What a study's sample table holds: names and paths of its own in each row, and a few words again and
/// again.
VariantItems sampleRow(int row, std::mt19937 &random)
{
    return {u"Lot %1 day %2"_s.arg(row / 12).arg(row % 12),
            u"../raw/2024/lot_%1/day_%2.raw"_s.arg(row / 12).arg(row % 12),
            u"min"_s,
            row % 3 ? u"Trypsin"_s : u"Lys-C"_s,
            u""_s,
            u"../raw/2024/ms2_%1.raw"_s.arg(row / 12),
            row % 4 ? u"Sample"_s : u"Reference"_s,
            QVariant(),
            row % 96,
            massIn(random),
            0.125 * (row % 8),
            row % 2 == 0};
}

/// Measured numbers only, as a list of peaks.
VariantItems numberRow(int /*row*/, std::mt19937 &random)
{
    VariantItems items;
    for (int i = 0; i < 12; ++i)
        items.append(massIn(random));
    return items;
}

/// Numbers that plain JSON would take for integers, which makes an object of each.
VariantItems integralNumberRow(int row, std::mt19937 & /*random*/)
{
    VariantItems items;
    for (int i = 0; i < 12; ++i)
        items.append(double(row + i));
    return items;
}

/// Twelve short texts that never repeat: the worst case for memory, as each needs a block of its own.
VariantItems uniqueTextRow(int row, std::mt19937 & /*random*/)
{
    VariantItems items;
    for (int i = 0; i < 12; ++i)
        items.append(u"value %1"_s.arg(row * 12 + i));
    return items;
}

RowNode table(int rows, MakeRow makeRow)
{
    std::mt19937 random(kSeed);
    RowNode node;
    for (int i = 0; i < 12; ++i)
        node.data.append(u"Column%1"_s.arg(i));
    for (int row = 0; row < rows; ++row)
        node.addNewChild(makeRow(row, random));
    return node;
}

struct Case
{
    const char *label;
    QByteArray bytes;
};

/// The form that older programs wrote: rows without a list of rows below.
QByteArray withoutEmptyChildren(QByteArray bytes)
{
    return bytes.replace(",\"children\":[]", "");
}

std::vector<Case> cases()
{
    const QByteArray samples =
        rn::serialize(std::make_unique<RowNode>(table(Lifelike::sized(kRows), sampleRow)).get());
    const RowNode numbers = table(Lifelike::sized(kRows), numberRow);
    const RowNode integralNumbers = table(Lifelike::sized(kRows), integralNumberRow);
    const RowNode texts = table(Lifelike::sized(kRows), uniqueTextRow);
    return {{"sample table", samples},
            {"sample table, old form", withoutEmptyChildren(samples)},
            {"numbers", rn::serialize(&numbers)},
            {"integral doubles", rn::serialize(&integralNumbers)},
            {"unique texts", rn::serialize(&texts)}};
}

void add(const std::string &name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    });
}

void addLoadAndWrite(const Case &data)
{
    const auto keep = [](auto &&value) { benchmark::DoNotOptimize(value); };
    const QByteArray bytes = data.bytes;
    const std::string label = data.label;
    const auto document = std::make_shared<QJsonDocument>(QJsonDocument::fromJson(bytes));
    const auto node = std::make_shared<RowNode>();
    if (!rn::parse(bytes, node.get()))
        qFatal("The benchmark's table can't be loaded");
    add("load " + label + "/baseline", [=] { keep(QJsonDocument::fromJson(bytes)); });
    add("load " + label + "/parse", [=] {
        RowNode loaded;
        keep(rn::parse(bytes, &loaded));
    });
    add("load " + label + "/document and fromObject", [=] {
        RowNode loaded;
        keep(rn::fromObject(QJsonDocument::fromJson(bytes).object(), &loaded));
    });
    add("write " + label + "/baseline", [=] { keep(document->toJson(QJsonDocument::Compact)); });
    add("write " + label + "/serialize", [=] { keep(rn::serialize(node.get())); });
    add("copy " + label + "/baseline", [=] { keep(QJsonDocument::fromJson(bytes)); });
    add("copy " + label + "/deep copy", [=] { keep(RowNode(*node)); });
}

/// Cells of the last rows: whatever walks over the rows before them shows.
void addAccess()
{
    constexpr int kAccesses = 1000;
    for (const int count : {1000, 10000, kRows, 10 * kRows}) {
        const int rows = Lifelike::sized(count);
        const auto node = std::make_shared<RowNode>(table(rows, sampleRow));
        const auto forLastRows = [=](auto work) {
            for (int i = 0; i < kAccesses; ++i)
                work(*node->getChild(rows - 1 - i % 64));
        };
        const std::string label = count == 1000 ? "baseline" : std::to_string(count) + " rows";
        const QString name = u"Column9"_s;
        add("read 1000 cells by index/" + label,
            [=] { forLastRows([](const RowNode &row) { benchmark::DoNotOptimize(row.getDataAt(9)); }); });
        add("write 1000 cells by index/" + label,
            [=] { forLastRows([](RowNode &row) { row.getDataAt(9) = 1.5; }); });
        add("write 1000 cells by name/" + label,
            [=] { forLastRows([&name](RowNode &row) { row.getDataAt(name) = 1.5; }); });
    }
}

/// The peak of this program since it began, in kB. The figure of getrusage would include the parent's.
long peakKilobytes()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.sliced(6).simplified().split(' ').first().toLong();
    }
    return -1;
}

/// In a process of its own: what loading the file adds to the peak that reading it left.
int printPeak(const char *how, const char *path)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray bytes = file.readAll();
    const long before = peakKilobytes();
    bool ok = false;
    RowNode node;
    QJsonDocument document;
    if (QByteArrayView(how) == "parse")
        ok = rn::parse(bytes, &node);
    else
        ok = !(document = QJsonDocument::fromJson(bytes)).isNull();
    std::printf("%ld\n", peakKilobytes() - before);
    return ok ? 0 : 1;
}

long peakOf(const QString &how, const QString &path)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {u"--peak"_s, how, path});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("The peak can't be measured");
    return process.readAllStandardOutput().trimmed().toLong();
}

void printPeaks(const std::vector<Case> &all)
{
    const QTemporaryDir folder;
    std::printf("\npeak of loading %d rows, added to the text itself, each in a process of its own\n", kRows);
    std::printf("%-28s %10s %12s %10s %8s\n", "", "text kB", "document kB", "node kB", "ratio");
    for (const Case &data : all) {
        QFile file(folder.filePath(QString::fromLatin1(data.label)));
        if (!file.open(QIODevice::WriteOnly) || file.write(data.bytes) != data.bytes.size())
            qFatal("The benchmark's file can't be written");
        file.close();
        const long bare = peakOf(u"document"_s, file.fileName());
        const long node = peakOf(u"parse"_s, file.fileName());
        std::printf("%-28s %10lld %12ld %10ld %8.2f\n", data.label, qlonglong(data.bytes.size()) / 1024, bare,
                    node, double(node) / double(bare));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 4 && QByteArrayView(argv[1]) == "--peak")
        return printPeak(argv[2], argv[3]);
    const QCoreApplication application(argc, argv);
    const std::vector<Case> all = cases();
    printPeaks(all);
    for (const Case &data : all)
        addLoadAndWrite(data);
    addAccess();
    return runRatioBenchmarks(argc, argv);
}
