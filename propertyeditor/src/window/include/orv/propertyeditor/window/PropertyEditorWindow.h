#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/grid/WidgetValidationType.h>
#include <orv/propertyeditor/window/DocumentUpgrade.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>
#include <orv/resources/ResourceReference.h>
#include <orv/widgets/DuplicateFilePolicy.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/Path.h>

#include <QJsonObject>
#include <QMainWindow>
#include <QMetaType>

#include <functional>
#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QToolBar)

namespace orv {

class PropertyEditorWindowJsonFile;
class PropertyEditorWindowPrivate;
class WorkflowTabs;

namespace PropertyEditor {
class AbstractValidator;
class SampleTypesValidator;
} // namespace PropertyEditor

/// The document window: one workflow as a row of tabs, and everything that crosses its border. Prompts about
/// versions, saving, checks, and the hand-over of a checked workflow by sendToProcessing(), upon which the
/// application makes the projects. What it hands out is read from its widgets. Applications derive it, or
/// take PropertyEditorDesktopWindow. It may be closed and destroyed while it asks something. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PropertyEditorWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// What became of an attempt to open a workflow. Applications store it: never renumber.
    enum class OpenStatus
    {
        Opened = 0,
        NotOpened = 1, ///< somebody cancelled, or the document can't be read, upgraded or shown
        Rejected = 2,  ///< it is invalid or of an unsupported version, and nobody chose to go on
    };
    Q_ENUM(OpenStatus)

    using AdditionalValidators = std::function<QList<PropertyEditor::AbstractValidator *>()>;

    ~PropertyEditorWindow() override;

    /// The window that was made last, null once it has gone.
    [[nodiscard]] static PropertyEditorWindow *currentInstance();
    /// Whether this user designs workflows: the setting "MIREL/EnableDesignerMode".
    [[nodiscard]] static bool designerModeEnabled();

    /// Lives as long as the window.
    [[nodiscard]] WorkflowTabs *workflowTabs() const;
    /// Null for a new workflow, empty once the window was cleared.
    [[nodiscard]] QString workflowFilePath() const;
    /// For who takes the tabs of a workflow away and shows them again: while it isn't shown, the window has
    /// no file.
    void setWorkflowFilePath(const QString &path);

    /// The workflow's own properties: its name, version, who made it and when.
    [[nodiscard]] QJsonObject workflowMetadata() const;
    void setWorkflowMetadata(const QJsonObject &metadata);
    /// What servers add to a workflow, of the document that was shown last.
    [[nodiscard]] QJsonObject extendedMetadata() const;
    /// Takes over what somebody is typing in a field or cell, which stays the one with the focus.
    void commitTyping();
    /// Tells columns that were made anew what the window knows: where files lie, and who hears of samples.
    void prepareColumns();

    /// Nothing can be made of the workflow any more; for the rest of the window's life.
    void setReadOnly();
    [[nodiscard]] bool isReadOnly() const;
    /// That of the file on the disk; Unknown, with a warning, if it can't be read.
    [[nodiscard]] WorkflowType workflowType() const;
    /// The application for which references are checked.
    [[nodiscard]] virtual WorkflowAppType workflowAppType() const = 0;
    /// Called for each check, on this thread; what it gives becomes the check's.
    void setAdditionalValidatorsCreatorFunction(const AdditionalValidators &create);
    /// Null without one.
    [[nodiscard]] AdditionalValidators additionalValidatorsCreatorFunction() const;
    /// What stands in the question whether an upgrade shall be applied, below its text; the question takes it
    /// over.
    using UpgradeView = std::function<QWidget *(const DocumentUpgrade &upgrade)>;
    void setUpgradeView(const UpgradeView &create);
    /// A new one, which the caller owns, for workflows of nothing but searches.
    [[nodiscard]] virtual PropertyEditor::SampleTypesValidator *sampleTypesValidator() const;

    /// Imports a CSV file of samples and proteins into a workflow as its window would. InvalidContent without
    /// the file or the table for it, and what the import says against the file; the workflow stays then.
    static Error importSampleProteins(const QString &csvPath, PropertyEditor::Content *content);
    static Error importSampleProteins(const QString &csvPath, PropertyEditorContent *content);

public Q_SLOTS:
    void addTab();
    void removeCurrentTab();
    void appendRow();
    void appendColumn();
    bool openTabPreset();
    bool saveTabPreset();
    virtual orv::PropertyEditorWindow::OpenStatus selectAndOpenWorkflow();
    /// A file, or the folder of a portable workflow.
    virtual orv::PropertyEditorWindow::OpenStatus
    openWorkflow(const QString &filePath,
                 const orv::ResourceReferenceSPtr &folderToPreselect = orv::ResourceReferenceSPtr());
    orv::PropertyEditorWindow::OpenStatus openWorkflow(const orv::PropertyEditor::Content &content);
    orv::PropertyEditorWindow::OpenStatus openWorkflow(const QJsonObject &workflow);
    void createEmptyWorkflow();
    virtual bool saveWorkflowAs();
    void openWorkflowProperties();
    /// Removes all tabs and forgets the file; the metadata stay.
    virtual void clear();
    [[nodiscard]] orv::PropertyEditorContent content() const;
    /// Fails, with an empty window, for a tab that can't be shown.
    virtual orv::Error setContent(const orv::PropertyEditorContent &content);
    [[nodiscard]] orv::PropertyEditorContent currentTabContent() const;
    void setCurrentTabContent(const orv::PropertyEditorContent &tabContent);
    virtual void enableWorkflowFileOperations(bool enabled);
    /// Whether making projects began.
    bool createProjectClicked();
    void processWorkflowClicked();
    void updateSystemWorkflowsButton();

Q_SIGNALS:
    /// Another document is in the tabs, or none.
    void documentShown();
    /// The document was written to its file, from which the tabs were filled anew.
    void documentSaved();
    /// Behind documentShown(): the document was upgraded. What the tabs show isn't in the file then, unless
    /// it was saved on the way. Its steps are known only if somebody was connected when it was opened.
    void documentUpgraded(const orv::DocumentUpgrade &upgrade, bool isSaved);
    /// The tabs are going to be filled anew from what was written.
    void aboutToReload();
    /// A person changed the workflow's own properties.
    void metadataEdited();
    /// For applications: a project that was made is to be opened.
    void openProject(QString filePath);
    /// A checked workflow with absolute paths is to be run, with results at \a outputPath.
    void sendToProcessing(orv::PropertyEditor::Content content, orv::Path outputPath,
                          orv::DuplicateFilePolicy duplicateFilePolicy = orv::DuplicateFilePolicy::KeepBoth);
    /// For applications: a run has ended, after so many milliseconds.
    void projectCreationFinished(orv::Error error, QStringList createdProjects, qint64 elapsedTime);

protected:
    /// Takes \a state over, which is being made for this window.
    PropertyEditorWindow(QWidget *parent, PropertyEditorWindowPrivate *state);

    /// Shows what the checks found; whether one may go on.
    [[nodiscard]] bool checkContent(const PropertyEditor::Content &content, const QString &title);
    [[nodiscard]] bool verifyWidgetsContentAndShowDialog(WidgetValidationType type);
    /// Asks whether to save without \a losses and what the load lost; true where there are none.
    [[nodiscard]] bool acceptsLosses(const QStringList &losses);
    /// Writes the workflow and goes on with what was written.
    bool saveWorkflowToJSON(const QString &path);
    /// Between these two the tabs are filled anew with what was written: listeners hear of one saved
    /// document, not of others. \a isShown tells whether that went well.
    void beginReload();
    void endReload(bool isShown);
    OpenStatus openWorkflow(PropertyEditorContent *content);
    OpenStatus openWorkflow(PropertyEditorContent *content,
                            std::optional<PropertyEditorWindowJsonFile *> file, const QString &path);
    void setupTabButtons();
    void removeTab(int index);
    Error addTabWithColumns(const QString &name, const QStringList &columns, const VariantItems &cells);

    /// What differs between the two ways to hand a workflow over.
    enum class RelativePaths
    {
        AreCheckedAsTheyAre,
        AreMadeAbsoluteFirst,
    };
    /// Checks the workflow, asks for the place of the results and emits sendToProcessing(); whether it did.
    bool handOver(RelativePaths paths);

    void closeEvent(QCloseEvent *event) override;

    [[nodiscard]] PropertyEditorWindowPrivate *dFunc() const { return d.get(); }
    [[nodiscard]] QToolBar *toolBar() const;

private:
    friend class PropertyEditorWindowPrivate;

    struct Upgrade;

    void addModeCombos();

    [[nodiscard]] std::optional<OpenStatus> judge(const PropertyEditorContent &content, Upgrade *upgrade);
    [[nodiscard]] std::optional<OpenStatus> applyUpgrade(PropertyEditorContent *content, const QString &path,
                                                         Upgrade *upgrade);
    void runUpgrade(PropertyEditorContent *content, Upgrade *upgrade);
    /// Whether it was written somewhere.
    bool saveUpgraded(const PropertyEditorContent &content, const QString &path);
    [[nodiscard]] OpenStatus display(const PropertyEditorContent &content, const QStringList &lost);
    [[nodiscard]] PropertyEditorContent inDesktopForm(const PropertyEditorContent &content) const;
    void parseExtendedMetadata(const PropertyEditorContent &content);
    [[nodiscard]] Result<PropertyEditor::Content> contentForHandOver(const QString &title);
    [[nodiscard]] bool isJavaUsable();
    void reload(const PropertyEditorContent &written, const QString &path);
    [[nodiscard]] static QStringList cellsWithoutColumns(const PropertyEditorContent::Tabs &tabs);
    void tellUneven(const QString &title);
    void tellNotShownAgain(const Error &error, const QString &path);
    [[nodiscard]] bool hasUnsavedChanges() const;

    const std::unique_ptr<PropertyEditorWindowPrivate> d;
};

} // namespace orv

Q_DECLARE_METATYPE(orv::PropertyEditor::Content)
