#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>

namespace orv::PropertyEditor {

/// The table of released glycans.
class ORV_WORKFLOW_EXPORT DetachedGlycanTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    DetachedGlycanTableItem();
    ~DetachedGlycanTableItem() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;
};

} // namespace orv::PropertyEditor
