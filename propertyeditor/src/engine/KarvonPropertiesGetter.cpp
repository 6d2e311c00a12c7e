#include "orv/propertyeditor/engine/KarvonPropertiesGetter.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>

#include <algorithm>

namespace orv {

using PropertyEditor::KeyValueItem;

bool KarvonPropertiesGetter::isMergeKarvonResultsEnabled(const KeyValueItem &item)
{
    const QVariant merge =
        PropertyEditorUtils::getValueFromProject(&item, PropertyId::MergeKarvonResults, {});
    return merge.isValid() && merge.toBool();
}

bool KarvonPropertiesGetter::isMergeKarvonResultsEnabled(const QList<KeyValueItem *> &items)
{
    return std::ranges::all_of(
        items, [](const KeyValueItem *item) { return item && isMergeKarvonResultsEnabled(*item); });
}

} // namespace orv
