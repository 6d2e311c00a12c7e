#include "FindingCheck.h"

#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QFileInfo>
#include <QUrl>

#include <memory>
#include <utility>
#include <vector>

namespace orv {

using PropertyEditor::AbstractValidator;
using PropertyEditor::LocatedFinding;
using PropertyEditor::WorkflowCheck;
using PropertyEditor::WorkflowCheckReport;

namespace {

QUrl folderOf(const QString &file)
{
    return file.isEmpty() ? QUrl() : QUrl::fromLocalFile(QFileInfo(file).absolutePath() + u'/');
}

QList<LocatedFinding> notChecked(const Error &error)
{
    LocatedFinding finding;
    finding.rule = QStringLiteral("Document");
    finding.message = FindingCheck::tr("The workflow can't be checked: %1").arg(error.errorMessage());
    finding.hint = error.details().join(u' ');
    return {finding};
}

/// On any thread.
Result<QList<LocatedFinding>> findingsIn(const PropertyEditorContent &content, const QUrl &folder)
{
    WorkflowCheck check;
    check.setRepeatsInLog(false);
    const Result<WorkflowCheckReport> report = check.run({content.toJsonObject(), {}}, folder);
    return report.hasError() ? Result<QList<LocatedFinding>>(report.error()) : report->findings;
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
    const FindingTargets targets(*m_window->workflowTabs());
    const PropertyEditorContent content = m_window->content();
    const QUrl folder = folderOf(m_window->workflowFilePath());
    m_work.run<Findings>(
        [content, folder](const BackgroundWork::IsCancelled &) { return findingsIn(content, folder); },
        [this, targets](const Result<Findings> &found) {
            finish(targets, found.hasError() ? notChecked(found.error()) : *found);
        });
}

void FindingCheck::forget()
{
    ++m_forgotten;
    m_work.cancel();
    m_isRunning = false;
    m_isWantedAgain = false;
}

QList<LocatedFinding> FindingCheck::findingsOfApplication() const
{
    const QPointer<PropertyEditorWindow> window(m_window);
    const auto create = window ? window->additionalValidatorsCreatorFunction() : nullptr;
    if (!create)
        return {};
    std::vector<std::unique_ptr<AbstractValidator>> validators;
    for (AbstractValidator *validator : create())
        validators.emplace_back(validator);
    if (!window || validators.empty())
        return {};
    const QUrl folder = folderOf(window->workflowFilePath());
    const Result<Findings> findings =
        WorkflowCheck::findingsOf(std::move(validators), {window->content().toJsonObject(), {}}, folder);
    // A document that can't be read is told of already.
    return findings.valueOr({});
}

void FindingCheck::finish(const FindingTargets &targets, const Findings &findings)
{
    const int forgotten = m_forgotten;
    // The application may close the window or show another document.
    const QPointer<FindingCheck> self(this);
    Findings all = findings;
    all += findingsOfApplication();
    if (!self || forgotten != m_forgotten)
        return;
    m_isRunning = false;
    Q_EMIT finished(all, targets.of(all));
    if (self && std::exchange(m_isWantedAgain, false))
        start();
}

} // namespace orv
