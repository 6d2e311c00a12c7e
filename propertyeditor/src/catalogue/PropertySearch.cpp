#include "orv/propertyeditor/PropertySearch.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/SearchWords.h>

namespace orv::PropertySearch {

PropertyId named(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        return number >= 0 && number < kPropertyCount ? PropertyId(number) : PropertyId::NoProperty;
    return PropertiesNames::findPropertyForName(text);
}

QList<PropertyId> captioned(const QString &text)
{
    const QString wanted = text.trimmed();
    QList<PropertyId> ids;
    const auto &catalogue = *PropertiesNames::names();
    for (auto it = catalogue.begin(); it != catalogue.end(); ++it) {
        if (it.value().displayName.compare(wanted, Qt::CaseInsensitive) == 0)
            ids.append(it.key());
    }
    return ids;
}

QList<PropertyId> matching(const QString &text)
{
    const SearchWords words(text);
    QList<PropertyId> ids;
    if (words.isEmpty())
        return ids;
    const auto &catalogue = *PropertiesNames::names();
    for (auto it = catalogue.begin(); it != catalogue.end(); ++it) {
        const PropertyFeatures &features = it.value();
        const QString all = QStringList{features.internalNameV2, features.internalNameV1,
                                        features.displayName, features.toolTip}
                                .join(QLatin1Char('\n'));
        if (words.standIn(SearchWords::folded(all)))
            ids.append(it.key());
    }
    return ids;
}

QStringList namesAndCaptions(const QList<PropertyId> &ids)
{
    const auto &catalogue = *PropertiesNames::names();
    QStringList texts;
    for (const PropertyId id : ids.isEmpty() ? catalogue.keys() : ids) {
        const PropertyFeatures &features = catalogue[id];
        texts << features.internalNameV2 << features.displayName;
    }
    return texts;
}

} // namespace orv::PropertySearch
