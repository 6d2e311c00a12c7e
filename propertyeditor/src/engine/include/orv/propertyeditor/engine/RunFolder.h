#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace orv {

/// The folder that engines begin a run with: the workflow, the parameter files of every sample, the sequences
/// and a status file with a job for each parameter file (docs/formats.md).
/// \code
///     const Result<QString> folder = RunFolder::write(document, "/data/mab.run");
/// \endcode
/// It is made beside its place and brought there as a whole, so that nothing half-written is ever found
/// there.
class ORV_WORKFLOW_EXPORT RunFolder
{
public:
    static constexpr QLatin1String kSuffix{".run"};
    static constexpr QLatin1String kWorkflowName{"workflow.wflw"};
    static constexpr QLatin1String kSequencesName{"sequences.fasta"};

    /// What becomes of an earlier run at the place.
    enum class Existing
    {
        Refused,
        Replaced, ///< when the new one is complete
    };

    /// Told before each file; false stops the work.
    using Progress = std::function<bool(int done, int count, const QString &name)>;

    /// Writes the run of a document with absolute paths to \a folder, and gives its absolute path; an empty
    /// text when \a progress stopped it. InvalidContent for what stands there, unless it is a run that may be
    /// replaced, for two parameter files of one name, and as Content::assignFromJson; CannotOpenFile for what
    /// can't be written; as KarvonPresetCreator::spectraFileOf for a sample whose file can't be had. Sweeps
    /// what a run to the same place left when it was killed, and brings the run back that it was about to
    /// replace. Any thread; blocks while sample files are fetched.
    [[nodiscard]] static Result<QString> write(const QJsonObject &document, const QString &folder,
                                               const Progress &progress = {},
                                               Existing existing = Existing::Refused);
};

} // namespace orv
