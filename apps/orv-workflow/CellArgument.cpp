#include "CellArgument.h"

#include "Inputs.h"
#include "commands/Command.h"

#include <CLI/CLI.hpp>

namespace orv::cli {

void CellArgument::declare(CLI::App &app)
{
    app.add_option("FILE", m_file, "Workflow file, portable workflow folder, or - for standard input")
        ->required();
    app.add_option("--tab", m_tab, "Name or number of the tab, counted from 0")->required();
    app.add_option("--column", m_column, "Name or number of the column, counted from 0")->required();
    app.add_option("--row", m_row, "Number of the row, counted from 0 (default: 0)");
}

QString CellArgument::file() const
{
    return decoded(m_file);
}

std::variant<FoundCell, Failure> CellArgument::find() const
{
    DocumentOrFailure document = readDocument(file());
    if (const auto *failure = std::get_if<Failure>(&document))
        return *failure;
    QJsonObject json = std::move(std::get<QJsonObject>(document));
    const Result<CellPlace> place = CellPlace::find(json, decoded(m_tab), decoded(m_column), m_row);
    if (place.hasError()) {
        const bool isBroken = place.error().code() == ErrorCode::MalformedStructure;
        return failureFrom(place.error(), isBroken ? BadInput : WrongUsage);
    }
    QJsonObject cell = place->cellIn(json);
    return FoundCell{std::move(json), *place, std::move(cell)};
}

} // namespace orv::cli
