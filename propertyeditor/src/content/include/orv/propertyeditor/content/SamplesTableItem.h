#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>
#include <orv/propertyeditor/content/ExtendedMetadataSink.h>
#include <orv/samples/StoredSamples.h>

#include <functional>

namespace orv::PropertyEditor {

/// The samples of a workflow with their files, custom columns and the options of their traces. The rows and
/// columns of the base stay empty.
class ORV_WORKFLOW_EXPORT SamplesTableItem : public BaseTableItem, public ExtendedMetadataSink
{
    Q_OBJECT

public:
    SamplesTableItem();
    ~SamplesTableItem() override;

    [[nodiscard]] const SamplesAndTracesContent &content() const { return m_samples.content(); }
    /// Those of the content.
    [[nodiscard]] QList<ResourceReferenceSPtr> references() const { return m_samples.references(); }
    /// Announces changed() alone.
    void setContent(const SamplesAndTracesContent &content)
    {
        m_samples = StoredSamples(content);
        Q_EMIT changed();
    }

    /// Lets \a change work on the content itself, which is quicker than on a copy of it where samples are
    /// many, and announces changed() alone. While it works the item has no samples.
    void changeContent(const std::function<void(SamplesAndTracesContent *content)> &change);

    /// A copy of each sample; samplesWithCustomColumns() copies none.
    [[nodiscard]] QList<SamplesInput::Entry> samplesInput() const { return content().samples.entries(); }
    [[nodiscard]] const SamplesInput::SamplesArrayWithCustomColumns &samplesWithCustomColumns() const
    {
        return content().samples;
    }
    [[nodiscard]] const TraceImportAndProcessingOptions &tracesOptions() const { return content().options; }

    [[nodiscard]] MappingTarget target() const override { return MappingTarget::Samples; }
    void reloadMetadata(const QList<MetadataMapping> &mappings,
                        const QList<TalvaneMetadataMappingConnection> &connections) override;

    /// With absolute paths, relative files of the samples get them.
    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    [[nodiscard]] Result<std::unique_ptr<BaseItem>> copied(PropertyConversionFlag flag) const override;
    /// MalformedStructure if the cell lacks its "properties" or its samples, and the error of a sample that
    /// can't be read.
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    void clear() override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;

private:
    StoredSamples m_samples;
};

} // namespace orv::PropertyEditor
