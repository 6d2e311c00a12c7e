#include "orv/propertyeditor/workflow/WorkflowPaths.h"

#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::WorkflowPaths {

using namespace PropertyEditor;

namespace {

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
    ORV_RETURN_IF_ERROR(content.checkRectangles());
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
