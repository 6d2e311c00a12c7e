#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

namespace orv::PropertyEditor {

/// The table of the deconvolution options of intact masses.
class ORV_WORKFLOW_EXPORT IntactOptionsTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    IntactOptionsTableItem();
    ~IntactOptionsTableItem() override;

    [[nodiscard]] RowNode root() const { return rootNode(); }
    /// Announces changed() alone.
    void setRoot(const RowNode &node)
    {
        rootNode() = node;
        Q_EMIT changed();
    }

protected:
    [[nodiscard]] PropertyId propertyId() const override;
};

} // namespace orv::PropertyEditor
