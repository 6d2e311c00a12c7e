#pragma once

#include "../scientific/SampleNames.h"
#include "../scientific/SequenceColumns.h"

#include <orv/table/RowNode.h>
#include <orv/table_model/TableSheet.h>

#include <QPointer>

#include <memory>

namespace orv {

/// What the tables of chains, proteins and building blocks share. Made before them, and told of the sheet of
/// chains afterwards.
struct ChainTables
{
    std::shared_ptr<SequenceSource> source = std::make_shared<SequenceSource>();
    std::shared_ptr<SampleNames> samples = std::make_shared<SampleNames>();
    QPointer<TableSheet> chains;

    /// The chains of a text of their numbers, as rows of texts; \a unknown is the first number that there is
    /// none of.
    [[nodiscard]] QList<QStringList> chainsOf(QStringView numbers, QString *unknown = nullptr) const;
    [[nodiscard]] SequenceFigures figuresOfProtein(const QStringList &protein) const;
};

[[nodiscard]] QList<TableColumn> chainColumns(const std::shared_ptr<ChainTables> &tables);
/// Marks sequences that have no mass.
[[nodiscard]] TableRowRule chainRule(const std::shared_ptr<ChainTables> &tables);
[[nodiscard]] QList<TableColumn> builtProteinColumns(const std::shared_ptr<ChainTables> &tables);
[[nodiscard]] QList<TableColumn> buildingBlockColumns();

/// Of a row of chains.
[[nodiscard]] ChainType chainTypeOf(const QStringList &chain);

/// Gives the rows of \a edited that \a original doesn't have the masses of their sequences, where they have
/// any.
void renewStoredMasses(RowNode *edited, const RowNode &original, SequenceSource &source);

} // namespace orv
