#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QList>
#include <QString>
#include <QUrl>
#include <QVersionNumber>

namespace orv {

class PropertyEditorContent;
class SilentServers;
class WflwUpgradeHelper;
class WflwUpgradeObserver;

/// One step of the chain.
struct WflwUpgradeStep
{
    QVersionNumber version; ///< the first in which documents have the new form
    bool needsSampleData;   ///< the step is passed over where the samples' files mustn't be opened
    /// Takes the step alone. \a initial is the document before the chain, of \a initialVersion.
    Error (*take)(WflwUpgradeHelper &helper, PropertyEditorContent *content,
                  const PropertyEditorContent &initial, const QVersionNumber &initialVersion);
};

/// What an upgrade may do, and who hears of it.
struct WflwUpgradeOptions
{
    bool accessSampleData = true;
    WflwUpgradeObserver *observer = nullptr; ///< told of each step that changed something
    /// The workflow's folder, with a slash at its end, from which relative files count where steps open them;
    /// empty for the current folder of the process. References keep their relative texts.
    QUrl baseUrl = {};
    /// Of a run over several documents, which then waits for a silent server once; not owned. Null for a run
    /// over this one.
    SilentServers *silentServers = nullptr;
};

/// Brings documents of earlier format versions into the present form:
/// \code
///     PropertyEditorContent document(bytes);
///     const auto version = WflwMetaData::versionNumberFromMetaDataObject(document.metadata());
///     QList<QString> notes;
///     if (Error error = WflwUpgrader::upgradeWorkflow(version, &document, &notes, true))
///         return error.ecatch(); // the document is of no use any more
/// \endcode
/// Runs on the caller's thread and blocks it; different documents may be upgraded on different threads. While
/// a step waits for a server, timers and other events are handled, in which further upgrades may run.
class ORV_WORKFLOW_EXPORT WflwUpgrader
{
public:
    /// All steps, in the order of their versions.
    [[nodiscard]] static QList<WflwUpgradeStep> steps();

    /// Runs every step above \a version, the version that the document declares. A document of exactly the
    /// current version is left alone.
    ///
    /// \a notes may be null; a run that succeeds replaces what it holds by what the user should know of.
    /// Without \a accessSampleData the steps 5.10.1 and 5.39.0, which open the samples' files, are passed
    /// over; 5.6.0 opens those of a document that old all the same. Some steps ask a server when a sample
    /// lies there. A failure is that of a step; \a content is then as the step before left it, and should be
    /// discarded.
    static Error upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                 QList<QString> *notes, bool accessSampleData);
    /// The same; \a observer, which may be null, is told of each step that changed something.
    static Error upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                 QList<QString> *notes, bool accessSampleData, WflwUpgradeObserver *observer);
    static Error upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                 QList<QString> *notes, const WflwUpgradeOptions &options);
    /// The same with the steps of \a helper, for applications that have steps of their own.
    static Error upgradeWorkflow(const QVersionNumber &version, PropertyEditorContent *content,
                                 QList<QString> *notes, const WflwUpgradeOptions &options,
                                 WflwUpgradeHelper *helper);
};

} // namespace orv
