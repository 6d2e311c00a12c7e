#pragma once

#include <orv/core/LossObserver.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/widgets/Export.h>

/// Which of the two tables of proteins a document is shown with. Any thread.
namespace orv::ProteinTabs {

/// Whether proteins are built from chains: where there is an intact analysis and none that feeds the peptide
/// product. Fails for a document that can't be loaded. \a losses, which may be null, hears what a load drops.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT Result<bool> areBuiltFromChains(const PropertyEditorContent &content,
                                                                         LossObserver *losses = nullptr);

/// Makes each cell of proteins one of proteins from chains, in place. A cell that is no JSON stays, with a
/// warning.
ORV_PROPERTY_EDITOR_EXPORT void changeToIntactProteins(PropertyEditorContent::Tabs *tabs);

} // namespace orv::ProteinTabs
