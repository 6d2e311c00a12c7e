#pragma once

#include "../DocumentTarget.h"
#include "../OrderedReports.h"
#include "Command.h"

namespace orv::cli {

/// A command that changes workflows, one or a batch of them, and tells what it changed. Subclasses declare
/// what they need beside the files and the target, and change one document at a time, on any thread.
class ChangeCommand : public Command
{
public:
    explicit ChangeCommand(QString name);

    void declare(Arguments &arguments) final;
    int run(const GlobalOptions &options) final;

protected:
    virtual void declareMore(Arguments &arguments) = 0;
    /// Whether what was declared is given as it must be.
    [[nodiscard]] virtual Outcome<void> checkUsage() const;
    /// Changes the document of \a input, writes it to \a output unless that is empty, and tells what was
    /// done.
    [[nodiscard]] virtual FileReport report(const BatchInput &input, const QString &output,
                                            bool isJson) const = 0;

    /// Writes what was changed; a failure goes into the report with the file that it concerns.
    [[nodiscard]] WrittenDocument write(const ChangedDocument &document, const QString &output,
                                        FileReport *report) const;

private:
    const QString m_name;
    QStringList m_files;
    DocumentTarget m_target;
    int m_jobs;
};

} // namespace orv::cli
