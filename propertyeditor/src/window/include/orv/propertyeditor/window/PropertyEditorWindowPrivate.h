#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/WidgetValidationType.h>
#include <orv/propertyeditor/window/DependentWidgets.h>
#include <orv/samples/ExtendedMetadataInfo.h>
#include <orv/samples/SamplesInput.h>
#include <orv/widgets/DuplicateFilePolicy.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/Path.h>

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QLayout)
QT_FORWARD_DECLARE_CLASS(QToolButton)

namespace orv {

class CoreMainWindow;
struct DocumentUpgrade;
class PropertyEditorWindow;
class PropertyEditorWindowForm;
class WorkflowTabs;

namespace PropertyEditor {
class AbstractValidator;
class Content;
class KeyValueItem;
} // namespace PropertyEditor

/// What a document window knows, and what looks across its tabs. The most derived window makes it and hands
/// it to PropertyEditorWindow, which owns it; applications with another way to make projects derive both.
/// Lives as long as the window. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PropertyEditorWindowPrivate : public QObject
{
    Q_OBJECT

public:
    using EditorMode = GridPropertyEditorView::EditorMode;
    using PropertiesViewMode = GridPropertyEditorView::PropertiesViewMode;
    using ColumnsAndCells = QPair<QStringList, VariantItems>;

    /// \a window may be under construction; \a mainWindow, which may be null, isn't owned.
    PropertyEditorWindowPrivate(PropertyEditorWindow *window, CoreMainWindow *mainWindow);
    ~PropertyEditorWindowPrivate() override;

    /// Makes projects of the workflow; whether that began.
    virtual bool createProject() = 0;

    // Tabs.
    Error addTabWithColumnsGrid(const QString &name, const QStringList &columns, const VariantItems &cells);
    void appendColumnGrid(BaseItemType type, const QString &name);
    /// Reserved for grids of several rows.
    void appendRowGrid();
    void removeTab(int index);
    [[nodiscard]] PropertyEditorContent tabsAndContent() const;
    /// Without metadata; empty without a tab.
    [[nodiscard]] PropertyEditorContent currentTabContent() const;
    /// The first tab of \a content takes the place of the current one; nothing happens without one.
    void setCurrentTabContent(const PropertyEditorContent &content);
    /// Cells behind one that can't be shown are left out.
    void updateCurrentTabGrid(const ColumnsAndCells &tab);
    /// Null where the tab shows something else, and without a tab.
    [[nodiscard]] PropertyGridWidget *gridWidgetForCurrentTab() const;
    [[nodiscard]] PropertyGridWidget *gridWidgetForTabIndex(int index) const;
    [[nodiscard]] bool currentTabHasWidget() const;
    void setEditorMode(EditorMode mode);
    void setPropertiesViewMode(PropertiesViewMode mode);
    void collapseAllKPropertyViews();
    void collapseAllKPropertyViews(PropertyGridWidget *grid);
    void updateBaseUrlForRelativeUrls();
    void updateBaseUrlForRelativeUrls(PropertyGridWidget *grid);
    void setupToolbar(PropertyGridWidget *grid);
    void createButtonsAndAddToLayout(QLayout *layout);
    /// Passes on what the samples tell; once behind each load.
    void connectGridWidgets();

    // Files.
    void setWorkflowFilePath(const QString &path);
    [[nodiscard]] QString workflowFilePath() const { return m_workflowFilePath; }
    /// The folder of the file, with a slash at its end; empty without a file.
    [[nodiscard]] QUrl workflowBaseUrl() const { return m_workflowBaseUrl; }
    void setWorkflowMetadata(const QJsonObject &metadata);
    [[nodiscard]] QJsonObject workflowMetadata() const { return m_workflowMetadata; }
    /// The workflow's name as that of a file.
    [[nodiscard]] QString proposedName() const;
    void setExtendedMetadataInfo(const ExtendedMetadataInfo &info) { m_extendedMetadataInfo = info; }
    void updateLastSavedWorkflow();
    /// The workflow on the screen isn't what any file holds: closing asks whether to save it. It lacks \a
    /// lost of the file that it was made from.
    void countAsUnsaved(const QStringList &lost);
    /// What the workflow on the screen lacks of the one that was loaded.
    [[nodiscard]] QStringList lost() const { return m_lost; }
    [[nodiscard]] QJsonObject getLastSavedWorkflow() const { return m_lastSavedWorkflow; }

    // Checks and hand-over.
    bool verifyWidgetsContent(QStringList *warnings, QStringList *errors, QStringList *details,
                              WidgetValidationType type) const;
    /// Tells of references that the application of this window doesn't reach.
    [[nodiscard]] bool verifyWorkflowReferences(const PropertyEditorContent &content) const;
    [[nodiscard]] bool hasKarvon(const PropertyEditor::Content &content) const;
    [[nodiscard]] bool hasOstrale(const PropertyEditor::Content &content) const;
    [[nodiscard]] Path getLocalProjectOutputPath(const QList<BaseItemType> &documents,
                                                 const QList<PropertyEditor::KeyValueItem *> &projects,
                                                 DuplicateFilePolicy *policy) const;
    [[nodiscard]] Result<bool> shouldDisplayNewProteinWidget(const PropertyEditorContent &content) const;
    void changeProteinsTypeToIntactProteins(PropertyEditorContent::Tabs *tabs) const;

    [[nodiscard]] bool multiRowEnabled() const;
    [[nodiscard]] static bool designerModeEnabled();

Q_SIGNALS:
    void samplesChanged(QList<orv::SamplesInput::Entry> samples);
    void removeCustomColumn(QString columnName);

protected:
    /// Called whenever the set of columns is another one.
    virtual void updateDependentWidgets();
    /// Behind the import of samples and proteins; nothing is wrong unless an application says so.
    [[nodiscard]] virtual Error verifyCustomColumns() const;

    PropertyEditorWindow *const q; ///< outlives this
    const QPointer<CoreMainWindow> m_mainWindow;

private:
    friend class PropertyEditorWindow;

    void passGlycanOptions() const;

    std::unique_ptr<PropertyEditorWindowForm> m_form;
    WorkflowTabs *m_tabs = nullptr; ///< a child
    QList<QAction *> m_designerActions;
    QAction *m_propertiesAction = nullptr;
    QToolButton *m_launchButton = nullptr;
    QToolButton *m_saveButton = nullptr;
    std::function<QList<PropertyEditor::AbstractValidator *>()> m_additionalValidatorsCreator;
    std::function<QWidget *(const DocumentUpgrade &)> m_upgradeView;
    DependentWidgets::Found m_dependent;
    QPointer<QObject> m_connectedSamples; ///< of which is told already
    QMetaObject::Connection m_glycanConnection;
    QString m_workflowFilePath;
    QUrl m_workflowBaseUrl;
    QJsonObject m_workflowMetadata;
    QJsonObject m_lastSavedWorkflow;
    ExtendedMetadataInfo m_extendedMetadataInfo;
    QStringList m_lostInReading;    ///< of the document that is about to be opened
    QStringList m_lost;             ///< what the document on the screen lacks of the one that was loaded
    bool m_isSnapshotTaken = false; ///< of the document that is being opened
    bool m_projectCreationStarted = false;
    bool m_isReloading = false; ///< the same document, behind its saving
    bool m_isReadOnly = false;
};

} // namespace orv
