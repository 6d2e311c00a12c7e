#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/Content.h>

#include <memory>

namespace orv {

class UpgradeRun;

/// A document as the tree that one step of an upgrade edits:
/// \code
///     Result<WorkingContent> working = createPecToUpgrade(content);
///     if (!working)
///         return working.ecatch();
///     working->setWorkflowName(name);
///     return working->writeBack();
/// \endcode
/// Which cells the step has edited, the cells themselves tell. What isn't written back is forgotten. Lives
/// within one step.
class ORV_WORKFLOW_EXPORT WorkingContent : public PropertyEditor::Content
{
public:
    /// From the \a run that \a document belongs to, or by the document's text: without a run, for a document
    /// of its own, and while another step of the run is at work.
    static Result<WorkingContent> of(UpgradeRun *run, PropertyEditorContent *document);

    /// Replaces the document by what the tree holds now. Fails if a tab is no rectangle, as it would be
    /// written empty.
    Error writeBack() const;

    /// Tells who reviews the upgrade that the setting \a from lives on as \a to in the cells that have the
    /// one before this step and the other behind it; otherwise one was removed and another one added.
    void tellRenamed(const QString &from, const QString &to) const;

private:
    struct ORV_WORKFLOW_EXPORT Return
    {
        void operator()(UpgradeRun *run) const;
    };
    using Loan = std::unique_ptr<UpgradeRun, Return>;

    WorkingContent(const Content &tree, PropertyEditorContent *document, Loan loan);

    PropertyEditorContent *m_document;
    Loan m_loan; ///< null for a tree that belongs to no run
};

} // namespace orv
