#include "SystemWorkflows.h"

#include "LossTexts.h"

#include <orv/core/FileUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>
#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/ProgressOutputUtils.h>

#include <QDir>
#include <QFileInfo>
#include <QPointer>

namespace orv {

namespace SystemWorkflows {

namespace {

/// False, with a line in the log, where the file can't be kept.
bool keepsOriginal(const QString &path, const Error &reason)
{
    const QString kept = pathForResult(path + QLatin1String(".bak"), DuplicateFilePolicy::KeepBoth);
    if (const auto failure = FileUtils::copyFile(path, kept)) {
        qCWarning(propertyEditorLog).noquote() << "Can't save into" << path << failure->reason;
        return false;
    }
    qCWarning(propertyEditorLog).noquote()
        << "The workflow before its upgrade is kept in" << kept << reason.errorMessage();
    return true;
}

void upgradeFile(const QString &path)
{
    PropertyEditorContent content;
    PropertyEditorWindowJsonFile file(path);
    if (!file.loadTabsFromJson(&content)) {
        qCWarning(propertyEditorLog).noquote() << "Can't load" << path;
        return;
    }
    const QVersionNumber version = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    const QList<Loss> lost = file.losses() + WorkflowUpgrade::lossesBefore(content);
    WflwUpgradeOptions options;
    options.baseUrl = QUrl::fromLocalFile(QFileInfo(path).absolutePath() + u'/');
    const Error error = WflwUpgrader::upgradeWorkflow(version, &content, nullptr, options);
    for (const QString &text : textsOf(lost))
        qCWarning(propertyEditorLog).noquote() << "Lost by the upgrade" << path << text;
    if ((error.hasError() || !lost.isEmpty()) && !keepsOriginal(path, error))
        return;
    content.setCustomUser(QStringLiteral("ORV"));
    if (!file.saveTabsToJson(content))
        qCWarning(propertyEditorLog).noquote() << "Can't save into" << path;
}

} // namespace

void upgradeAllIn(const QString &folder)
{
    const QDir files(folder, QStringLiteral("*.wflw"), QDir::Name, QDir::Files);
    for (const QString &file : files.entryList())
        upgradeFile(files.absoluteFilePath(file));
}

} // namespace SystemWorkflows

void PropertyEditorWindow::updateSystemWorkflowsButton()
{
    const QPointer<PropertyEditorWindow> self(this);
    const QString folder = ORVFileDialog::getExistingDirectory(this, tr("Select workflows directory"));
    if (!self || folder.isEmpty())
        return;
    {
        const auto progress =
            ProgressOutputUtils::createAndShowProgress(tr("Updating workflows..."), this, false);
        progress->run([&folder](ProgressReporter &) { SystemWorkflows::upgradeAllIn(folder); });
    }
    ORVStyle::information(self, {}, tr("Updating workflows finished"));
}

} // namespace orv
