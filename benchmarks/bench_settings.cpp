// A cell of 79 settings: loading and saving it against the bare JSON parse and write of the same bytes.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <KPropertySet>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

#include <QJsonDocument>
#include <QLoggingCategory>

#include <functional>
#include <memory>

using namespace orv;
using PropertyEditor::KeyValueItem;
using PropertyEditor::PropertyConversionFlag;

namespace {

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

std::unique_ptr<KPropertySet> load(const QByteArray &bytes)
{
    return std::unique_ptr<KPropertySet>(
        PropertySetCreator::jsonToPropertySet(bytes, BaseItemType::Karvon).value());
}

void addSettings(const QByteArray &bytes)
{
    const auto parsed = std::make_shared<QJsonDocument>(QJsonDocument::fromJson(bytes));
    const std::shared_ptr<KPropertySet> set = load(bytes);
    const auto item = std::make_shared<KeyValueItem>(BaseItemType::Karvon);
    if (item->assignFromJson(parsed->object(), {}).hasError())
        qFatal("The benchmark's cell can't be loaded");

    add("load settings/baseline", [=] { keep(QJsonDocument::fromJson(bytes)); });
    add("load settings/jsonToPropertySet", [=] { keep(load(bytes)); });
    add("load settings/KeyValueItem", [=] {
        KeyValueItem loaded(BaseItemType::Karvon);
        keep(loaded.assignFromJson(QJsonDocument::fromJson(bytes).object(), {}).hasError());
    });
    add("save settings/baseline", [=] { keep(parsed->toJson()); });
    add("save settings/propertySetToJson", [=] {
        QByteArray json;
        keep(PropertySetCreator::propertySetToJson(*set, &json, PropertyConversionFlag::KeepPaths));
    });
    add("save settings/KeyValueItem",
        [=] { keep(QJsonDocument(item->toJson(PropertyConversionFlag::KeepPaths)).toJson()); });
}

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(QStringLiteral("orv.*.debug=false"));
    addSettings(Lifelike::settingsCell());
    return runRatioBenchmarks(argc, argv);
}
