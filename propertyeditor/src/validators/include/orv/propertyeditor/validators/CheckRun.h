#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/validators/Finding.h>

#include <QList>
#include <QString>
#include <QUrl>

#include <memory>

namespace orv::PropertyEditor {

class Content;
class SampleFiles;

/// One check of a document, which its validators share: what is checked, what they have found so far, and
/// what they have learnt of the files that the document names. Lives on the thread of the content.
class ORV_WORKFLOW_EXPORT CheckRun
{
public:
    /// \a content must outlive the run. \a workflowBaseUrl is the folder of the workflow, with a slash at its
    /// end.
    explicit CheckRun(const Content &content, const QUrl &workflowBaseUrl = {});
    ~CheckRun();
    Q_DISABLE_COPY_MOVE(CheckRun)

    [[nodiscard]] const Content &content() const;
    [[nodiscard]] const QUrl &workflowBaseUrl() const;

    /// As ContentValidator::setRepeatsInLog(), for validators that log what they tell.
    void setRepeatsInLog(bool repeats);
    [[nodiscard]] bool repeatsInLog() const;

    /// What is told from now on was found by the validator of that short name.
    void beginValidator(const QString &name);

    void error(const QString &message, const FindingPlace &place = {}, const QString &hint = {});
    void warning(const QString &message, const FindingPlace &place = {}, const QString &hint = {});
    /// Its rule, if it has one, stands behind the name of the validator.
    void add(const Finding &finding);
    /// One text about several places, each of which gives a finding; without places that of the finding.
    void add(const Finding &finding, const QList<FindingPlace> &places);

    /// The texts in the order in which they were told, each as often as it was.
    [[nodiscard]] const QList<QString> &errors() const;
    [[nodiscard]] const QList<QString> &warnings() const;
    /// Of one validator after the other, errors before warnings, those of one text together. The same fact is
    /// told once, by the validator that found it first.
    [[nodiscard]] QList<Finding> findings() const;

    /// For validators of this library.
    [[nodiscard]] SampleFiles &files();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv::PropertyEditor
