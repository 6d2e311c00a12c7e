#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

namespace orv::PropertyEditor {

/// The table of the deconvolution options of oligonucleotides.
class ORV_WORKFLOW_EXPORT OligoOptionsTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    OligoOptionsTableItem();
    ~OligoOptionsTableItem() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;
};

} // namespace orv::PropertyEditor
