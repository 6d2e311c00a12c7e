#include "orv/propertyeditor/validators/PathsValidatorBase.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

PathsValidatorBase::~PathsValidatorBase() = default;

void PathsValidatorBase::validateSamplesPaths(const QList<SamplesInput::Entry> &samples,
                                              const QSet<BaseItemType> &itemTypes, QList<QString> *errors)
{
    const Content none;
    CheckRun run(none);
    checkSamplesPaths(run, samples, itemTypes);
    errors->append(run.errors());
}

bool PathsValidatorBase::validateReference(const ResourceReferenceSPtr &reference, QList<QString> *errors)
{
    const Content none;
    CheckRun run(none);
    const bool isGood = checkReference(run, reference, {});
    errors->append(run.errors());
    return isGood;
}

void PathsValidatorBase::validateDocuments(const QList<SamplesInput::Entry> &samples, QList<QString> *errors)
{
    const Content none;
    CheckRun run(none);
    checkDocuments(run, samples);
    errors->append(run.errors());
}

} // namespace orv::PropertyEditor
