#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>
#include <orv/propertyeditor/content/ExtendedMetadataSink.h>
#include <orv/samples/SamplesAndTracesContent.h>

namespace orv::PropertyEditor {

/// The samples of a workflow with their files, custom columns and the options of their traces. The rows and
/// columns of the base stay empty.
class ORV_WORKFLOW_EXPORT SamplesTableItem : public BaseTableItem, public ExtendedMetadataSink
{
    Q_OBJECT

public:
    SamplesTableItem();
    ~SamplesTableItem() override;

    [[nodiscard]] const SamplesAndTracesContent &content() const { return m_content; }
    /// Announces changed() alone.
    void setContent(const SamplesAndTracesContent &content)
    {
        m_content = content;
        Q_EMIT changed();
    }

    [[nodiscard]] QList<SamplesInput::Entry> samplesInput() const { return m_content.samples.entries(); }
    [[nodiscard]] const SamplesInput::SamplesArrayWithCustomColumns &samplesWithCustomColumns() const
    {
        return m_content.samples;
    }
    [[nodiscard]] const TraceImportAndProcessingOptions &tracesOptions() const { return m_content.options; }

    [[nodiscard]] MappingTarget target() const override { return MappingTarget::Samples; }
    void reloadMetadata(const QList<MetadataMapping> &mappings,
                        const QList<TalvaneMetadataMappingConnection> &connections) override;

    /// With absolute paths, relative files of the samples get them.
    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    /// MalformedStructure if the cell lacks its "properties" or its samples, and the error of a sample that
    /// can't be read.
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    void clear() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;

private:
    SamplesAndTracesContent m_content;
};

} // namespace orv::PropertyEditor
