#pragma once

#include <orv/core/LossObserver.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/validators/Finding.h>
#include <orv/propertyeditor/validators/FindingPlaces.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVersionNumber>

#include <memory>
#include <optional>
#include <vector>

namespace orv::PropertyEditor {

class AbstractValidator;
class Content;

/// A fault of a workflow and where it stands.
struct ORV_WORKFLOW_EXPORT LocatedFinding : NamedPlace
{
    Finding::Level level = Finding::Level::Error;
    QString rule;
    QString message;
    std::optional<qsizetype> line; ///< of the pointer in the file's text, counted from 1
    QString hint;

    [[nodiscard]] bool isError() const { return level == Finding::Level::Error; }
};

/// What a document was loaded from. Findings have no pointers without the document, and no lines without its
/// text.
struct ORV_WORKFLOW_EXPORT WorkflowSource
{
    QJsonObject document = {};
    QByteArray text = {};
};

struct ORV_WORKFLOW_EXPORT WorkflowCheckReport
{
    QVersionNumber version;        ///< that the document tells; null where a loaded tree was checked
    QVersionNumber checkedVersion; ///< that it was checked in; a later one if it was upgraded for the check
    QList<Loss> lost;              ///< what the load, and before it the upgrade, dropped
    bool isValid = false;
    QStringList errors;
    QStringList warnings;
    QList<LocatedFinding> findings;
};

/// Checks workflows as the window does before it uses them: a copy with absolute paths.
/// \code
///     const Result<WorkflowCheckReport> report = WorkflowCheck().run({document, text}, folderUrl);
/// \endcode
class ORV_WORKFLOW_EXPORT WorkflowCheck
{
public:
    /// By short names of validators; with none the default set, to which that of sample types belongs where a
    /// workflow holds nothing but Karvon searches.
    explicit WorkflowCheck(const QStringList &validators = {});

    /// As ContentValidator::setRepeatsInLog().
    void setRepeatsInLog(bool repeats) { m_repeatsInLog = repeats; }

    /// Those that run on every workflow, in their order.
    [[nodiscard]] const QStringList &validators() const { return m_validators; }

    /// Loads the document of \a source strictly, so that what can't be opened is told by an Error. An
    /// outdated one is checked as it would be after its upgrade, which stays in memory and opens no samples'
    /// files: what is wrong with these the check tells. Places are those of \a source. Fails for an upgrade
    /// that does. One that is newer than this program is checked as it is.
    [[nodiscard]] Result<WorkflowCheckReport> run(const WorkflowSource &source, const QUrl &baseUrl) const;

    /// Checks a loaded tree. \a baseUrl is the workflow's folder, with a slash at its end. Fails for a
    /// document of which there is no such copy, and for a name that is no validator's. On the thread of the
    /// content.
    [[nodiscard]] Result<WorkflowCheckReport> run(const Content &content, const QUrl &baseUrl,
                                                  const WorkflowSource &source = {}) const;

    /// What validators of an application find in the document of \a source, which is up to date, beside those
    /// that run() knows. On the thread of the validators.
    [[nodiscard]] static Result<QList<LocatedFinding>>
    findingsOf(std::vector<std::unique_ptr<AbstractValidator>> validators, const WorkflowSource &source,
               const QUrl &baseUrl);

private:
    bool m_isDefault;
    bool m_repeatsInLog = true;
    QStringList m_validators;
};

} // namespace orv::PropertyEditor
