#include "orv/propertyeditor/workflow/WorkflowPaths.h"

#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>

namespace orv::WorkflowPaths {

using namespace PropertyEditor;

namespace {

struct WorkflowPathsTr
{
    Q_DECLARE_TR_FUNCTIONS(WorkflowPaths)
};

/// The tree keeps the base that it has.
Result<Content> copyWithBase(const Content &content, const QUrl &baseUrl)
{
    Content view(content);
    const QUrl baseBefore = view.baseUrl();
    view.setBaseUrl(baseUrl);
    Result<Content> copy = view.detachedCopy(PropertyConversionFlag::AbsolutePaths);
    view.setBaseUrl(baseBefore);
    return copy;
}

} // namespace

Result<Content> absoluteCopy(const Content &content, const QUrl &baseUrl)
{
    if (const ItemGroup *const uneven = content.firstUnevenGroup()) {
        return Error(ErrorCode::MalformedStructure,
                     WorkflowPathsTr::tr("The columns of the tab \"%1\" differ in height, and a tab is a "
                                         "rectangle. Add the missing cells or remove the others.")
                         .arg(uneven->name()));
    }
    Result<Content> copy = copyWithBase(content, baseUrl);
    if (!copy.hasError())
        copy->setBaseUrl(baseUrl);
    return copy;
}

void resolveSamples(Content *content, const QUrl &baseUrl)
{
    SamplesAndTracesContent samples = content->samplesAndTraces();
    for (SamplesInput::SampleWithCustomColumns &sample : samples.samples.samples)
        sample.msFile = ResourceReferenceUtils::resolved(sample.msFile, baseUrl);
    content->setSamplesAndTraces(samples);
}

} // namespace orv::WorkflowPaths
