#include "orv/propertyeditor/window/PropertyEditorDesktopWindow.h"

#include "LossTexts.h"

#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/workflow/PortableTarget.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/ProgressOutputUtils.h>

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

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

/// The details hold all of them.
constexpr qsizetype kMostFilesTold = 5;

/// Files that the workflow names and the folder doesn't carry.
class DanglingFiles : public PortableSaveObserver
{
public:
    void dangling(const QString &text) override { texts.append(text); }

    QStringList texts;
};

/// Runs on any thread. \a dangling gets the files that aren't found from the folder.
Error savePortable(const QJsonObject &document, const QString &folder, const QUrl &baseUrl,
                   QStringList *dangling)
{
    Content content;
    ORV_RETURN_IF_ERROR(content.assignFromJson(document));
    content.setBaseUrl(baseUrl);
    ORV_RETURN_IF_ERROR(PortableTarget::checkReplaceable(folder));
    PortableTarget target(folder);
    ORV_RETURN_IF_ERROR(target.prepare());
    QString text;
    DanglingFiles files;
    if (!WflwUtils::saveAsPortableWorkflow(content, target.stagedFolder(), baseUrl, &text, &files))
        return Error(ErrorCode::CannotOpenFile, target.asInPlace(text));
    ORV_RETURN_IF_ERROR(target.commit());
    // Where the folder was made, files beside its place weren't found.
    const QDir home(folder);
    files.texts.removeIf([&home](const QString &file) { return QFileInfo::exists(home.filePath(file)); });
    *dangling = files.texts;
    return Error::NoError;
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
    Error unusable = content.assignFromJson(this->content().toJsonObject());
    content.setLossObserver(nullptr);
    if (!unusable.hasError())
        unusable = content.checkWritable();
    if (unusable.hasError()) {
        dFunc()->setWorkflowMetadata(before);
        ORVStyle::critical(this, {},
                           tr("Cannot handle the specified workflow: %1").arg(unusable.errorMessage()));
        return;
    }
    if (!acceptsLosses(textsOf(losses.losses()))) {
        if (self)
            dFunc()->setWorkflowMetadata(before);
        return;
    }
    const QJsonObject document = content.toJsonObject(PropertyConversionFlag::KeepPaths);
    Error error;
    QStringList dangling;
    {
        const auto progress =
            ProgressOutputUtils::createAndShowProgress(tr("Saving the portable workflow..."), this, false);
        const QUrl baseUrl = dFunc()->workflowBaseUrl();
        progress->run([&](ProgressReporter &) { error = savePortable(document, path, baseUrl, &dangling); });
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
    if (self && !dangling.isEmpty())
        tellNotCarried(dangling);
}

void PropertyEditorDesktopWindow::tellNotCarried(const QStringList &files)
{
    QStringList told = files.first(std::min(files.size(), kMostFilesTold));
    if (told.size() < files.size())
        told.append(QStringLiteral("..."));
    ORVStyle::warning(
        this, tr("Save As Portable Workflow"),
        tr("The workflow was saved, but some files that it names weren't copied, and aren't found "
           "from its folder. Copy them to where they are named:\n%1")
            .arg(told.join(u'\n')),
        QMessageBox::Ok, {}, QMessageBox::NoButton, files.join(u'\n'));
}

} // namespace orv
