#include "Runs.h"

#include <orv/core/FileNameUtils.h>
#include <orv/propertyeditor/engine/RunFolder.h>
#include <orv/widgets/ProgressOutputUtils.h>

#include <QCoreApplication>
#include <QDir>

namespace orv::Runs {

Outcome write(const PropertyEditor::Content &content, const Path &outputPath, const QString &name,
              DuplicateFilePolicy policy, QWidget *parent)
{
    const QString result = outputPath.isFolder()
                               ? QDir(outputPath.path()).filePath(FileNameUtils::nameFromText(name))
                               : outputPath.path();
    const QString folder = pathForResult(result + RunFolder::kSuffix, policy);
    if (folder.isEmpty())
        return {{}, {}, result + RunFolder::kSuffix};
    const QJsonObject document = content.toJsonObject(PropertyEditor::PropertyConversionFlag::KeepPaths);
    const auto existing = policy == DuplicateFilePolicy::Overwrite ? RunFolder::Existing::Replaced
                                                                   : RunFolder::Existing::Refused;
    Result<QString> run = QString();
    {
        const auto progress = ProgressOutputUtils::createAndShowProgress(
            QCoreApplication::translate("Runs", "Writing the run folder..."), parent, true);
        progress->run([&](ProgressReporter &reporter) {
            const auto tell = [&reporter](int done, int count, const QString &file) {
                reporter.setCount(count);
                reporter.setDone(done);
                reporter.setText(file);
                return !reporter.isCancelled();
            };
            run = RunFolder::write(document, folder, tell, existing);
        });
    }
    if (run.hasError())
        return {run.error(), {}, {}};
    return {{}, run->isEmpty() ? QStringList() : QStringList{*run}, {}};
}

} // namespace orv::Runs
