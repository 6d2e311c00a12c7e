#include "orv/propertyeditor/window/PropertyEditorWindow.h"

#include "CurrentWindow.h"
#include "LossTexts.h"
#include "PropertyEditorWindowForm.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/window/NameDialog.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/window/PropertyEditorWindowPrivate.h>
#include <orv/propertyeditor/window/WorkflowPropertiesDialog.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>
#include <orv/widgets/ChoiceBox.h>
#include <orv/widgets/HostServices.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

namespace orv {

using PropertyEditor::BaseItem;
using EditorMode = GridPropertyEditorView::EditorMode;
using PropertiesViewMode = GridPropertyEditorView::PropertiesViewMode;

PropertyEditorWindow::PropertyEditorWindow(QWidget *parent, PropertyEditorWindowPrivate *state)
    : QMainWindow(parent)
    , d(state)
{
    d->m_form->setupUi(this);
    d->m_tabs = new WorkflowTabs(d->m_form->tabWidget, state);
    d->m_tabs->setPrepare([state](PropertyGridWidget &grid) { state->setupToolbar(&grid); });
    connect(d->m_tabs, &WorkflowTabs::columnsChanged, state, [state] { state->updateDependentWidgets(); });
    ORVPropertyFactory::init();
    setupTabButtons();
    connect(d->m_form->pushCreateProject, &QPushButton::clicked, this,
            &PropertyEditorWindow::createProjectClicked);
    connect(d->m_form->pushButton_process, &QPushButton::clicked, this,
            &PropertyEditorWindow::processWorkflowClicked);
    d->m_form->pushButton_process->setVisible(WorkflowNodeUtils::nodesEnabled());
}

PropertyEditorWindow::~PropertyEditorWindow() = default;

PropertyEditorWindow *PropertyEditorWindow::currentInstance()
{
    return CurrentWindow::instance();
}

bool PropertyEditorWindow::designerModeEnabled()
{
    return PropertyEditorWindowPrivate::designerModeEnabled();
}

WorkflowTabs *PropertyEditorWindow::workflowTabs() const
{
    return d->m_tabs;
}

QString PropertyEditorWindow::workflowFilePath() const
{
    return d->workflowFilePath();
}

void PropertyEditorWindow::setWorkflowFilePath(const QString &path)
{
    d->setWorkflowFilePath(path);
}

QJsonObject PropertyEditorWindow::workflowMetadata() const
{
    return d->workflowMetadata();
}

void PropertyEditorWindow::setWorkflowMetadata(const QJsonObject &metadata)
{
    d->setWorkflowMetadata(metadata);
}

QJsonObject PropertyEditorWindow::extendedMetadata() const
{
    return d->m_extendedMetadataInfo.toJson();
}

void PropertyEditorWindow::prepareColumns()
{
    if (d->workflowBaseUrl().isValid())
        d->updateBaseUrlForRelativeUrls();
    if (d->m_connectedSamples.data() != d->m_dependent.samples.data())
        d->connectGridWidgets();
}

QToolBar *PropertyEditorWindow::toolBar() const
{
    return d->m_form->toolBar;
}

void PropertyEditorWindow::setReadOnly()
{
    d->m_isReadOnly = true;
    QPushButton *button = d->m_form->pushCreateProject;
    button->setText(tr("Close"));
    button->disconnect();
    connect(button, &QPushButton::clicked, this, &QWidget::close);
    static const QString readOnly = tr(" (read only)");
    setWindowTitle(windowTitle() + readOnly);
}

void PropertyEditorWindow::setUpgradeView(const UpgradeView &create)
{
    d->m_upgradeView = create;
}

bool PropertyEditorWindow::isReadOnly() const
{
    return d->m_isReadOnly;
}

void PropertyEditorWindow::setAdditionalValidatorsCreatorFunction(const AdditionalValidators &create)
{
    d->m_additionalValidatorsCreator = create;
}

PropertyEditorWindow::AdditionalValidators PropertyEditorWindow::additionalValidatorsCreatorFunction() const
{
    return d->m_additionalValidatorsCreator;
}

PropertyEditor::SampleTypesValidator *PropertyEditorWindow::sampleTypesValidator() const
{
    return new PropertyEditor::SampleTypesValidator;
}

WorkflowType PropertyEditorWindow::workflowType() const
{
    const QString path = d->workflowFilePath();
    const QString file =
        WflwUtils::isMirelPortableWorkflow(path) ? WflwUtils::workflowInPortableWorkflow(path) : path;
    PropertyEditorContent content;
    if (PropertyEditorWindowJsonFile(file).loadTabsFromJson(&content))
        return WflwMetaData::workflowType(content.metadata());
    qCWarning(propertyEditorLog).noquote() << "Cannot read workflow file:" << file;
    return WorkflowType::Unknown;
}

namespace {

QToolButton *addToolButton(QToolBar *toolBar, const QString &text, const QString &toolTip, IconName icon)
{
    auto *button = new QToolButton(toolBar);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setIcon(Icons::icon(icon));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

template<class Mode>
QComboBox *modeCombo(QToolBar *toolBar, const QString &name)
{
    auto *combo = new ChoiceBox(toolBar);
    combo->setAccessibleName(name);
    combo->setToolTip(name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return combo;
}

} // namespace

void PropertyEditorWindow::setupTabButtons()
{
    QToolBar *bar = d->m_form->toolBar;
    const auto add = [this, bar](const QString &text, const QString &tip, IconName icon, auto slot) {
        QToolButton *button = addToolButton(bar, text, tip, icon);
        connect(button, &QToolButton::clicked, this, slot);
        return button;
    };
    d->m_launchButton = add(tr("Launch Workflow..."), tr("Launch Workflow from a file"), IconName::Open,
                            [this] { selectAndOpenWorkflow(); });
    bar->addWidget(d->m_launchButton);
    d->m_saveButton = add(tr("Save Workflow..."), tr("Save workflow to a file"), IconName::Save,
                          [this] { saveWorkflowAs(); });
    bar->addWidget(d->m_saveButton);
    d->m_propertiesAction =
        bar->addWidget(add(tr("Workflow Properties..."), tr("Open workflow properties"), IconName::Properties,
                           &PropertyEditorWindow::openWorkflowProperties));
    QToolButton *update =
        add(tr("Update workflows from dir..."), tr("Updates all system worklows into newest version"),
            IconName::Upgrade, &PropertyEditorWindow::updateSystemWorkflowsButton);
    bar->addWidget(update);
    d->m_designerActions.append(bar->addSeparator());
    d->m_designerActions.append(
        bar->addWidget(add(tr("Add tab"), tr("Add tab"), IconName::Add, &PropertyEditorWindow::addTab)));
    d->m_designerActions.append(
        bar->addWidget(add(tr("Remove current tab"), tr("Remove current tab"), IconName::Remove,
                           &PropertyEditorWindow::removeCurrentTab)));
    d->m_designerActions.append(bar->addWidget(update));
    auto *spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    bar->addWidget(spacer);
    addModeCombos();
    d->setEditorMode(EditorMode::User);
}

void PropertyEditorWindow::addModeCombos()
{
    QToolBar *bar = d->m_form->toolBar;
    auto *views = modeCombo<PropertiesViewMode>(bar, tr("Which settings are shown"));
    views->addItem(Icons::hostIcon(IconName::BasicView, nullptr, "view-list-text"), tr("Basic Options"),
                   int(PropertiesViewMode::Basic));
    views->addItem(Icons::hostIcon(IconName::AdvancedView, nullptr, "view-list-details"),
                   tr("Advanced Options"), int(PropertiesViewMode::Advanced));
    views->setCurrentIndex(views->findData(int(d->m_tabs->propertiesViewMode())));
    connect(views, &QComboBox::currentIndexChanged, d.get(),
            [this, views] { d->setPropertiesViewMode(PropertiesViewMode(views->currentData().toInt())); });
    bar->addWidget(views);

    auto *editors = modeCombo<EditorMode>(bar, tr("Whether workflows are designed or used"));
    editors->addItem(Icons::hostIcon(IconName::Edit, ":/icons/modify", "application-x-designer"),
                     tr("Designer mode"), int(EditorMode::Designer));
    editors->addItem(Icons::hostIcon(IconName::User, ":/icons/user", "im-user"), tr("User mode"),
                     int(EditorMode::User));
    editors->setCurrentIndex(editors->findData(int(d->m_tabs->editorMode())));
    connect(editors, &QComboBox::currentIndexChanged, d.get(),
            [this, editors] { d->setEditorMode(EditorMode(editors->currentData().toInt())); });
    bar->addWidget(editors)->setVisible(designerModeEnabled());
}

void PropertyEditorWindow::enableWorkflowFileOperations(bool enabled)
{
    d->m_form->pushCreateProject->setEnabled(enabled);
    d->m_launchButton->setEnabled(enabled);
    d->m_saveButton->setEnabled(enabled);
}

// Tabs and presets.

Error PropertyEditorWindow::addTabWithColumns(const QString &name, const QStringList &columns,
                                              const VariantItems &cells)
{
    return d->addTabWithColumnsGrid(name, columns, cells).ecatch();
}

void PropertyEditorWindow::addTab()
{
    ModalDialog dialog(new NameDialog(NameDialog::AddTab, this));
    if (!dialog.exec())
        return;
    const QPointer<PropertyEditorWindow> self(this);
    if (const Error error = addTabWithColumns(dialog->name(), {}, {}))
        qCWarning(propertyEditorLog).noquote() << "The tab can't be added" << error.errorMessage();
    else if (self)
        Q_EMIT d->m_tabs->edited();
}

void PropertyEditorWindow::removeTab(int index)
{
    d->removeTab(index);
}

void PropertyEditorWindow::removeCurrentTab()
{
    if (d->m_tabs->count() == 0)
        return;
    const QPointer<PropertyEditorWindow> self(this);
    const auto answer =
        ORVStyle::question(this, tr("Removing tab"), tr("Are you sure you want to remove current tab?"),
                           QMessageBox::Yes | QMessageBox::No);
    if (!self || answer != QMessageBox::Yes)
        return;
    removeTab(d->m_form->tabWidget->currentIndex());
    if (self)
        Q_EMIT d->m_tabs->edited();
}

void PropertyEditorWindow::appendRow()
{
    d->appendRowGrid();
}

void PropertyEditorWindow::appendColumn()
{
    const QPointer<PropertyEditorWindow> self(this);
    ModalDialog dialog(new NameDialog(NameDialog::AddColumn, this));
    dialog->setComboStrings(BaseItem::typeNames());
    if (!dialog.exec())
        return;
    d->appendColumnGrid(BaseItem::typeFromString(dialog->comboText()), dialog->name());
    if (!self || d->m_tabs->isCurrentEven())
        return;
    // Its name was taken, which a person can take back.
    Q_EMIT d->m_tabs->edited();
    if (self)
        tellUneven(tr("Append column"));
}

void PropertyEditorWindow::tellUneven(const QString &title)
{
    ORVStyle::warning(
        this, title,
        tr("This application can't show every column of the tab. As it is, the workflow can't be "
           "saved: undo this, or remove the tab."));
}

bool PropertyEditorWindow::openTabPreset()
{
    const QPointer<PropertyEditorWindow> self(this);
    const QString path = ORVFileDialog::getOpenFileName(this, tr("Open Tab"), {}, {MirelFileTypes::PTAB});
    if (!self || path.isEmpty() || !d->currentTabHasWidget())
        return false;
    PropertyEditorContent preset;
    if (!PropertyEditorWindowJsonFile(path).loadTabFromJson(&preset))
        return false;
    const QStringList lost = textsOf(WorkflowUpgrade::lossesBefore(preset));
    setCurrentTabContent(preset);
    if (!self)
        return true;
    d->m_lost += lost;
    Q_EMIT d->m_tabs->edited();
    if (self && !d->m_tabs->isCurrentEven())
        tellUneven(tr("Open Tab"));
    return true;
}

bool PropertyEditorWindow::saveTabPreset()
{
    const QPointer<PropertyEditorWindow> self(this);
    commitTyping();
    if (!self)
        return false;
    const QString path =
        ORVFileDialog::getSaveFileName(this, tr("Save tab to file"), {}, {MirelFileTypes::PTAB});
    if (!self || path.isEmpty())
        return false;
    return PropertyEditorWindowJsonFile(path).saveTabToJson(currentTabContent());
}

void PropertyEditorWindow::openWorkflowProperties()
{
    ModalDialog dialog(new WorkflowPropertiesDialog(d->workflowMetadata(), this));
    dialog->setDesignerModeEnabled(d->m_tabs->editorMode() == EditorMode::Designer);
    if (!dialog.exec())
        return;
    d->setWorkflowMetadata(dialog->metaData());
    Q_EMIT metadataEdited();
}

PropertyEditorContent PropertyEditorWindow::content() const
{
    return d->tabsAndContent();
}

PropertyEditorContent PropertyEditorWindow::currentTabContent() const
{
    return d->currentTabContent();
}

void PropertyEditorWindow::setCurrentTabContent(const PropertyEditorContent &tabContent)
{
    d->setCurrentTabContent(tabContent);
}

void PropertyEditorWindow::clear()
{
    const QPointer<PropertyEditorWindow> self(this);
    while (self && d->m_tabs->count() > 0)
        removeTab(0);
    if (!self)
        return;
    d->m_lost.clear();
    d->setWorkflowFilePath(QLatin1String(""));
    if (!d->m_isReloading)
        Q_EMIT documentShown();
}

void PropertyEditorWindow::createEmptyWorkflow()
{
    const QPointer<PropertyEditorWindow> self(this);
    clear();
    if (!self)
        return;
    d->setWorkflowFilePath(QLatin1String(""));
    if (const Error error = setContent(PropertyEditorContent()))
        qCWarning(propertyEditorLog).noquote() << "No empty workflow" << error.errorMessage();
}

} // namespace orv
