#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

namespace orv::PropertyEditor {

/// The table of options by which the masses of released glycans are calculated.
class ORV_WORKFLOW_EXPORT GlycanOptionsItem : public BaseTableItem
{
    Q_OBJECT

public:
    GlycanOptionsItem();
    ~GlycanOptionsItem() override;

    /// With absolute paths, a glycan text of the cell itself gets them.
    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;
};

} // namespace orv::PropertyEditor
