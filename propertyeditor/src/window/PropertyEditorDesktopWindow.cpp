#include "orv/propertyeditor/window/PropertyEditorDesktopWindow.h"

#include "LossTexts.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/workflow/PortableTarget.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/ProgressOutputUtils.h>

#include <QFileInfo>
#include <QPointer>
#include <QToolBar>
#include <QToolButton>

namespace orv {

using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

PropertyEditorDesktopWindowPrivate::PropertyEditorDesktopWindowPrivate(PropertyEditorDesktopWindow *window,
                                                                       CoreMainWindow *mainWindow)
    : PropertyEditorWindowPrivate(window, mainWindow)
    , m_window(window)
{}

PropertyEditorDesktopWindowPrivate::~PropertyEditorDesktopWindowPrivate() = default;

bool PropertyEditorDesktopWindowPrivate::createProject()
{
    return m_window->handOver(PropertyEditorDesktopWindow::RelativePaths::AreMadeAbsoluteFirst);
}

PropertyEditorDesktopWindow::PropertyEditorDesktopWindow(CoreMainWindow *mainWindow, QWidget *parent)
    : PropertyEditorWindow(parent, new PropertyEditorDesktopWindowPrivate(this, mainWindow))
{
    auto *button = new QToolButton(this);
    button->setText(tr("Save As Portable Workflow..."));
    button->setToolTip(tr("Save as a portable workflow"));
    button->setIcon(Icons::icon(IconName::Portable));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, &PropertyEditorDesktopWindow::savePortableWorkflow);
    const QList<QAction *> actions = toolBar()->actions();
    toolBar()->insertWidget(actions.at(2), button);
    setTabOrder(toolBar()->widgetForAction(actions.at(1)), button);
    desktop()->m_savePortableButton = button;
}

PropertyEditorDesktopWindow::~PropertyEditorDesktopWindow() = default;

PropertyEditorDesktopWindowPrivate *PropertyEditorDesktopWindow::desktop() const
{
    return static_cast<PropertyEditorDesktopWindowPrivate *>(dFunc());
}

void PropertyEditorDesktopWindow::enableWorkflowFileOperations(bool enabled)
{
    PropertyEditorWindow::enableWorkflowFileOperations(enabled);
    desktop()->m_savePortableButton->setEnabled(enabled);
}

void PropertyEditorDesktopWindow::savePortableWorkflow()
{
    const QPointer<PropertyEditorDesktopWindow> self(this);
    static const FileExtensionsNameFilter filter{MirelFileTypes::WFLWP};
    if (!verifyWidgetsContentAndShowDialog(WidgetValidationType::SaveWorkflow) || !self)
        return;
    const QString path =
        ORVFileDialog::getSaveFileName(this, tr("Save As Portable Workflow"), dFunc()->proposedName(), filter,
                                       FileSystemSettings::DefaultLocation);
    if (self && !path.isEmpty())
        writePortableWorkflow(path);
}

namespace {

/// Tells the log of files that the folder doesn't carry.
class DanglingFiles : public PortableSaveObserver
{
public:
    void dangling(const QString &text) override
    {
        qCWarning(propertyEditorLog).noquote() << "The portable workflow doesn't carry the file" << text;
    }
};

/// Runs on any thread.
Error savePortable(const QJsonObject &document, const QString &folder, const QUrl &baseUrl)
{
    Content content;
    ORV_RETURN_IF_ERROR(content.assignFromJson(document));
    content.setBaseUrl(baseUrl);
    ORV_RETURN_IF_ERROR(PortableTarget::checkReplaceable(folder));
    PortableTarget target(folder);
    ORV_RETURN_IF_ERROR(target.prepare());
    QString text;
    DanglingFiles dangling;
    if (!WflwUtils::saveAsPortableWorkflow(content, target.stagedFolder(), baseUrl, &text, &dangling))
        return Error(ErrorCode::CannotOpenFile, target.asInPlace(text));
    return target.commit().ecatch();
}

} // namespace

void PropertyEditorDesktopWindow::writePortableWorkflow(const QString &path)
{
    const QPointer<PropertyEditorDesktopWindow> self(this);
    const QJsonObject before = dFunc()->workflowMetadata();
    QJsonObject metadata = before;
    WflwMetaData::setNameInMetaDataObject(&metadata, QFileInfo(path).completeBaseName());
    dFunc()->setWorkflowMetadata(metadata);
    Content content;
    LossCollector losses;
    content.setLossObserver(&losses);
    const Error unreadable = content.assignFromJson(this->content().toJsonObject());
    content.setLossObserver(nullptr);
    if (unreadable.hasError()) {
        dFunc()->setWorkflowMetadata(before);
        ORVStyle::critical(this, {},
                           tr("Cannot handle the specified workflow: %1").arg(unreadable.errorMessage()));
        return;
    }
    if (!acceptsLosses(textsOf(losses.losses()))) {
        if (self)
            dFunc()->setWorkflowMetadata(before);
        return;
    }
    const QJsonObject document = content.toJsonObject(PropertyConversionFlag::KeepPaths);
    Error error;
    {
        const auto progress =
            ProgressOutputUtils::createAndShowProgress(tr("Saving the portable workflow..."), this, false);
        const QUrl baseUrl = dFunc()->workflowBaseUrl();
        progress->run([&](ProgressReporter &) { error = savePortable(document, path, baseUrl); });
    }
    if (!self)
        return;
    if (error.hasError()) {
        ORVStyle::critical(this, {}, error.errorMessage(), QMessageBox::Ok, {}, QMessageBox::NoButton,
                           error.details().join(u'\n'));
        return;
    }
    beginReload();
    clear();
    if (!self)
        return;
    // What was written names its files as they are called in the folder.
    const QString inner = WflwUtils::workflowInPortableWorkflow(path);
    PropertyEditorContent written(document);
    (void)PropertyEditorWindowJsonFile(inner).loadTabsFromJson(&written);
    dFunc()->setWorkflowFilePath(inner);
    const Error shown = setContent(written);
    if (self)
        endReload(!shown.hasError());
    if (self && shown.hasError())
        ORVStyle::critical(this, {}, shown.errorMessage());
}

} // namespace orv
