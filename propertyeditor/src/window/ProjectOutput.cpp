#include "orv/propertyeditor/window/ProjectOutput.h"

#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/engine/KarvonPropertiesGetter.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/TargetProjectPathChooserDialog.h>

namespace orv::ProjectOutput {

using PropertyEditor::KeyValueItem;

namespace {

struct ProjectOutputTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyEditorWindow)
};

bool hasSeveralResults(const QList<BaseItemType> &documents, const QList<KeyValueItem *> &projects)
{
    if (PropertyEditorUtils::isKarvonOnly(documents) &&
        !KarvonPropertiesGetter::isMergeKarvonResultsEnabled(filterProjects(projects, BaseItemType::Karvon)))
        return true;
    return PropertyEditorUtils::isMultiDocument(documents);
}

Path askForSeveral(QWidget *parent, DuplicateFilePolicy *policy)
{
    ModalDialog dialog(new TargetProjectPathChooserDialog(parent));
    if (!dialog.exec())
        return {};
    if (policy)
        *policy = dialog->duplicateFilePolicy();
    return dialog->outputPath();
}

Path askForFolder(QWidget *parent)
{
    const QString folder = ORVFileDialog::getExistingDirectory(
        parent, ProjectOutputTr::tr("Save project to..."), {}, ORVFileDialog::FolderContent::ShowDirsOnly,
        FileSystemSettings::NewProjectLocation);
    return Path(folder, Path::Kind::Folder);
}

Path askForFile(QWidget *parent, const QList<BaseItemType> &documents)
{
    const Result<FileExtensionsNameFilter> filter =
        PropertyEditorUtils::fileNameFilterForExpectedProject(documents);
    if (filter.hasError()) {
        ORVStyle::critical(parent, ProjectOutputTr::tr("Project creation"), filter.error().errorMessage());
        return {};
    }
    const QString file = ORVFileDialog::getSaveFileName(parent, ProjectOutputTr::tr("Save project as"), {},
                                                        *filter, FileSystemSettings::NewProjectLocation);
    return Path(file, Path::Kind::File);
}

} // namespace

Path askForPath(QWidget *parent, const QList<BaseItemType> &documents, const QList<KeyValueItem *> &projects,
                DuplicateFilePolicy *policy)
{
    if (hasSeveralResults(documents, projects))
        return askForSeveral(parent, policy);
    if (PropertyEditorUtils::isPreviewOnly(documents))
        return askForFolder(parent);
    return askForFile(parent, documents);
}

QList<KeyValueItem *> filterProjects(const QList<KeyValueItem *> &projects, BaseItemType type)
{
    QList<KeyValueItem *> filtered;
    for (KeyValueItem *project : projects) {
        if (project && project->type() == type)
            filtered.append(project);
    }
    return filtered;
}

} // namespace orv::ProjectOutput
