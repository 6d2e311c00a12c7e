#include "orv/propertyeditor/window/PropertyEditorWindowPrivate.h"

#include "CurrentWindow.h"
#include "PropertyEditorWindowForm.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/Logging.h>
#include <orv/core/Settings.h>
#include <orv/core/TextUtils.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/ProjectOutput.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/ProteinTabs.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/GlycanOptionsWidget.h>
#include <orv/widgets/GlycanTableWidget.h>
#include <orv/widgets/HostServices.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/PepmapReservedColumnsVerifierGui.h>
#include <orv/widgets/ProteinInputWidgetBase.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QToolButton>

namespace orv {

using PropertyEditor::Content;

namespace {

/// Where a title has this, Qt puts the mark of a modified document; twice it stands for itself.
constexpr QLatin1String kMarkOfTitles("[*]");
constexpr QLatin1String kShownMark("[*][*]");

} // namespace

PropertyEditorWindowPrivate::PropertyEditorWindowPrivate(PropertyEditorWindow *window,
                                                         CoreMainWindow *mainWindow)
    : q(window)
    , m_mainWindow(mainWindow)
    , m_form(std::make_unique<PropertyEditorWindowForm>())
{
    CurrentWindow::enter(q);
}

PropertyEditorWindowPrivate::~PropertyEditorWindowPrivate()
{
    CurrentWindow::leave(q);
}

Error PropertyEditorWindowPrivate::addTabWithColumnsGrid(const QString &name, const QStringList &columns,
                                                         const VariantItems &cells)
{
    return m_tabs->add(name, columns, cells).ecatch();
}

void PropertyEditorWindowPrivate::appendColumnGrid(BaseItemType type, const QString &name)
{
    const QPointer<PropertyEditorWindowPrivate> self(this);
    const QPointer<PropertyGridWidget> grid = gridWidgetForCurrentTab();
    if (!grid)
        return;
    grid->appendColumn(type, name, true);
    if (self && grid)
        updateBaseUrlForRelativeUrls(grid);
    if (self && grid)
        collapseAllKPropertyViews(grid);
}

void PropertyEditorWindowPrivate::appendRowGrid()
{
    if (PropertyGridWidget *grid = gridWidgetForCurrentTab())
        grid->appendRow();
}

void PropertyEditorWindowPrivate::removeTab(int index)
{
    m_tabs->remove(index);
}

PropertyEditorContent PropertyEditorWindowPrivate::tabsAndContent() const
{
    return PropertyEditorContent(m_tabs->tabs(), m_workflowMetadata, m_extendedMetadataInfo.toJson());
}

PropertyEditorContent PropertyEditorWindowPrivate::currentTabContent() const
{
    return PropertyEditorContent(m_tabs->currentTab());
}

void PropertyEditorWindowPrivate::setCurrentTabContent(const PropertyEditorContent &content)
{
    const PropertyEditorContent::Tabs tabs = content.tabsAndContent();
    if (tabs.isEmpty() || m_tabs->count() == 0)
        return;
    m_form->tabWidget->setTabText(m_form->tabWidget->currentIndex(), tabs.first().first);
    updateCurrentTabGrid(tabs.first().second);
}

void PropertyEditorWindowPrivate::updateCurrentTabGrid(const ColumnsAndCells &tab)
{
    const QString title = m_form->tabWidget->tabText(m_form->tabWidget->currentIndex());
    if (Error error = m_tabs->replaceCurrent({title, tab}))
        qCWarning(propertyEditorLog).noquote() << "Not all columns can be shown" << error.errorMessage();
}

PropertyGridWidget *PropertyEditorWindowPrivate::gridWidgetForCurrentTab() const
{
    return m_tabs->currentGrid();
}

PropertyGridWidget *PropertyEditorWindowPrivate::gridWidgetForTabIndex(int index) const
{
    return m_tabs->grid(index);
}

bool PropertyEditorWindowPrivate::currentTabHasWidget() const
{
    return gridWidgetForCurrentTab() != nullptr;
}

void PropertyEditorWindowPrivate::setEditorMode(EditorMode mode)
{
    m_tabs->setEditorMode(mode);
    for (QAction *action : std::as_const(m_designerActions))
        action->setVisible(mode == EditorMode::Designer);
}

void PropertyEditorWindowPrivate::setPropertiesViewMode(PropertiesViewMode mode)
{
    m_tabs->setPropertiesViewMode(mode);
}

void PropertyEditorWindowPrivate::collapseAllKPropertyViews()
{
    m_tabs->collapseAll();
}

void PropertyEditorWindowPrivate::collapseAllKPropertyViews(PropertyGridWidget *grid)
{
    if (grid)
        WorkflowTabs::collapseAll(*grid);
}

void PropertyEditorWindowPrivate::updateBaseUrlForRelativeUrls()
{
    m_tabs->setBaseUrl(m_workflowBaseUrl);
}

void PropertyEditorWindowPrivate::updateBaseUrlForRelativeUrls(PropertyGridWidget *grid)
{
    if (grid)
        WorkflowTabs::setBaseUrl(*grid, m_workflowBaseUrl);
}

void PropertyEditorWindowPrivate::setupToolbar(PropertyGridWidget *grid)
{
    createButtonsAndAddToLayout(grid->buttonsLayout());
    grid->buttonsLayout()->addStretch();
}

void PropertyEditorWindowPrivate::createButtonsAndAddToLayout(QLayout *layout)
{
    const auto add = [this, layout](const QString &text, auto slot) {
        auto *button = new QToolButton(q);
        button->setText(text);
        button->setToolTip(text);
        connect(button, &QToolButton::clicked, q, slot);
        layout->addWidget(button);
    };
    add(PropertyEditorWindow::tr("Append column"), &PropertyEditorWindow::appendColumn);
    if (multiRowEnabled())
        add(PropertyEditorWindow::tr("Append row"), &PropertyEditorWindow::appendRow);
    add(PropertyEditorWindow::tr("Open Tab Preset..."), &PropertyEditorWindow::openTabPreset);
    add(PropertyEditorWindow::tr("Save Tab Preset..."), &PropertyEditorWindow::saveTabPreset);
}

void PropertyEditorWindowPrivate::connectGridWidgets()
{
    const SamplesAndTracesInputWidget *samples = m_dependent.samples;
    if (!samples)
        return;
    m_connectedSamples = m_dependent.samples.data();
    connect(samples, &SamplesAndTracesInputWidget::removeCustomColumn, this,
            &PropertyEditorWindowPrivate::removeCustomColumn);
    connect(samples, &SamplesAndTracesInputWidget::samplesChanged, this,
            &PropertyEditorWindowPrivate::samplesChanged,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
}

void PropertyEditorWindowPrivate::updateDependentWidgets()
{
    qCDebug(propertyEditorLog) << "Updating dependent widgets";
    const PropertyEditorWindow *current = PropertyEditorWindow::currentInstance();
    SquishUiUtils::setTabWidgetWindowTitle(m_form->tabWidget, (current ? current : q)->windowTitle());
    const QPointer<PropertyEditorWindowPrivate> self(this);
    DependentWidgets::ImportChecks checks;
    checks.preFlight = [self](const QMap<QString, QList<QVariant>> &columns) {
        return PepmapReservedColumnsVerifierGui::verifyIntactPeaksTable(columns, self ? self->q : nullptr);
    };
    checks.postFlight = [self] { return self ? self->verifyCustomColumns() : Error(Error::NoError); };
    const DependentWidgets::Found found =
        DependentWidgets::update(m_tabs->grids(), WflwMetaData::workflowType(m_workflowMetadata), checks);
    if (!self)
        return;
    m_dependent = found;
    disconnect(m_glycanConnection);
    if (m_dependent.glycanOptions) {
        m_glycanConnection = connect(m_dependent.glycanOptions, &GlycanOptionsWidget::contentChanged, this,
                                     &PropertyEditorWindowPrivate::passGlycanOptions);
        passGlycanOptions();
    }
}

void PropertyEditorWindowPrivate::passGlycanOptions() const
{
    if (!m_dependent.glycanOptions)
        return;
    const GlycanOptions options = m_dependent.glycanOptions->options();
    for (GlycanTableWidget *glycans : m_dependent.glycans) {
        if (glycans)
            glycans->setGlycanOptions(options);
    }
}

Error PropertyEditorWindowPrivate::verifyCustomColumns() const
{
    return Error::NoError;
}

void PropertyEditorWindowPrivate::setWorkflowFilePath(const QString &path)
{
    m_workflowFilePath = path;
    if (path.isEmpty()) {
        q->setWindowTitle(PropertyEditorWindow::tr("Project Creation"));
        m_workflowBaseUrl.clear();
        return;
    }
    q->setWindowTitle(PropertyEditorWindow::tr("%1 - Project Creation")
                          .arg(QDir::toNativeSeparators(path).replace(kMarkOfTitles, kShownMark)));
    const QString folder = QFileInfo(path).absolutePath();
    m_workflowBaseUrl =
        QUrl::fromLocalFile(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

QString PropertyEditorWindowPrivate::proposedName() const
{
    const QString name = WflwMetaData::nameFromMetaDataObject(m_workflowMetadata);
    return name.isEmpty() ? name : FileNameUtils::nameFromText(name);
}

void PropertyEditorWindowPrivate::setWorkflowMetadata(const QJsonObject &metadata)
{
    m_workflowMetadata = metadata;
    CurrentWindow::setWorkflowType(q, WflwMetaData::workflowType(metadata));
}

void PropertyEditorWindowPrivate::updateLastSavedWorkflow()
{
    m_lastSavedWorkflow = q->content().toJsonObject();
    m_isSnapshotTaken = true;
}

void PropertyEditorWindowPrivate::countAsUnsaved(const QStringList &lost)
{
    m_lastSavedWorkflow = PropertyEditorContent().toJsonObject();
    m_lost += lost;
    m_lost.removeDuplicates();
}

bool PropertyEditorWindowPrivate::verifyWidgetsContent(QStringList *warnings, QStringList *errors,
                                                       QStringList *details, WidgetValidationType type) const
{
    return m_tabs->validate(warnings, errors, details, type);
}

bool PropertyEditorWindowPrivate::verifyWorkflowReferences(const PropertyEditorContent &content) const
{
    Content document;
    if (const Error error =
            document.assignFromJson(content.document(), PropertyEditor::ValidationOption::SkipTypeValidation))
        qCWarning(propertyEditorLog).noquote() << "Not all references are known" << error.errorMessage();
    const QList<ResourceReferenceSPtr> unsupported = ResourceReferenceUtils::unsupportedReferences(
        document.allReferences(), PropertyEditorUtils::supportedReferences(q->workflowAppType()));
    if (unsupported.isEmpty())
        return true;
    QString text =
        PropertyEditorWindow::tr("A workflow cannot be launched. It contains unsupported references: %1")
            .arg(TextUtils::stringListToHtmlList(ResourceReferenceUtils::toStringList(unsupported, true)));
    const QList<WorkflowAppType> applications = PropertyEditorUtils::supportedApplications(unsupported);
    if (!applications.isEmpty()) {
        text += PropertyEditorWindow::tr("In order to use this workflow you need to use %1.")
                    .arg(workflowAppTypeToString(applications.first()));
    }
    ORVStyle::warning(q, PropertyEditorWindow::tr("Unsupported reference type"), DisplayString::html(text));
    return false;
}

bool PropertyEditorWindowPrivate::hasKarvon(const Content &content) const
{
    return content.findAllDocuments().contains(BaseItemType::Karvon);
}

bool PropertyEditorWindowPrivate::hasOstrale(const Content &content) const
{
    return content.findAllDocuments().contains(BaseItemType::Ostrale);
}

Path PropertyEditorWindowPrivate::getLocalProjectOutputPath(
    const QList<BaseItemType> &documents, const QList<PropertyEditor::KeyValueItem *> &projects,
    DuplicateFilePolicy *policy) const
{
    return ProjectOutput::askForPath(q, documents, projects, policy);
}

Result<bool>
PropertyEditorWindowPrivate::shouldDisplayNewProteinWidget(const PropertyEditorContent &content) const
{
    return ProteinTabs::areBuiltFromChains(content);
}

void PropertyEditorWindowPrivate::changeProteinsTypeToIntactProteins(PropertyEditorContent::Tabs *tabs) const
{
    ProteinTabs::changeToIntactProteins(tabs);
}

bool PropertyEditorWindowPrivate::multiRowEnabled() const
{
    return as::value(as::kMultiRowEnabled, false).toBool();
}

bool PropertyEditorWindowPrivate::designerModeEnabled()
{
    return as::value(as::kEnableDesignerMode, false).toBool();
}

} // namespace orv
