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
    /// Announces nothing.
    void setRoot(const RowNode &node) { rootNode() = node; }

protected:
    [[nodiscard]] PropertyId propertyId() const override;
};

} // namespace orv::PropertyEditor
