#include "orv/propertyeditor/editors/MirelResourceReferenceEditor.h"

#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/widgets/ORVFileDialog.h>

#include <QFileInfo>
#include <QPointer>

namespace orv {

namespace {

constexpr QLatin1String kExistingFile("existingfile");
constexpr QLatin1String kFolder("dirsonly");

/// Where the chooser begins: at the file, else in the folder from which references count.
QString startPath(const ResourceReferenceEditorBase &editor)
{
    const ResourceReferenceSPtr value = ResourceReferenceUtils::resolved(editor.value(), editor.baseUrl());
    const QString path = ResourceHandlerUtils::fullPath(value);
    return path.isEmpty() ? editor.baseUrl().toLocalFile() : path;
}

} // namespace

MirelResourceReferenceEditor::MirelResourceReferenceEditor(const KProperty &property, QWidget *parent)
    : ResourceReferenceEditorBase(property, parent)
{}

MirelResourceReferenceEditor::~MirelResourceReferenceEditor() = default;

void MirelResourceReferenceEditor::selectButtonClicked()
{
    if (!settleText())
        return;
    using Prompt = ORVFileDialog::OverwritePrompt;
    const QPointer<MirelResourceReferenceEditor> self(this);
    const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation;
    QString path;
    if (fileMode() == kExistingFile)
        path = ORVFileDialog::getOpenFileName(this, tr("Select Existing File"), startPath(*this), filter(),
                                              location);
    else if (fileMode() == kFolder)
        path = ORVFileDialog::getExistingDirectory(this, tr("Select Existing Directory"), startPath(*this));
    else
        path = ORVFileDialog::getSaveFileName(this, tr("Select File"), startPath(*this), filter(), location,
                                              confirmOverwrite() ? Prompt::On : Prompt::Off);
    // A dialog ran meanwhile: the editor may be gone.
    if (!self || path.isEmpty())
        return;
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(path);
    if (reference.hasError())
        refuse(path, reference.error().errorMessage());
    else
        take(*reference);
}

bool MirelResourceReferenceEditor::verifyEnteredText(const QString &text)
{
    const ResourceReferenceSPtr reference = resolvedFromText(text);
    if (!reference)
        return false;
    const bool isFolder = fileMode() == kFolder;
    if (!isFolder && fileMode() != kExistingFile)
        return true;
    if (ResourceReferenceUtils::isRelative(reference)) {
        refuse(tr("it counts from the folder of the workflow, which has none yet. Type the whole path."));
        return false;
    }
    return isThere(questionFor(ResourceHandlerUtils::fullPath(reference), isFolder),
                   isFolder ? tr("there is no such folder here. Choose one with the \"\u2026\" button.")
                            : tr("there is no such file here. Choose one with the \"\u2026\" button."));
}

ResourceReferenceEditorBase::Question MirelResourceReferenceEditor::questionFor(const QString &path,
                                                                                bool isFolder) const
{
    return [path, isFolder] {
        const QFileInfo file(path);
        return isFolder ? file.isDir() : file.isFile();
    };
}

} // namespace orv
