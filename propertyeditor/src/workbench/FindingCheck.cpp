#include "FindingCheck.h"

#include <orv/propertyeditor/editors/SlowQuestion.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QFileInfo>
#include <QUrl>

#include <memory>
#include <utility>

namespace orv {

using PropertyEditor::LocatedFinding;
using PropertyEditor::WorkflowCheck;
using PropertyEditor::WorkflowCheckReport;

namespace {

QUrl folderOf(const QString &file)
{
    return file.isEmpty() ? QUrl() : QUrl::fromLocalFile(QFileInfo(file).absolutePath() + u'/');
}

/// On any thread.
QList<LocatedFinding> findingsIn(const QJsonObject &document, const QUrl &folder)
{
    WorkflowCheck check;
    check.setRepeatsInLog(false);
    const Result<WorkflowCheckReport> report = check.run({document, {}}, folder);
    if (!report.hasError())
        return report->findings;
    LocatedFinding finding;
    finding.rule = QStringLiteral("Document");
    finding.message =
        FindingCheck::tr("The workflow can't be checked: %1").arg(report.error().errorMessage());
    finding.hint = report.error().details().join(u' ');
    return {finding};
}

} // namespace

FindingCheck::FindingCheck(PropertyEditorWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{}

FindingCheck::~FindingCheck() = default;

void FindingCheck::start()
{
    m_isWantedAgain = m_isRunning;
    if (m_isRunning || !m_window)
        return;
    m_isRunning = true;
    const int number = ++m_number;
    const FindingTargets targets(*m_window->workflowTabs());
    const QJsonObject document = m_window->content().toJsonObject();
    const QUrl folder = folderOf(m_window->workflowFilePath());
    const auto found = std::make_shared<QList<LocatedFinding>>();
    const auto tell = [this, number, targets, found](bool) { finish(number, targets, *found); };
    const auto atOnce = SlowQuestion::ask(
        [document, folder, found] {
            *found = findingsIn(document, folder);
            return true;
        },
        this, tell, std::chrono::milliseconds(0));
    if (atOnce)
        QMetaObject::invokeMethod(
            this, [tell] { tell(true); }, Qt::QueuedConnection);
}

void FindingCheck::forget()
{
    ++m_number;
    m_isRunning = false;
    m_isWantedAgain = false;
}

void FindingCheck::finish(int number, const FindingTargets &targets, const Findings &findings)
{
    if (number != m_number)
        return;
    m_isRunning = false;
    const QPointer<FindingCheck> self(this);
    Q_EMIT finished(findings, targets.of(findings));
    if (self && std::exchange(m_isWantedAgain, false))
        start();
}

} // namespace orv
