#include "EditorWindow.h"

#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/ORVStyle.h>

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStatusBar>

namespace orv {

std::optional<FileStamp> FileStamp::of(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    return FileStamp{info.size(), info.lastModified()};
}

void EditorWindow::followFile()
{
    connect(this, &PropertyEditorWindow::documentShown, this, [this] {
        m_isUpgraded = false;
        statusBar()->clearMessage();
    });
    connect(this, &PropertyEditorWindow::documentUpgraded, this,
            [this](const DocumentUpgrade &, bool isSaved) { m_isUpgraded = !isSaved; });
    connect(this, &PropertyEditorWindow::documentSaved, this, [this] {
        m_isUpgraded = false;
        rememberFile(FileStamp::of(workflowFilePath()));
    });
}

void EditorWindow::rememberFile(const std::optional<FileStamp> &stamp)
{
    m_file = QFileInfo(workflowFilePath()).canonicalFilePath();
    m_fileStamp = stamp;
}

bool EditorWindow::mayReplaceFile()
{
    const QString path = workflowFilePath();
    const std::optional<FileStamp> now = FileStamp::of(path);
    if (!now || now == m_fileStamp)
        return true;
    const QPointer<EditorWindow> self(this);
    const auto answer = ORVStyle::question(
        this, tr("Save"),
        tr("%1 was changed by another program since it was opened here. Replace it?")
            .arg(QDir::toNativeSeparators(path)),
        QMessageBox::Save | QMessageBox::Cancel, {{QMessageBox::Save, tr("Replace")}}, QMessageBox::Cancel);
    return self && answer == QMessageBox::Save;
}

void EditorWindow::save()
{
    const QPointer<EditorWindow> self(this);
    commitTyping();
    if (!self)
        return;
    if (workflowTabs()->count() == 0) {
        tell(tr("There is no workflow to save yet."));
        return;
    }
    const QString path = workflowFilePath();
    if (WflwUtils::isMirelPortableWorkflow(QFileInfo(path).path())) {
        savePortableWorkflow();
        return;
    }
    const bool isNewer =
        WflwMetaData::isNewerThanCurrent(WflwMetaData::versionNumberFromMetaDataObject(workflowMetadata()));
    if (isNewer) {
        tell(tr("The file comes from a newer version of the software and stays as it is. Save under another "
                "name."));
    }
    // The version that wrote an older file can't open what a save would make of it.
    if (isNewer || m_isUpgraded || !QFileInfo(path).isAbsolute()) {
        saveWorkflowAs();
        return;
    }
    if (verifyWidgetsContentAndShowDialog(WidgetValidationType::SaveWorkflow) && self && mayReplaceFile())
        saveWorkflowToJSON(path);
}

} // namespace orv
