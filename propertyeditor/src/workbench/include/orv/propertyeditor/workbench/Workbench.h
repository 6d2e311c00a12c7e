#pragma once

#include <orv/widgets/Export.h>

#include <QKeySequence>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QSet>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QMenu)

namespace orv {

class Comparison;
class DocumentHistory;
class FindSettings;
class Findings;
class PanelFocus;
class PropertyEditorWindow;
class Upgrades;

/// Menus and panels around a document window: Edit and View, behind the menus that are there already. A child
/// of its window. GUI thread.
/// \code
///     buildFileMenu();
///     new Workbench(this);
///     buildHelpMenu();
/// \endcode
class ORV_PROPERTY_EDITOR_EXPORT Workbench : public QObject
{
    Q_OBJECT

public:
    explicit Workbench(PropertyEditorWindow *window);
    ~Workbench() override;

    [[nodiscard]] DocumentHistory *history() const { return m_history; }
    [[nodiscard]] PropertyEditorWindow *window() const { return m_window; }

    /// Owned by the window, as are the other menus.
    [[nodiscard]] QMenu *editMenu() const { return m_editMenu; }
    [[nodiscard]] QMenu *viewMenu() const { return m_viewMenu; }

    /// A panel that is closed at first, opened from the View menu by \a shortcut or by the code that has
    /// something to show. Those of one area are tabs of each other. Takes \a widget over; \a name is its
    /// object name, under which its place is kept; a letter that \a title marks is that of the menu.
    QDockWidget *addPanel(QWidget *widget, const QString &name, const QString &title, Qt::DockWidgetArea area,
                          const QKeySequence &shortcut = {});
    /// Shows \a panel in front of those that share its side, and gives it the keys. Escape in it, and closing
    /// it, give them back to where they were.
    void enterPanel(QDockWidget *panel);
    /// For who restored places and sizes that a person gave the panels; else the first of each area leaves
    /// two thirds of the window to the workflow.
    void keepPanelSizes();

    /// What a command did, at the lower left and to screen readers, until the person did something else.
    void tell(const QString &text);

    // Live as long as the workbench.
    [[nodiscard]] FindSettings *find() const { return m_find; }
    [[nodiscard]] Findings *findings() const { return m_findings; }
    [[nodiscard]] Upgrades *upgrades() const { return m_upgrades; }
    [[nodiscard]] Comparison *comparison() const { return m_comparison; }

private:
    void addHistory();
    void addTabCommands();
    void followMessages();
    void leavePanel(QDockWidget *panel);
    void sizeOnce(QDockWidget *panel, Qt::DockWidgetArea area);
    void updateHistory();
    void updateTitle();

    PropertyEditorWindow *const m_window;
    QMenu *m_editMenu;
    QMenu *m_viewMenu;
    QAction *m_behindPanels = nullptr;
    DocumentHistory *m_history;
    PanelFocus *m_focus;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QMap<Qt::DockWidgetArea, QPointer<QDockWidget>> m_panels; ///< the last of each area; the window's
    QSet<Qt::DockWidgetArea> m_sized;                         ///< areas whose panels have their size
    FindSettings *m_find = nullptr;
    Findings *m_findings = nullptr;
    Upgrades *m_upgrades = nullptr;
    Comparison *m_comparison = nullptr;
};

} // namespace orv
