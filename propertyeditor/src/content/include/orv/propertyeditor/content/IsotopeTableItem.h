#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

namespace orv::PropertyEditor {

/// The table of isotope labels.
class ORV_WORKFLOW_EXPORT IsotopeTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    IsotopeTableItem();
    ~IsotopeTableItem() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;
};

} // namespace orv::PropertyEditor
