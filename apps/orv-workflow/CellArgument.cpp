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

std::variant<FoundCell, Failure> CellArgument::find() const
{
    DocumentOrFailure document = readDocument(file());
    if (const auto *failure = std::get_if<Failure>(&document))
        return *failure;
    QJsonObject json = std::move(std::get<QJsonObject>(document));
    const Result<CellPlace> place = CellPlace::find(json, m_tab, m_column, m_row);
    if (place.hasError()) {
        const bool isBroken = place.error().code() == ErrorCode::MalformedStructure;
        return failureFrom(place.error(), isBroken ? BadInput : WrongUsage);
    }
    QJsonObject cell = place->cellIn(json);
    return FoundCell{std::move(json), *place, std::move(cell)};
}

} // namespace orv::cli
