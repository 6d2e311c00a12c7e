#include "OldUnifiMetadata.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/RawCell.h>

#include <QJsonArray>
#include <QObject>

namespace orv {

namespace {

constexpr int kUnifiType = 1;

/// The cell in the column "Sample Input", or of that name, as hosts called either.
QJsonObject sampleInput(const PropertyEditorContent::Tab &tab)
{
    const QString wanted = QStringLiteral("Sample Input");
    const QStringList &columns = tab.second.first;
    const VariantItems &cells = tab.second.second;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        QJsonObject cell = RawCell::objectOf(cells.at(i));
        const bool isInColumn = !columns.isEmpty() && columns.at(i % columns.size()) == wanted;
        if (!cell.isEmpty() && (isInColumn || cell.value(QLatin1String("name")).toString() == wanted))
            return cell;
    }
    return {};
}

QJsonArray oldSamples(const PropertyEditorContent &content)
{
    for (const PropertyEditorContent::Tab &tab : content.tabsAndContent()) {
        if (tab.first != QLatin1String("Samples"))
            continue;
        const QJsonArray properties = sampleInput(tab).value(QLatin1String("properties")).toArray();
        const QJsonObject table = PropertyEditorJsonUtils::propValueObject(properties.at(0).toObject());
        return table.value(QLatin1String("Samples")).toArray();
    }
    return {};
}

} // namespace

Result<QHash<int, OldUnifiMetadata>> getOldUnifiMetadata(const PropertyEditorContent *content)
{
    QHash<int, OldUnifiMetadata> all;
    const QJsonArray samples = oldSamples(*content);
    if (samples.isEmpty())
        return {all, {QObject::tr("Unable to get samples from the workflow.")}};
    for (const auto value : samples) {
        const QJsonObject sample = value.toObject();
        const QJsonObject metadata = sample.value(QLatin1String("Metadata")).toObject();
        if (metadata.value(QLatin1String("type")).toInt() != kUnifiType)
            continue;
        const auto text = [&metadata](QLatin1String key) { return metadata.value(key).toString(); };
        all.insert(sample.value(QLatin1String("SamplesId")).toInt(),
                   {text(QLatin1String("remote_name")), text(QLatin1String("remote_path")),
                    text(QLatin1String("server")), text(QLatin1String("uuid"))});
    }
    return all;
}

} // namespace orv
