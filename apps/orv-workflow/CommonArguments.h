#pragma once

#include "Arguments.h"

namespace orv::cli {

/// FILE, one workflow.
void declareWorkflow(Arguments &arguments, QString *file);
/// FILE, the workflows of a batch, and the number of its threads.
void declareWorkflows(Arguments &arguments, QStringList *files);
void declareJobs(Arguments &arguments, int *jobs);

} // namespace orv::cli
