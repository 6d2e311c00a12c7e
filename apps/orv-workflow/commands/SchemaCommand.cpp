#include "Command.h"

#include <orv/propertyeditor/workflow/WorkflowSchema.h>

namespace orv::cli {

namespace {

class SchemaCommand : public Command
{
public:
    void declare(Arguments &arguments) override { Q_UNUSED(arguments) }

    int run(const GlobalOptions &options) override
    {
        Q_UNUSED(options)
        return printJson(WorkflowSchema::make());
    }
};

} // namespace

std::unique_ptr<Command> createSchemaCommand()
{
    return std::make_unique<SchemaCommand>();
}

} // namespace orv::cli
