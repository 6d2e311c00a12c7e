#pragma once

#include <orv/core/Export.h>

#include <QList>

namespace orv {

namespace PropertyEditor {
class KeyValueItem;
} // namespace PropertyEditor

/// What hosts ask of the cells of a search. Runs on the items' thread.
class ORV_WORKFLOW_EXPORT KarvonPropertiesGetter
{
public:
    /// Whether the results of all samples are to be merged; false where the item doesn't say.
    [[nodiscard]] static bool isMergeKarvonResultsEnabled(const PropertyEditor::KeyValueItem &item);
    /// Whether all items want it; true without items.
    [[nodiscard]] static bool isMergeKarvonResultsEnabled(const QList<PropertyEditor::KeyValueItem *> &items);
};

} // namespace orv
