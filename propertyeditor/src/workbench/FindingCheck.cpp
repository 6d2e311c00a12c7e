#include "FindingCheck.h"

#include <orv/propertyeditor/editors/SlowQuestion.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QFileInfo>
#include <QUrl>

#include <exception>
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

QList<LocatedFinding> notChecked(const QString &reason, const QString &hint)
{
    LocatedFinding finding;
    finding.rule = QStringLiteral("Document");
    finding.message = FindingCheck::tr("The workflow can't be checked: %1").arg(reason);
    finding.hint = hint;
    return {finding};
}

QList<LocatedFinding> notChecked(const Error &error)
{
    return notChecked(error.errorMessage(), error.details().join(u' '));
}

/// On any thread, which an exception would end together with the program.
QList<LocatedFinding> findingsIn(const PropertyEditorContent &content, const QUrl &folder)
{
    try {
        WorkflowCheck check;
        check.setRepeatsInLog(false);
        const Result<WorkflowCheckReport> report = check.run({content.toJsonObject(), {}}, folder);
        return report.hasError() ? notChecked(report.error()) : report->findings;
    } catch (const std::exception &exception) {
        return notChecked(QString::fromLocal8Bit(exception.what()),
                          FindingCheck::tr("Close what isn't needed and try again."));
    }
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
    const PropertyEditorContent content = m_window->content();
    const QUrl folder = folderOf(m_window->workflowFilePath());
    const auto found = std::make_shared<QList<LocatedFinding>>();
    const auto tell = [this, number, targets, found](bool) { finish(number, targets, *found); };
    const auto atOnce = SlowQuestion::ask(
        [content, folder, found] {
            *found = findingsIn(content, folder);
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

void FindingCheck::finish(int number, const FindingTargets &targets, const Findings &findings)
{
    if (number != m_number)
        return;
    const QPointer<FindingCheck> self(this);
    // The application may close the window, and what was given goes with it.
    const FindingTargets known = targets;
    Findings all = findings;
    all += findingsOfApplication();
    if (!self || number != m_number)
        return;
    m_isRunning = false;
    Q_EMIT finished(all, known.of(all));
    if (self && std::exchange(m_isWantedAgain, false))
        start();
}

} // namespace orv
