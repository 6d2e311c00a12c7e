#include "orv/propertyeditor/editors/TalvaneResourceReferenceEditor.h"

#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/widgets/FileChooserDialogManager.h>

#include <QPointer>

namespace orv {

namespace {

/// A disk may be asked on any thread, what a host registered on this one alone.
bool isOnADisk(const ResourceReferenceSPtr &reference)
{
    return reference->isScheme(ResourceReference::Scheme::LocalFile) &&
           ResourceManager::isBuiltIn(ResourceReference::Scheme::LocalFile);
}

} // namespace

TalvaneResourceReferenceEditor::TalvaneResourceReferenceEditor(const KProperty &property, QWidget *parent)
    : ResourceReferenceEditorBase(property, parent)
{}

TalvaneResourceReferenceEditor::~TalvaneResourceReferenceEditor() = default;

void TalvaneResourceReferenceEditor::selectButtonClicked()
{
    if (!settleText())
        return;
    FileChooserDialogOptions options;
    options.filter.types = filter();
    options.start = ResourceReferenceUtils::resolved(value(), baseUrl());
    const QPointer<TalvaneResourceReferenceEditor> self(this);
    const ResourceReferenceSPtr chosen =
        FileChooserDialogManager::showFileChooser(options, this, 0, FileSystemSettings::DefaultLocation);
    // A dialog ran meanwhile: the editor may be gone.
    if (self)
        take(chosen);
}

bool TalvaneResourceReferenceEditor::verifyEnteredText(const QString &text)
{
    const ResourceReferenceSPtr reference = resolvedFromText(text);
    if (!reference)
        return false;
    const QString missing = tr("there is no such file. Choose one with the \"\u2026\" button.");
    if (isOnADisk(reference))
        return isThere([reference] { return ResourceHandlerUtils::checkExists(reference); }, missing);
    const QPointer<TalvaneResourceReferenceEditor> self(this);
    const Result<bool> exists = ResourceHandlerUtils::exists(reference);
    if (self && !exists.valueOr(false))
        refuse(exists.hasError() ? exists.error().errorMessage() : missing);
    return exists.valueOr(false);
}

} // namespace orv
