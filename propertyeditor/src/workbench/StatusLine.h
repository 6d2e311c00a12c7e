#pragma once

#include <QObject>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QToolButton)

namespace orv {

class PropertyEditorWindow;
class Workbench;

/// What stands below a document: the version of its format, what the last check found, and whether the disk
/// has what the window shows.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    explicit StatusLine(Workbench *workbench);

    /// What a command did, below the document of \a window and to screen readers; nothing without a window.
    static void tell(const PropertyEditorWindow *window, const QString &text);

private:
    void showVersion();
    void showFindings();
    void showChanges();

    Workbench *m_workbench;
    QLabel *m_version;
    QToolButton *m_findings;
    QLabel *m_changes;
};

} // namespace orv
