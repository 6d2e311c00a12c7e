#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>

#include <QJsonValue>
#include <QObject>
#include <QPointer>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QDockWidget)

namespace orv {

class CurrentSetting;
class DocumentHistory;
class PropertyEditorWindow;
class SameSettingPanel;
class Workbench;

/// The panel that shows the current setting in all columns, and gives its value to those that somebody
/// chooses: one step of the history. A child of its workbench.
class SameSetting : public QObject
{
    Q_OBJECT

public:
    SameSetting(Workbench *workbench, CurrentSetting *current);
    ~SameSetting() override;

private:
    void connectDocument();
    void refreshSoon();
    void refresh();
    void apply();
    struct Target
    {
        QPointer<GridPropertyEditorView> view;
        QString place;
    };
    [[nodiscard]] QStringList applyTo(const QList<Target> &targets, const QByteArray &name,
                                      const QJsonValue &stored, const QString &step);
    [[nodiscard]] QString stepText(const QList<int> &rows) const;
    void jump(int row);

    const QPointer<PropertyEditorWindow> m_window;
    const QPointer<DocumentHistory> m_history;
    CurrentSetting *const m_current; ///< outlives this
    SameSettingPanel *m_panel;       ///< of the dock
    QPointer<QDockWidget> m_dock;
    bool m_isRefreshing = false;
};

} // namespace orv
