#pragma once

#include "SettingPaste.h"

#include <QObject>
#include <QPointer>

#include <array>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QMenu)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)

namespace orv {

class CurrentSetting;
class DocumentHistory;
class GridPropertyEditorView;
class PropertyEditorWindow;
class Workbench;

/// The commands of the menu Edit that copy the selected settings, as texts for people, programs and shells,
/// and paste what was copied, as one step of the history. What doesn't fit is told in a panel. A child of its
/// workbench.
class SettingClipboard : public QObject
{
    Q_OBJECT

public:
    SettingClipboard(Workbench *workbench, CurrentSetting *current);
    ~SettingClipboard() override;

private:
    enum class Form
    {
        Text,
        Json,
        CommandLine,
        Count,
    };

    /// What became of the settings that were pasted into the column at \a place.
    struct Outcome
    {
        QString place;
        int changed = 0;
        int same = 0;        ///< those that had their value already
        QStringList refused; ///< a line for each: what and why
    };

    void addCommands(QMenu *menu);
    void update();
    void copy(Form form);
    [[nodiscard]] QString commandLine(QStringList *leftOut) const;
    void paste();
    void apply(GridPropertyEditorView *view, const SettingPaste::Plan &plan);
    /// "Analysis › Karvon"
    [[nodiscard]] QString placeOf(const GridPropertyEditorView *view) const;
    [[nodiscard]] static QString textOf(const Outcome &outcome);
    void report(const Outcome &outcome);
    void tell(const QString &text);

    const QPointer<PropertyEditorWindow> m_window;
    const QPointer<DocumentHistory> m_history;
    CurrentSetting *const m_current; ///< outlives this
    std::array<QAction *, int(Form::Count)> m_copy{};
    QMenu *m_copyMenu = nullptr;
    QAction *m_paste = nullptr;
    QPlainTextEdit *m_refused; ///< of the dock
    QPointer<QDockWidget> m_dock;
    bool m_isReadOnly; ///< the window
};

} // namespace orv
