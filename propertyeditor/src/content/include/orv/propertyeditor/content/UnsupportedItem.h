#pragma once

#include <orv/propertyeditor/content/BaseItem.h>

namespace orv::PropertyEditor {

/// A cell that is kept whole without being understood: the object of a retired kind is the same after a
/// load and a save, whatever the conversion flag.
class ORV_WORKFLOW_EXPORT UnsupportedItem : public BaseItem
{
    Q_OBJECT

public:
    using BaseItem::BaseItem;
    ~UnsupportedItem() override;

    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    Error assignFromJson(const QJsonObject &json, ValidationOptions options) override;
    void clear() override;

private:
    QJsonObject m_json;
};

} // namespace orv::PropertyEditor
