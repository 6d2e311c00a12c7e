#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

namespace orv::PropertyEditor {

/// The chains of oligonucleotides, the molecules built from them and their building blocks.
class ORV_WORKFLOW_EXPORT OligoProteinsTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    OligoProteinsTableItem();
    ~OligoProteinsTableItem() override;

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
