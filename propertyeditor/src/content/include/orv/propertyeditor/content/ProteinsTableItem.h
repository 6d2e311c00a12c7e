#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>
#include <orv/propertyeditor/content/ProteinsContent.h>

namespace orv::PropertyEditor {

/// The table of protein sequences, and names for stretches of them.
class ORV_WORKFLOW_EXPORT ProteinsTableItem : public BaseTableItem
{
    Q_OBJECT

public:
    ProteinsTableItem();
    ~ProteinsTableItem() override;

    [[nodiscard]] ProteinsContent content() const { return {rootNode(), m_annotations}; }
    /// Announces changed() alone.
    void setContent(const ProteinsContent &content);
    [[nodiscard]] QList<ProteinAnnotationEntry> proteinAnnotations() const { return m_annotations; }

    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    /// As the base, and the error of an annotation that can't be read.
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    void clear() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;

private:
    QList<ProteinAnnotationEntry> m_annotations;
};

} // namespace orv::PropertyEditor
