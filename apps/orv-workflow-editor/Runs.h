#pragma once

#include <orv/propertyeditor/content/Content.h>
#include <orv/widgets/DuplicateFilePolicy.h>
#include <orv/widgets/Path.h>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv::Runs {

/// What became of a workflow that was handed over.
struct Outcome
{
    Error error;
    QStringList folders; ///< the run, or none when it was cancelled or kept
    QString kept;        ///< an earlier run in whose favour nothing was written
};

/// Writes the run folder of a workflow beside \a outputPath with progress over \a parent. A workflow that
/// goes to a folder makes one in it that is called after \a name.
[[nodiscard]] Outcome write(const PropertyEditor::Content &content, const Path &outputPath,
                            const QString &name, DuplicateFilePolicy policy, QWidget *parent);

} // namespace orv::Runs
