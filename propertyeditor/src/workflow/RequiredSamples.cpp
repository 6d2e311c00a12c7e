#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/Ms2SearchMatcher.h>
#include <orv/resources/ResourceTypeChecker.h>
#include <orv/samples/SampleUtils.h>

#include <QSet>

#include <algorithm>

namespace orv {

using namespace PropertyEditor;

namespace {

using Samples = QList<SamplesInput::Entry>;

bool hasFileThatCaldrinCannotTake(const SamplesInput::Entry &sample)
{
    const QList<ResourceReferenceSPtr> files = QList{sample.msFile} + sample.companions();
    return std::ranges::any_of(files, [](const ResourceReferenceSPtr &file) {
        return ResourceTypeChecker::isCSVOrTextFileType(file) ||
               ResourceTypeChecker::isCaldrinResultFileType(file);
    });
}

Samples matchingSamples(const KeyValueItem &item, const Samples &samples)
{
    const QString pattern =
        PropertyEditorUtils::getValueFromProject(&item, PropertyId::Samples, QStringLiteral("*")).toString();
    const QStringList names = PropertiesGetter::samplesMatchingRegExp(samples, splitSamples(pattern));
    const QSet<QString> wanted(names.cbegin(), names.cend());
    Samples matching;
    std::ranges::copy_if(samples, std::back_inserter(matching), [&wanted](const SamplesInput::Entry &sample) {
        return wanted.contains(sample.name);
    });
    return matching;
}

} // namespace

Samples PropertyEditorUtils::getRequiredSamples(const BaseItem *item, const Samples &samples)
{
    const auto *settings = qobject_cast<const KeyValueItem *>(item);
    if (!settings)
        return {};
    Samples required = matchingSamples(*settings, samples);
    if (item->type() == BaseItemType::CaldrinDIA)
        required.removeIf(hasFileThatCaldrinCannotTake);
    if (item->type() == BaseItemType::Karvon) {
        Ms2SearchMatcher matcher;
        required.removeIf(
            [&matcher](const SamplesInput::Entry &sample) { return matcher.isSearched(sample); });
    }
    return required;
}

QMap<QString, int> PropertyEditorUtils::createSampleNamesIndexes(const QList<KeyValueItem *> &projects,
                                                                 const Content &content)
{
    const Samples samples = content.samplesAndTraces().samples.entries();
    QMap<QString, int> counts;
    for (const KeyValueItem *project : projects) {
        for (const SamplesInput::Entry &sample : getRequiredSamples(project, samples))
            ++counts[sample.name];
    }
    return counts;
}

} // namespace orv
