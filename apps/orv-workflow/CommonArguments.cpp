#include "CommonArguments.h"

namespace orv::cli {

void declareWorkflow(Arguments &arguments, QString *file)
{
    arguments.positional("FILE", file, "Workflow file, portable workflow folder, or - for standard input",
                         {.isRequired = true, .kind = ValueKind::Workflow});
}

void declareWorkflows(Arguments &arguments, QStringList *files)
{
    arguments.positionals("FILE", files,
                          "Workflow files, portable workflow folders, folders, or - for standard input",
                          {.isRequired = true, .kind = ValueKind::Workflow});
}

void declareJobs(Arguments &arguments, int *jobs)
{
    arguments.option("--jobs", jobs, "Threads (default: all cores)",
                     {.range = ArgumentTraits::Range{1, 1024}});
}

} // namespace orv::cli
