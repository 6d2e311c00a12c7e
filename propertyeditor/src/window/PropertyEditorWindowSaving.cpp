#include "LossTexts.h"
#include "PropertyEditorWindowForm.h"
#include "orv/propertyeditor/window/PropertyEditorWindow.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/WflwAdvancedSettings.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/window/PropertyEditorWindowPrivate.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QFileInfo>
#include <QPointer>

namespace orv {

using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

namespace {

/// The document as it is written: with absolute paths.
struct WorkflowToSave
{
    PropertyEditorContent content;
    QStringList losses; ///< what isn't in it any more
};

/// What the window shows can be saved, cells of unknown types too where they are shown.
PropertyEditor::ValidationOptions optionsOfLoad()
{
    if (WflwAdvancedSettings::isWorkflowVerificationEnabled())
        return {};
    return PropertyEditor::ValidationOption::SkipTypeValidation;
}

Result<WorkflowToSave> withAbsolutePaths(const PropertyEditorContent &shown, const QUrl &baseUrl)
{
    LossCollector losses;
    Content content;
    content.setLossObserver(&losses);
    Error error = content.assignFromJson(shown.toJsonObject(), optionsOfLoad());
    content.setLossObserver(nullptr);
    if (error.hasError())
        return error.ecatch();
    content.setBaseUrl(baseUrl);
    ORV_RETURN_IF_ERROR(content.checkWritable());
    WorkflowToSave saved{PropertyEditorContent(content.toJsonObject(PropertyConversionFlag::AbsolutePaths)),
                         {}};
    saved.losses = textsOf(losses.losses());
    return saved;
}

QString detailsOf(const Error &error)
{
    return (error.errorMessages() + error.details()).join(u'\n');
}

} // namespace

bool PropertyEditorWindow::saveWorkflowAs()
{
    const QPointer<PropertyEditorWindow> self(this);
    if (!verifyWidgetsContentAndShowDialog(WidgetValidationType::SaveWorkflow) || !self)
        return false;
    const QString path =
        ORVFileDialog::getSaveFileName(this, tr("Save Workflow"), d->proposedName(), {MirelFileTypes::WFLW});
    return self && !path.isEmpty() && saveWorkflowToJSON(path);
}

bool PropertyEditorWindow::acceptsLosses(const QStringList &losses)
{
    const QStringList lost = d->m_lost + losses;
    if (lost.isEmpty())
        return true;
    const QPointer<PropertyEditorWindow> self(this);
    const auto answer = ORVStyle::warning(
        this, tr("Save Workflow"),
        tr("Something of the workflow isn't known to this application and would not be saved. Save without "
           "it?"),
        QMessageBox::Save | QMessageBox::Cancel, {}, QMessageBox::Cancel, lost.join(u'\n'));
    return self && answer == QMessageBox::Save;
}

bool PropertyEditorWindow::saveWorkflowToJSON(const QString &path)
{
    const auto fail = [this](const Error &error) {
        ORVStyle::critical(this, {}, tr("Failed to save the workflow"), QMessageBox::Ok, {},
                           QMessageBox::NoButton, detailsOf(error));
        return false;
    };
    const PropertyEditorContent shown = content();
    QJsonObject metadata = shown.metadata();
    WflwMetaData::setNameInMetaDataObject(&metadata, QFileInfo(path).completeBaseName());
    const Result<WorkflowToSave> saved = withAbsolutePaths(
        {shown.tabsAndContent(), metadata, shown.extendedMetadataInfo()}, d->workflowBaseUrl());
    if (saved.hasError())
        return fail(saved.error());
    if (!acceptsLosses(saved->losses))
        return false;
    PropertyEditorWindowJsonFile file(path);
    if (!file.saveTabsToJson(saved->content))
        return fail(file.error());
    reload(saved->content, path);
    return true;
}

void PropertyEditorWindow::beginReload()
{
    Q_EMIT aboutToReload();
    d->m_isReloading = true;
}

void PropertyEditorWindow::endReload(bool isShown)
{
    d->m_isReloading = false;
    if (isShown)
        Q_EMIT documentSaved();
    else
        Q_EMIT documentShown();
}

void PropertyEditorWindow::reload(const PropertyEditorContent &written, const QString &path)
{
    const QPointer<PropertyEditorWindow> self(this);
    const int tab = d->m_form->tabWidget->currentIndex();
    beginReload();
    clear();
    if (!self)
        return;
    const Error error = setContent(written);
    if (!self) {
        qCCritical(propertyEditorLog).noquote() << "The window went away while it was saved" << path;
        return;
    }
    if (error.hasError()) {
        tellNotShownAgain(error, path);
        return;
    }
    d->m_form->tabWidget->setCurrentIndex(tab);
    d->setWorkflowMetadata(written.metadata());
    d->setWorkflowFilePath(path);
    d->updateBaseUrlForRelativeUrls();
    d->collapseAllKPropertyViews();
    d->updateLastSavedWorkflow();
    endReload(true);
}

void PropertyEditorWindow::tellNotShownAgain(const Error &error, const QString &path)
{
    const QPointer<PropertyEditorWindow> self(this);
    qCCritical(propertyEditorLog).noquote()
        << "What was saved can't be shown" << path << error.errorMessage();
    endReload(false);
    if (self) {
        ORVStyle::critical(
            this, {},
            tr("The workflow was saved, and can't be shown again: %1\nOpen it from its file: %2")
                .arg(error.errorMessage(), path));
    }
}

void PropertyEditorWindow::commitTyping()
{
    QWidget *typed = focusWidget();
    if (!typed)
        return;
    for (QWidget *outer = typed->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto *view = qobject_cast<QAbstractItemView *>(outer)) {
            view->setFocus();
            return;
        }
    }
    const QPointer<QWidget> field(typed);
    typed->clearFocus();
    if (field)
        field->setFocus();
}

bool PropertyEditorWindow::hasUnsavedChanges() const
{
    const bool isNew = d->workflowFilePath().isNull();
    if (d->m_projectCreationStarted || (isNew && d->m_tabs->count() == 0))
        return false;
    QJsonObject saved = d->getLastSavedWorkflow();
    if (saved.isEmpty()) {
        PropertyEditorContent content;
        if (PropertyEditorWindowJsonFile(d->workflowFilePath()).loadTabsFromJson(&content))
            saved = content.document();
    }
    return !PropertyEditorJsonUtils::compareWorkflows(saved, content().toJsonObject(), false);
}

void PropertyEditorWindow::closeEvent(QCloseEvent *event)
{
    const QPointer<PropertyEditorWindow> self(this);
    commitTyping();
    if (self && hasUnsavedChanges()) {
        const auto answer = ORVStyle::question(this, tr("Unsaved changes"),
                                               tr("There are some unsaved changes. Do you want to save ?"),
                                               QMessageBox::Yes | QMessageBox::No, {}, QMessageBox::Yes);
        if (self && answer == QMessageBox::Yes)
            saveWorkflowAs();
    }
    event->accept();
}

} // namespace orv
