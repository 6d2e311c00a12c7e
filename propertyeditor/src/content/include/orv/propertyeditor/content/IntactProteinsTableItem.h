#pragma once

#include <orv/propertyeditor/content/BaseTableItem.h>
#include <orv/propertyeditor/content/ExtendedMetadataSink.h>

namespace orv::PropertyEditor {

/// The chains of intact proteins, the proteins built from them and their building blocks.
class ORV_WORKFLOW_EXPORT IntactProteinsTableItem : public BaseTableItem, public ExtendedMetadataSink
{
    Q_OBJECT

public:
    IntactProteinsTableItem();
    ~IntactProteinsTableItem() override;

    [[nodiscard]] RowNode root() const { return rootNode(); }
    /// Announces changed() alone.
    void setRoot(const RowNode &node)
    {
        rootNode() = node;
        Q_EMIT changed();
    }

    [[nodiscard]] MappingTarget target() const override { return MappingTarget::IntactProteins; }
    /// Keeps the chains that the user entered, with the proteins made of them alone, and adds for each
    /// mapping a chain with the value as its sequence and a protein of that chain in the mapping's samples.
    /// Tables that can't be read stay as they are, which is logged.
    void reloadMetadata(const QList<MetadataMapping> &mappings,
                        const QList<TalvaneMetadataMappingConnection> &connections) override;

    /// Chains of older documents, which don't tell where they come from, are marked as the user's.
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;

protected:
    [[nodiscard]] PropertyId propertyId() const override;

private:
    void markOldChainsAsCustom();
};

} // namespace orv::PropertyEditor
