#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>
#include <orv/samples/SequenceDatabaseItem.h>

namespace orv::PropertyEditor {

/// The sequence databases that a search goes through. The rows and columns of the base stay empty.
class ORV_WORKFLOW_EXPORT SequenceDatabasesTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    SequenceDatabasesTableItem();
    ~SequenceDatabasesTableItem() override;

    [[nodiscard]] const QList<SequenceDatabaseItem> &items() const { return m_items; }
    /// Announces changed() alone.
    void setItems(const QList<SequenceDatabaseItem> &items)
    {
        m_items = items;
        Q_EMIT changed();
    }

    /// With absolute paths, relative files get them.
    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    /// As the base, and the errors of SequenceDatabaseItems::fromJson.
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    void clear() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;

private:
    QList<SequenceDatabaseItem> m_items;
};

} // namespace orv::PropertyEditor
