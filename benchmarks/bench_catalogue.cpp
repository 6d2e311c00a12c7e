// The catalogue: its first use against a bare read and split of the same bytes, and look-ups against a bare
// hash.

#include "RatioReporter.h"

#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesCsvReader.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyLists.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>

#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>

#include <functional>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QByteArray resource(const QString &name)
{
    QFile file(u":/orv/catalogue/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The catalogue is missing");
    return file.readAll();
}

void keep(auto &&value)
{
    benchmark::DoNotOptimize(value);
}

void add(const std::string &name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

void addForEachId(const std::string &name, const std::function<void(PropertyId)> &work)
{
    add(name, [work] {
        for (int number = 0; number < kPropertyCount; ++number)
            work(PropertyId(number));
    });
}

/// Fields with a comma come apart here: no more than a lower bound of what reading the table costs.
void readAndSplit()
{
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(resource(u"properties.csv"_s)).split(u'\n'))
        rows.append(line.split(u','));
    keep(rows);
}

void readTexts()
{
    QFile file(u":/orv/catalogue/properties.csv"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The catalogue is missing");
    keep(PropertiesCsvReader(&file));
}

void addFirstUse()
{
    add("first use of texts/baseline", readAndSplit);
    add("first use of texts/PropertiesCsvReader", readTexts);
    add("first use of lists/baseline", [] { keep(QJsonDocument::fromJson(resource(u"lists.json"_s))); });
    add("first use of lists/PropertyLists", [] { keep(PropertyLists::fromJson(resource(u"lists.json"_s))); });
}

void addLookUps()
{
    const PropertiesCsvReader &reader = PropertiesCsvReader::instance();
    QStringList names;
    QHash<QString, int> idsByName;
    QHash<PropertyId, QString> namesById;
    for (int number = 0; number < kPropertyCount; ++number) {
        names.append(reader.internalNameV2(PropertyId(number)));
        idsByName.insert(names.last(), number);
        namesById.insert(PropertyId(number), names.last());
    }
    addForEachId("307 names to numbers/baseline", [=](PropertyId id) { keep(idsByName.value(names[id])); });
    addForEachId("307 names to numbers/findPropertyForName",
                 [=](PropertyId id) { keep(PropertiesNames::findPropertyForName(names[id])); });
    addForEachId("307 numbers to facts/baseline", [=](PropertyId id) { keep(namesById.value(id)); });
    addForEachId("307 numbers to facts/internalNameV2",
                 [](PropertyId id) { keep(PropertiesCsvReader::instance().internalNameV2(id)); });
    addForEachId("307 numbers to facts/internalNameForType",
                 [](PropertyId id) { keep(PropertiesNames::internalNameForType(id)); });
    addForEachId("307 numbers to facts/displayNameForType",
                 [](PropertyId id) { keep(PropertiesNames::displayNameForType(id)); });
    addForEachId("307 numbers to facts/editorForProperty",
                 [](PropertyId id) { keep(PropertySetCreator::editorForProperty(id)); });
    addForEachId("307 numbers to facts/isStringSerializableList",
                 [](PropertyId id) { keep(UserVisibleListConverter::isStringSerializableList(id)); });
    addForEachId("307 numbers to facts/allowedProperties",
                 [](PropertyId id) { keep(allowedProperties(BaseItemType::Karvon).contains(id)); });
}

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(u"orv.*.debug=false"_s);
    addFirstUse();
    addLookUps();
    return runRatioBenchmarks(argc, argv);
}
