#include "CellArgument.h"

#include "CommonArguments.h"
#include "Inputs.h"

namespace orv::cli {

void CellArgument::declare(Arguments &arguments)
{
    declareWorkflow(arguments, &m_file);
    arguments.option("--tab", &m_tab, "Name or number of the tab, counted from 0", {.isRequired = true});
    arguments.option("--column", &m_column, "Name or number of the column, counted from 0",
                     {.isRequired = true});
    arguments.option("--row", &m_row, "Number of the row, counted from 0 (default: 0)");
}

QString CellArgument::file() const
{
    return m_file;
}

Outcome<FoundCell> CellArgument::find() const
{
    const Outcome<FileText> text = readText(file());
    if (text.hasFailed())
        return text.failure();
    const QJsonObject &document = text->document;
    const Result<CellPlace> place = CellPlace::find(document, m_tab, m_column, m_row);
    if (place.hasError()) {
        const bool isBroken = place.error().code() == ErrorCode::MalformedStructure;
        return failureFrom(place.error(), isBroken ? BadInput : WrongUsage);
    }
    return FoundCell{text->bytes, document, *place, place->cellIn(document)};
}

} // namespace orv::cli
