// Keys in the field that searches settings against the bare walk over the same texts, of 20 columns with 79
// settings each.

#include "RatioReporter.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/workbench/SettingIndex.h>

#include <QString>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <memory>

using namespace orv;

namespace {

constexpr int kColumns = 20;
constexpr int kSettings = 79;

SettingIndex::Column column(int number)
{
    SettingIndex::Column column{number / 4,
                                number % 4,
                                QStringLiteral("Tab %1").arg(number / 4),
                                QStringLiteral("Column %1").arg(number % 4),
                                {}};
    const QMap<PropertyId, PropertyFeatures> &catalogue = *PropertiesNames::names();
    for (auto it = catalogue.begin(); it != catalogue.end() && column.settings.size() < kSettings; ++it) {
        SettingTexts texts;
        texts.name = it->internalNameV2.toUtf8();
        texts.formerName = it->internalNameV1;
        texts.caption = it->displayName;
        texts.toolTip = it->toolTip;
        texts.value = it->defaultValue.toString();
        column.settings.append(texts);
    }
    return column;
}

/// What there would be without an index: the texts as they are shown.
QStringList allTexts()
{
    QStringList all;
    for (int i = 0; i < kColumns; ++i) {
        for (const SettingTexts &texts : column(i).settings)
            all << texts.caption << QString::fromUtf8(texts.name) << texts.formerName << texts.toolTip
                << texts.value;
    }
    return all;
}

qsizetype walk(const QStringList &texts, const QString &typed)
{
    const QStringList words = typed.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    qsizetype count = 0;
    for (const QString &text : texts) {
        count += std::ranges::any_of(
            words, [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
    }
    return count;
}

void add(const char *name, const std::function<qsizetype(const QString &)> &find, const QStringList &typed)
{
    benchmark::RegisterBenchmark(name, [find, typed](benchmark::State &state) {
        for (auto _ : state) {
            for (const QString &text : typed)
                benchmark::DoNotOptimize(find(text));
        }
    });
}

void addGroup(const std::string &group, const QStringList &typed, const std::shared_ptr<SettingIndex> &index,
              const QStringList &texts)
{
    add((group + "/baseline").c_str(), [texts](const QString &text) { return walk(texts, text); }, typed);
    add((group + "/index").c_str(), [index](const QString &text) { return index->hits({text}).size(); },
        typed);
}

} // namespace

int main(int argc, char *argv[])
{
    const auto index = std::make_shared<SettingIndex>();
    for (int i = 0; i < kColumns; ++i)
        index->append(column(i));
    const QStringList texts = allTexts();
    QStringList keys;
    const QString whole = QStringLiteral("mass tolerance");
    for (qsizetype i = 1; i <= whole.size(); ++i)
        keys.append(whole.left(i));
    // Neither goes on from the one before.
    addGroup("first key", {QStringLiteral("e"), QStringLiteral("a")}, index, texts);
    addGroup("a word key by key", keys, index, texts);
    addGroup("nothing found", {QStringLiteral("qxz"), QStringLiteral("zxq")}, index, texts);

    SettingIndex::Column edited = column(7);
    const auto again = std::make_shared<int>(0);
    add("an edit/baseline", [texts](const QString &text) { return walk(texts, text); }, {whole});
    add("an edit/column read anew and searched",
        [index, edited, again](const QString &text) mutable {
            edited.settings[3].value = QString::number(++*again);
            index->replace(edited);
            return index->hits({text}).size();
        },
        {whole});
    return runRatioBenchmarks(argc, argv);
}
