#include "orv/chemistry/DisulfideUtils.h"

#include "internal/DisulfideColumns.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <QCoreApplication>
#include <QSet>

namespace orv::Disulfide::DisulfideUtils {

namespace DisulfideColumns = Internal::DisulfideColumns;

namespace {

struct DisulfideUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(DisulfideUtils)
};

using Cysteine = std::pair<QString, int>;

Error readPosition(const Internal::TableReader &rows, int row, QLatin1String column, int *position)
{
    *position = Internal::intOf(rows.cell(row, column)).value_or(0);
    if (*position > 0)
        return Error::NoError;
    return Error(ErrorCode::InvalidContent,
                 DisulfideUtilsTr::tr("The table of disulfide bonds can't be read."))
        .addDetail(DisulfideUtilsTr::tr("Row %1: \"%2\" is no position of a residue.")
                       .arg(row + 1)
                       .arg(rows.text(row, column)));
}

bool isEmptyRow(const Internal::TableReader &rows, int row)
{
    const std::initializer_list<QLatin1String> columns = {
        DisulfideColumns::kFirstChain, DisulfideColumns::kFirstPosition, DisulfideColumns::kSecondChain,
        DisulfideColumns::kSecondPosition};
    return std::all_of(columns.begin(), columns.end(),
                       [&](QLatin1String column) { return Internal::isEmptyCell(rows.cell(row, column)); });
}

} // namespace

QString faultOfEnd(const QString &chain, int position, const QHash<QString, QString> &sequences)
{
    const auto sequence = sequences.constFind(chain);
    if (sequence == sequences.cend())
        return DisulfideUtilsTr::tr("there is no chain \"%1\".").arg(chain);
    if (position < 1 || position > sequence->size())
        return DisulfideUtilsTr::tr("the chain \"%1\" has no residue %2.").arg(chain).arg(position);
    if (sequence->at(position - 1).toUpper() != QLatin1Char('C')) {
        return DisulfideUtilsTr::tr("residue %1 of the chain \"%2\" is %3 and no cysteine.")
            .arg(position)
            .arg(chain, sequence->at(position - 1));
    }
    return {};
}

RowNode defaultRowNode()
{
    return Internal::tableOf({DisulfideColumns::kFirstChain, DisulfideColumns::kFirstPosition,
                              DisulfideColumns::kSecondChain, DisulfideColumns::kSecondPosition});
}

Result<QList<Bond>> bondsFromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table,
                                     {DisulfideColumns::kFirstChain, DisulfideColumns::kFirstPosition,
                                      DisulfideColumns::kSecondChain, DisulfideColumns::kSecondPosition});
    QList<Bond> bonds;
    for (int i = 0; i < rows.rowCount(); ++i) {
        if (isEmptyRow(rows, i))
            continue;
        Bond bond;
        bond.firstChain = rows.text(i, DisulfideColumns::kFirstChain);
        bond.secondChain = rows.text(i, DisulfideColumns::kSecondChain);
        ORV_RETURN_IF_ERROR(readPosition(rows, i, DisulfideColumns::kFirstPosition, &bond.firstPosition));
        ORV_RETURN_IF_ERROR(readPosition(rows, i, DisulfideColumns::kSecondPosition, &bond.secondPosition));
        bond.otherCells = rows.otherCells(i);
        bonds.append(bond);
    }
    return bonds;
}

RowNode bondsToRowNode(const QList<Bond> &bonds)
{
    RowNode table = defaultRowNode();
    Internal::TableWriter rows(&table);
    for (const Bond &bond : bonds)
        rows.addRow({bond.firstChain, bond.firstPosition, bond.secondChain, bond.secondPosition},
                    bond.otherCells);
    return table;
}

bool validate(const QList<Bond> &bonds, const QHash<QString, QString> &sequences, QStringList *warnings)
{
    QStringList faults;
    QSet<Cysteine> bound;
    for (qsizetype i = 0; i < bonds.size(); ++i) {
        const Bond &bond = bonds.at(i);
        for (const Cysteine &end : {Cysteine(bond.firstChain, bond.firstPosition),
                                    Cysteine(bond.secondChain, bond.secondPosition)}) {
            QString fault = faultOfEnd(end.first, end.second, sequences);
            if (fault.isEmpty() && bound.contains(end)) {
                fault = DisulfideUtilsTr::tr("cysteine %1 of the chain \"%2\" stands in two bonds.")
                            .arg(end.second)
                            .arg(end.first);
            }
            if (!fault.isEmpty())
                faults.append(DisulfideUtilsTr::tr("Disulfide bond %1: %2").arg(i + 1).arg(fault));
            bound.insert(end);
        }
    }
    if (warnings)
        warnings->append(faults);
    return faults.isEmpty();
}

} // namespace orv::Disulfide::DisulfideUtils
