#include "LossTexts.h"
#include "orv/propertyeditor/window/PropertyEditorWindow.h"

#include <orv/core/Logging.h>
#include <orv/core/TextUtils.h>
#include <orv/propertyeditor/window/PropertyEditorDirLocations.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/window/PropertyEditorWindowPrivate.h>
#include <orv/propertyeditor/window/ProteinTabs.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DefaultWidgetCreator.h>
#include <orv/widgets/HostServices.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/ProgressOutputUtils.h>

#include <QFileInfo>
#include <QMetaMethod>
#include <QPointer>

#include <array>

namespace orv {

using PropertyEditor::Content;
using OpenStatus = PropertyEditorWindow::OpenStatus;

namespace {

/// The application that shows server workflows in desktop form.
constexpr int kApplicationOfDesktopForms = 7;
/// The document type whose columns have display names of their own.
constexpr int kPeptideDocument = 3;

struct DocumentTypeRow
{
    int documentType;
    std::initializer_list<int> workflowTypes;
};

const QHash<int, int> &documentTypeOfWorkflowType()
{
    static const QHash<int, int> types = [] {
        const std::array rows = {
            DocumentTypeRow{0, {0}},
            DocumentTypeRow{2, {2, 32}},
            DocumentTypeRow{3, {5, 6, 7, 16, 17, 18, 23, 24, 25, 26, 28, 29, 30, 34}},
            DocumentTypeRow{4, {3, 4, 8, 10, 20, 21, 22}},
            DocumentTypeRow{9, {1, 9, 11, 12, 13, 14, 15, 19, 31}},
            DocumentTypeRow{10, {27}},
        };
        QHash<int, int> built;
        for (const DocumentTypeRow &row : rows) {
            for (const int workflowType : row.workflowTypes)
                built.insert(workflowType, row.documentType);
        }
        return built;
    }();
    return types;
}

bool isSameVersion(const QVersionNumber &a, const QVersionNumber &b)
{
    return a.segmentCount() == b.segmentCount() && QVersionNumber::compare(a, b) == 0;
}

void tellDocumentType(const PropertyEditorContent &content)
{
    const WorkflowType type = WflwMetaData::workflowType(content.metadata());
    const int documentType = documentTypeOfWorkflowType().value(int(type), 0);
    ColumnFriendlyName::changeDocumentType(documentType);
    if (documentType == kPeptideDocument)
        MainWindowISSA::updateDisplayColumnNames(type == WorkflowType::DigestedOligo);
}

} // namespace

/// What is known of the version of a document that is being opened.
struct PropertyEditorWindow::Upgrade
{
    WflwMetaData::WflwState state = WflwMetaData::WflwState::UpToDate;
    DocumentUpgrade done;
    Error error;
    QStringList lost; ///< of what was read, before the document is shown
    bool isSaved = false;

    [[nodiscard]] bool isNeeded() const { return !isSameVersion(done.from, done.to); }
    /// No step leads down from a newer version.
    [[nodiscard]] bool isUpward() const { return done.from < done.to; }
};

OpenStatus PropertyEditorWindow::selectAndOpenWorkflow()
{
    const QPointer<PropertyEditorWindow> self(this);
    const QString path =
        ORVFileDialog::getOpenFileName(this, tr("Launch Workflow"), {}, WflwUtils::workflowFiltersInDialog(),
                                       PropertyEditorDirLocations::OpenWorkflowLocation);
    qCDebug(propertyEditorLog).noquote() << "Selected workflow:" << path;
    if (!self || path.isEmpty())
        return OpenStatus::NotOpened;
    return openWorkflow(path, ResourceReferenceSPtr());
}

OpenStatus PropertyEditorWindow::openWorkflow(const QString &filePath, const ResourceReferenceSPtr &)
{
    const QString path = WflwUtils::isMirelPortableWorkflow(filePath)
                             ? WflwUtils::workflowInPortableWorkflow(filePath)
                             : filePath;
    PropertyEditorWindowJsonFile file(path);
    PropertyEditorContent content;
    if (!file.loadTabsFromJson(&content))
        return OpenStatus::NotOpened;
    d->m_lostInReading = textsOf(file.losses());
    return openWorkflow(&content, &file, path);
}

OpenStatus PropertyEditorWindow::openWorkflow(PropertyEditorContent *content)
{
    return openWorkflow(content, std::nullopt, WflwMetaData::nameFromMetaDataObject(content->metadata()));
}

OpenStatus PropertyEditorWindow::openWorkflow(const QJsonObject &workflow)
{
    PropertyEditorContent content(workflow);
    d->m_lostInReading = textsOf(PropertyEditorWindowJsonFile::lossesOf(workflow));
    return openWorkflow(&content);
}

OpenStatus PropertyEditorWindow::openWorkflow(const Content &content)
{
    if (content.isEmpty())
        return OpenStatus::NotOpened;
    return openWorkflow(content.toJsonObject(PropertyEditor::PropertyConversionFlag::KeepPaths));
}

OpenStatus PropertyEditorWindow::openWorkflow(PropertyEditorContent *content,
                                              std::optional<PropertyEditorWindowJsonFile *>,
                                              const QString &path)
{
    const QPointer<PropertyEditorWindow> self(this);
    Upgrade upgrade;
    upgrade.done.path = path;
    upgrade.lost = std::exchange(d->m_lostInReading, {});
    if (const std::optional<OpenStatus> refusal = judge(*content, &upgrade))
        return *refusal;
    clear();
    if (!self)
        return OpenStatus::NotOpened;
    d->setWorkflowFilePath(path);
    if (upgrade.isNeeded())
        runUpgrade(content, &upgrade);
    if (!self)
        return OpenStatus::NotOpened;
    if (const std::optional<OpenStatus> refusal = applyUpgrade(content, path, &upgrade))
        return *refusal;
    tellDocumentType(*content);
    const OpenStatus status = self ? display(*content, upgrade.lost) : OpenStatus::NotOpened;
    if (self && status == OpenStatus::Opened && upgrade.isUpward())
        Q_EMIT documentUpgraded(upgrade.done, upgrade.isSaved);
    return status;
}

/// What keeps the document from being opened, before anything is changed.
std::optional<OpenStatus> PropertyEditorWindow::judge(const PropertyEditorContent &content, Upgrade *upgrade)
{
    const QPointer<PropertyEditorWindow> self(this);
    QStringList issues;
    upgrade->done.from = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    upgrade->done.to = WflwMetaData::currentWorkflowVersion();
    upgrade->state = WflwMetaData::checkWorkflowVersion(upgrade->done.from, &content, &issues);
    if (content.tabsAndContent().isEmpty()) {
        ORVStyle::critical(this, tr("Workflow is invalid"),
                           tr("This workflow is invalid and thus cannot be loaded."));
        return OpenStatus::Rejected;
    }
    if (upgrade->state != WflwMetaData::WflwState::NotSupported)
        return std::nullopt;
    qCCritical(propertyEditorLog) << "Incompatible workflow version" << issues;
    const QString text = tr("%1.\n\nSome parts of the workflow may not be loaded or work correctly. Would "
                            "you like to continue?")
                             .arg(issues.join(u'\n'));
    const auto answer =
        ORVStyle::question(this, tr("Workflow is invalid"), text, QMessageBox::Yes | QMessageBox::No);
    if (!self || answer == QMessageBox::No)
        return OpenStatus::Rejected;
    return std::nullopt;
}

void PropertyEditorWindow::runUpgrade(PropertyEditorContent *content, Upgrade *upgrade)
{
    WflwUpgradeOptions options;
    options.baseUrl = d->workflowBaseUrl();
    WorkflowUpgradeReview review;
    static const QMetaMethod kUpgraded = QMetaMethod::fromSignal(&PropertyEditorWindow::documentUpgraded);
    if (isSignalConnected(kUpgraded))
        options.observer = &review;
    const auto progress =
        ProgressOutputUtils::createAndShowProgress(tr("Opening the workflow..."), this, false);
    progress->run([content, upgrade, &options](ProgressReporter &) {
        upgrade->lost += textsOf(WorkflowUpgrade::lossesBefore(*content));
        upgrade->error =
            WflwUpgrader::upgradeWorkflow(upgrade->done.from, content, &upgrade->done.notes, options);
    });
    upgrade->done.steps = review.steps();
    upgrade->done.hasFailed = upgrade->error.hasError();
}

/// Asks about an upgrade that was made, or that failed; what keeps the document from being shown.
std::optional<OpenStatus> PropertyEditorWindow::applyUpgrade(PropertyEditorContent *content,
                                                             const QString &path, Upgrade *upgrade)
{
    const QPointer<PropertyEditorWindow> self(this);
    auto answer = QMessageBox::Yes;
    if (upgrade->state == WflwMetaData::WflwState::NeedsUpgrade) {
        const QString extra = upgrade->done.notes.isEmpty()
                                  ? QString()
                                  : tr("<br/>Also, the following changes were applied: %1")
                                        .arg(TextUtils::stringListToHtmlList(upgrade->done.notes));
        const QString text = tr("This workflow was outdated and was automatically upgraded for this version "
                                "of the application to work properly. %1Would you like to apply this "
                                "upgrade and proceed?")
                                 .arg(extra);
        answer = ORVStyle::question(this, tr("Workflow upgrade"), DisplayString::html(text),
                                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                    {{QMessageBox::Yes, tr("Apply")},
                                     {QMessageBox::No, tr("Apply and save...")},
                                     {QMessageBox::Cancel, tr("Cancel")}},
                                    QMessageBox::Cancel, {},
                                    d->m_upgradeView ? d->m_upgradeView(upgrade->done) : nullptr);
        if (!self || answer == QMessageBox::Cancel)
            return OpenStatus::NotOpened;
    }
    if (!upgrade->error.hasError()) {
        qCInfo(propertyEditorLog) << "Workflow was upgraded";
        if (answer == QMessageBox::No)
            upgrade->isSaved = saveUpgraded(*content, path);
        return self ? std::nullopt : std::optional(OpenStatus::NotOpened);
    }
    qCCritical(propertyEditorLog) << "Workflow updating failed" << int(upgrade->error.code());
    QStringList texts = upgrade->error.errorMessages();
    if (texts.isEmpty() || texts.first().isEmpty())
        texts = {tr("It's not possible to upgrade the workflow.")};
    const QString text = tr("%1\n\nSome parts of the workflow may not be loaded or work correctly. Would you "
                            "like to continue?")
                             .arg(texts.join(u'\n'));
    const auto goOn =
        ORVStyle::question(this, tr("Workflow updating failed"), text, QMessageBox::Yes | QMessageBox::No);
    return self && goOn == QMessageBox::Yes ? std::nullopt : std::optional(OpenStatus::NotOpened);
}

bool PropertyEditorWindow::saveUpgraded(const PropertyEditorContent &content, const QString &path)
{
    const QPointer<PropertyEditorWindow> self(this);
    static const FileExtensionsNameFilter filter{MirelFileTypes::WFLW};
    const std::unique_ptr<IFileAccessor> accessor = DefaultWidgetCreator::fileAccessor();
    const DestinationFileLocation destination =
        accessor->getSaveFileName(this, tr("Save upgraded workflow"), QFileInfo(path).absolutePath(), filter,
                                  FileSystemSettings::DefaultLocation);
    if (!self || destination.isCanceled())
        return false;
    bool isSaved = false;
    Error error = accessor->saveFile(destination, [&](const QString &localPath) -> Error {
        const bool isLocal = destination.reference()->isScheme(ResourceReference::Scheme::LocalFile);
        const bool isWritten = PropertyEditorWindowJsonFile(localPath).saveTabsToJson(content);
        if (isWritten && isLocal && self)
            d->setWorkflowFilePath(localPath);
        isSaved = isWritten;
        return Error::NoError;
    });
    return !error.ecatch().hasError() && isSaved;
}

OpenStatus PropertyEditorWindow::display(const PropertyEditorContent &content, const QStringList &lost)
{
    const QPointer<PropertyEditorWindow> self(this);
    d->m_isSnapshotTaken = false;
    const Error error = setContent(content);
    if (!self)
        return OpenStatus::NotOpened;
    if (error.hasError()) {
        QString text = tr("Failed to launch the specified workflow");
        if (!error.errorMessage().isEmpty())
            text += tr(": %1").arg(error.errorMessage());
        ORVStyle::critical(this, {}, text);
        return OpenStatus::NotOpened;
    }
    d->m_lost = lost + d->m_lost;
    // What was read from the tabs a moment ago is as good, but for windows with a setContent() of their own.
    (void)d->verifyWorkflowReferences(d->m_isSnapshotTaken ? PropertyEditorContent(d->getLastSavedWorkflow())
                                                           : this->content());
    return OpenStatus::Opened;
}

PropertyEditorContent PropertyEditorWindow::inDesktopForm(const PropertyEditorContent &content) const
{
    const bool isServerMode =
        WflwMetaData::contentMode(content.metadata()) != PropertyEditorContent::ContentMode::DesktopMode;
    if (!isServerMode || !d->m_mainWindow ||
        !d->m_mainWindow->appInfo().isApplication(kApplicationOfDesktopForms))
        return content;
    Content document;
    Error error = document.assignFromJson(content.document());
    if (!error.hasError())
        error = document.checkWritable();
    if (error.ecatch().hasError())
        return content;
    document.setDesktopContentMode();
    return PropertyEditorContent(document.toJsonObject(PropertyEditor::PropertyConversionFlag::KeepPaths));
}

void PropertyEditorWindow::parseExtendedMetadata(const PropertyEditorContent &content)
{
    const Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(content.extendedMetadataInfo());
    if (info.hasError()) {
        qCCritical(propertyEditorLog).noquote()
            << "Unable to parse extended metadata" << info.error().errorMessage();
        d->m_lost.append(tr("The metadata of the server can't be read: %1").arg(info.error().errorMessage()));
    }
    d->setExtendedMetadataInfo(info.valueOr(ExtendedMetadataInfo()));
}

/// Who designs workflows may open tabs without columns, which show none of their cells.
QStringList PropertyEditorWindow::cellsWithoutColumns(const PropertyEditorContent::Tabs &tabs)
{
    QStringList texts;
    for (const auto &[name, columnsAndCells] : tabs) {
        if (columnsAndCells.first.isEmpty() && !columnsAndCells.second.isEmpty())
            texts.append(tr("The tab \"%1\" has cells, but no columns that show them.").arg(name));
    }
    return texts;
}

Error PropertyEditorWindow::setContent(const PropertyEditorContent &content)
{
    const QPointer<PropertyEditorWindow> self(this);
    const PropertyEditorContent copy = inDesktopForm(content);
    const QString path = d->workflowFilePath();
    PropertyEditorContent::Tabs tabs = copy.tabsAndContent();
    d->m_lost.clear();
    parseExtendedMetadata(copy);
    LossCollector losses;
    const Result<bool> showsNewProteins = ProteinTabs::areBuiltFromChains(copy, &losses);
    const QStringList lost = d->m_lost + textsOf(losses.losses()) + cellsWithoutColumns(tabs);
    if (showsNewProteins.hasError()) {
        clear();
        if (self)
            d->setWorkflowFilePath(path);
    } else if (*showsNewProteins) {
        d->changeProteinsTypeToIntactProteins(&tabs);
    }
    const auto gone = [&self] {
        return self ? Error() : Error(ErrorCode::InvalidContent, tr("The window was closed meanwhile."));
    };
    ORV_RETURN_IF_ERROR(gone());
    d->setWorkflowMetadata(copy.metadata());
    for (const auto &[name, columnsAndCells] : std::as_const(tabs)) {
        Error error = addTabWithColumns(name, columnsAndCells.first, columnsAndCells.second);
        ORV_RETURN_IF_ERROR(gone());
        if (error.hasError()) {
            clear();
            if (self)
                d->setWorkflowFilePath(path);
            return error.ecatch();
        }
    }
    if (d->workflowBaseUrl().isValid())
        d->updateBaseUrlForRelativeUrls();
    d->collapseAllKPropertyViews();
    d->m_lost = lost;
    d->updateLastSavedWorkflow();
    d->connectGridWidgets();
    if (!d->m_isReloading)
        Q_EMIT documentShown();
    return self ? Error::NoError : gone();
}

} // namespace orv
