#include "orv/propertyeditor/workflow/WorkingContent.h"

#include "TreeText.h"
#include "UpgradeRun.h"

namespace orv {

using PropertyEditor::Content;

WorkingContent::WorkingContent(const Content &tree, PropertyEditorContent *document, Loan loan)
    : Content(tree)
    , m_document(document)
    , m_loan(std::move(loan))
{}

void WorkingContent::Return::operator()(UpgradeRun *run) const
{
    run->takeBack();
}

Result<WorkingContent> WorkingContent::of(UpgradeRun *run, PropertyEditorContent *document)
{
    const bool isShared = run && run->canLend(document);
    Result<Content> tree = isShared ? run->lend() : TreeText::read(*document);
    if (!tree)
        return tree.ecatch();
    return WorkingContent(*tree, document, Loan(isShared ? run : nullptr));
}

Error WorkingContent::writeBack() const
{
    const Error error = m_loan ? m_loan->write(*this, m_document) : TreeText::write(*this, m_document);
    ORV_RETURN_IF_ERROR(error);
    return Error::NoError;
}

void WorkingContent::tellRenamed(const QString &from, const QString &to) const
{
    if (m_loan)
        m_loan->tellRenamed({from, to});
}

} // namespace orv
