#include "StatusLine.h"

#include "findings/FindingSigns.h"
#include "orv/propertyeditor/workbench/DocumentHistory.h"
#include "orv/propertyeditor/workbench/Findings.h"
#include "orv/propertyeditor/workbench/Workbench.h"

#include <orv/core/PlainTip.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/widgets/Icons.h>

#include <QAccessible>
#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QStatusBar>
#include <QToolButton>

namespace orv {

StatusLine::StatusLine(Workbench *workbench)
    : QObject(workbench)
    , m_workbench(workbench)
    , m_version(new QLabel)
    , m_findings(new QToolButton)
    , m_changes(new QLabel)
{
    QStatusBar *bar = workbench->window()->statusBar();
    m_version->setObjectName(QStringLiteral("statusVersion"));
    m_findings->setObjectName(QStringLiteral("statusFindings"));
    m_changes->setObjectName(QStringLiteral("statusChanges"));
    // It is pressed, which nothing but its frame tells.
    m_findings->setAutoRaise(false);
    m_findings->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QWidget *part : {static_cast<QWidget *>(m_changes), static_cast<QWidget *>(m_findings),
                          static_cast<QWidget *>(m_version)})
        bar->addPermanentWidget(part);
    connect(m_findings, &QToolButton::clicked, workbench->findings()->checkAction(), &QAction::trigger);
    connect(workbench->findings(), &Findings::changed, this, &StatusLine::showFindings);
    connect(workbench->history(), &DocumentHistory::changed, this, &StatusLine::showChanges);
    connect(workbench->history(), &DocumentHistory::changed, this, &StatusLine::showVersion);
    showVersion();
    showFindings();
    showChanges();
}

void StatusLine::showVersion()
{
    if (m_workbench->window()->workflowTabs()->count() == 0) {
        m_version->clear();
        m_version->setToolTip({});
        return;
    }
    const QVersionNumber version =
        WflwMetaData::versionNumberFromMetaDataObject(m_workbench->window()->workflowMetadata());
    const QVersionNumber current = WflwMetaData::currentWorkflowVersion();
    m_version->setText(version.majorVersion() == 0 ? tr("No version")
                                                   : tr("Format %1").arg(version.toString()));
    m_version->setToolTip(
        version == current ? tr("The format of this application. It is written by a save.")
        : version > current
            ? tr("Newer than this application, which knows format %1.").arg(current.toString())
            : tr("A save writes format %1.").arg(current.toString()));
}

void StatusLine::showFindings()
{
    const Findings &findings = *m_workbench->findings();
    const QLocale locale = m_findings->locale();
    QString text = tr("Not checked");
    QIcon icon = findings.checkAction()->icon();
    if (findings.state() == Findings::State::Checking)
        text = tr("Checking...");
    else if (findings.state() == Findings::State::Checked &&
             findings.errorCount() + findings.warningCount() > 0)
        text = tr("Errors: %1, warnings: %2")
                   .arg(locale.toString(findings.errorCount()), locale.toString(findings.warningCount()));
    else if (findings.state() == Findings::State::Checked) {
        text = tr("No findings");
        icon = Icons::icon(IconName::Passed);
    }
    if (findings.errorCount() > 0)
        icon = FindingSigns::icon(FindingSigns::Level::Error);
    else if (findings.warningCount() > 0)
        icon = FindingSigns::icon(FindingSigns::Level::Warning);
    m_findings->setText(text);
    m_findings->setIcon(icon);
    m_findings->setAccessibleName(tr("Findings: %1").arg(text));
    m_findings->setToolTip(findings.checkAction()->toolTip());
}

void StatusLine::showChanges()
{
    const PropertyEditorWindow &window = *m_workbench->window();
    // What was opened from an object has its name in place of a path.
    const bool hasFile = QFileInfo(window.workflowFilePath()).isAbsolute();
    const bool isModified = m_workbench->history()->isModified();
    m_changes->setText(isModified ? tr("Unsaved changes") : hasFile ? tr("Saved") : tr("Not in a file yet"));
    m_changes->setToolTip(hasFile ? PlainTip::of(window.workflowFilePath())
                                  : tr("Save the workflow to give it a file."));
}

void StatusLine::tell(const PropertyEditorWindow *window, const QString &text)
{
    if (!window)
        return;
    QStatusBar *bar = window->statusBar();
    // What is told again is news.
    bar->clearMessage();
    bar->showMessage(text);
    QAccessibleEvent event(bar, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace orv
