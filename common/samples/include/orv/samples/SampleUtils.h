#pragma once

#include <orv/core/Export.h>
#include <orv/samples/SamplesInput.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace orv {

/// Questions about samples.
namespace SampleUtils {

/// The ids of all samples whose MS file is \a file, in their order; empty for a null one. Who asks for many
/// files makes one SamplesIndex and asks that.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<int> findSampleIdByFilename(const QList<SamplesInput::Entry> &samples,
                                                                    const ResourceReferenceSPtr &file);

/// \a name without the suffix of an MS file, which users leave on when they name a sample by its file; a name
/// that is nothing but a suffix stays.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString sampleNameWithoutMsExtensionSuffix(const QString &name);

} // namespace SampleUtils

/// The names and patterns in the text of a document's sample setting: "a; b*" are "a" and "b*". Blanks around
/// a name don't count, and an empty text is an empty list. Within double quotes everything belongs to the
/// name, a double quote written twice; a quote that isn't closed reaches to the end.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList splitSamples(const QString &text);

/// The text that splitSamples reads back as \a names: they are separated by ";", and quoted where that is
/// needed.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString joinSamples(const QStringList &names);

} // namespace orv
