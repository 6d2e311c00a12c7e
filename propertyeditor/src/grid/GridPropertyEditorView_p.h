#pragma once

#include "orv/propertyeditor/grid/GridPropertyEditorView.h"

#include <QCoreApplication>
#include <QList>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QToolBar)

namespace orv {

class PropertySelectionDialog;

class GridPropertyEditorView::Private
{
    Q_DECLARE_TR_FUNCTIONS(GridPropertyEditorView::Private)

public:
    Private(GridPropertyEditorView *view, KPropertyCustomEditorView *tree);
    ~Private();
    Q_DISABLE_COPY_MOVE(Private)

    void showButtons(bool isShown);
    /// Tells of the new set and hears of its changes from then on.
    void listenTo(KPropertySet *next, KPropertySet *old);
    /// Hides advanced properties in basic mode.
    void tellEdited();
    void updateVisibility(KPropertySet &properties) const;
    /// Builds the tree of the edited set anew and tells of the edit; the person stays in place, or goes to
    /// the property \a current.
    void rebuild(const QByteArray &current = {});

    void openClicked();
    void saveClicked();
    void addNewProperty();
    void removeProperty();
    void modifyProperty();
    void loadKarvonParameters(QWidget *parent);
    void loadPreviewParameters(QWidget *parent);

    QPushButton *openButton = nullptr;
    QPushButton *saveButton = nullptr;
    QPushButton *addButton = nullptr;
    QPushButton *removeButton = nullptr;
    QPushButton *modifyButton = nullptr;
    KPropertyCustomEditorView *editorView;
    PropertiesViewMode propertiesViewMode = PropertiesViewMode::Basic;
    EditorMode editorMode = EditorMode::User;
    BaseItemType documentType = BaseItemType::Unknown;
    QUrl baseUrl;
    GridPropertyEditorView *q;
    QPointer<KPropertySet> set;
    bool isQuiet = false; ///< what changes now isn't by a person's hand
    bool isTelling = false;

private:
    void makeButtons();
    void layOutWithToolBar();
    void layOutWithRow();
    [[nodiscard]] QList<QPushButton *> buttons() const;
    [[nodiscard]] KProperty *currentProperty() const;
    [[nodiscard]] QList<QByteArray> namesOfSet() const;
    /// Hides a property that the mode doesn't show, and tells a reference where relative files lie.
    void prepare(KProperty *property) const;
    void replaceProperty(KProperty *old, KProperty *property, const QString &group);
    [[nodiscard]] bool hasSetFor(QWidget *parent) const;

    QToolBar *m_toolBar = nullptr;
    QList<QAction *> m_toolBarActions;
};

} // namespace orv
