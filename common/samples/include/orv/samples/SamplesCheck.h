#pragma once

#include <orv/core/Export.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QStringList>

/// Whether samples can be processed, as far as they tell it themselves: no file is asked for. Any thread.
namespace orv::SamplesCheck {

/// Errors: samples without a name or a file, and what TraceImportAndProcessingOptions::validate tells.
/// Warnings: names and ids that several samples have. No samples at all are no error of the table.
/// \a details tell which samples. The lists may be null, and are appended to. True if no error was added.
ORV_WORKFLOW_EXPORT bool validate(const SamplesAndTracesContent &content, QStringList *warnings,
                                  QStringList *errors, QStringList *details);

} // namespace orv::SamplesCheck
