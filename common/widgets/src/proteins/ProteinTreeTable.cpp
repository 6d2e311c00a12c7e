#include "orv/widgets/ProteinTreeTable.h"

#include "../scientific/SequenceColumns.h"
#include "ProteinDigest.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/core/PlainTip.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/ProteinTableWidget.h>

#include <QHash>

#include <array>

namespace orv {

namespace {

enum TreeColumn
{
    SequenceColumn,
    PlaceColumn,
    LengthColumn,
    MissedColumn,
    MonoisotopicColumn,
    AverageColumn,
};

constexpr std::array kTreeTitles = {
    QT_TRANSLATE_NOOP("orv::ProteinTreeTable", "Protein or peptide"),
    QT_TRANSLATE_NOOP("orv::ProteinTreeTable", "Residues"),
    QT_TRANSLATE_NOOP("orv::ProteinTreeTable", "Length"),
    QT_TRANSLATE_NOOP("orv::ProteinTreeTable", "Missed cleavages"),
    QT_TRANSLATE_NOOP("orv::ProteinTreeTable", "Mono. mass (Da)"),
    QT_TRANSLATE_NOOP("orv::ProteinTreeTable", "Average mass (Da)"),
};

/// Of a protein; its peptides have the number of its row, counted from 1.
constexpr quintptr kProteinId = 0;

} // namespace

class ProteinTreeTable::Private
{
public:
    explicit Private(ProteinTableWidget *ofModel)
        : table(ofModel)
    {}

    [[nodiscard]] QString cell(int row, const QString &column) const
    {
        return table->sheet()->text(row, table->sheet()->columnOf(column)).toString();
    }
    [[nodiscard]] QString nameOf(int row) const
    {
        const QString name = cell(row, kProteinAccessionName);
        return name.isEmpty() ? cell(row, kProteinAliasName) : name;
    }
    [[nodiscard]] QList<DigestedPeptide> digestOf(int row) const
    {
        return digestOfProtein(cell(row, kProteinSequence), table->digestRule(), table->digestLimits(),
                               kShownPeptides);
    }
    [[nodiscard]] QString textOfPeptide(const DigestedPeptide &peptide, int column) const;

    ProteinTableWidget *table;
    QHash<int, QList<DigestedPeptide>> peptides; ///< of the rows that were unfolded
    bool showsAverageMass = false;
};

QString ProteinTreeTable::Private::textOfPeptide(const DigestedPeptide &peptide, int column) const
{
    const auto figures = [&] { return SequenceFigures::of(peptide.sequence, ChainType::Protein); };
    switch (column) {
    case SequenceColumn:
        return peptide.sequence;
    case PlaceColumn:
        return tr("%1\u2013%2").arg(peptide.offset + 1).arg(peptide.offset + peptide.sequence.size());
    case LengthColumn:
        return QString::number(peptide.sequence.size());
    case MissedColumn:
        return QString::number(peptide.missedCleavages);
    case MonoisotopicColumn:
        return textOfMonoisotopicMass(figures().monoisotopicMassDa);
    case AverageColumn:
        return textOfAverageMass(figures().averageMassDa);
    default:
        return {};
    }
}

ProteinTreeTable::ProteinTreeTable(ProteinTableWidget *table)
    : QAbstractItemModel(table)
    , d(std::make_unique<Private>(table))
{
    const TableSheet *const sheet = table->sheet();
    for (auto signal : {&TableSheet::loaded, &TableSheet::rowsReordered, &TableSheet::derivedAnew})
        connect(sheet, signal, this, &ProteinTreeTable::renew);
    connect(sheet, &TableSheet::rowsInserted, this, &ProteinTreeTable::renew);
    connect(sheet, &TableSheet::rowsRemoved, this, &ProteinTreeTable::renew);
    connect(sheet, &TableSheet::cellsChanged, this, &ProteinTreeTable::renewRows);
}

ProteinTreeTable::~ProteinTreeTable() = default;

RowNode ProteinTreeTable::rowNode() const
{
    return d->table->rowNode();
}

void ProteinTreeTable::setShowAverageMass(bool isShown)
{
    if (isShown == d->showsAverageMass)
        return;
    beginResetModel();
    d->showsAverageMass = isShown;
    endResetModel();
}

bool ProteinTreeTable::showsAverageMass() const
{
    return d->showsAverageMass;
}

void ProteinTreeTable::renew()
{
    beginResetModel();
    d->peptides.clear();
    endResetModel();
}

void ProteinTreeTable::digestAnew(int row)
{
    if (!d->peptides.contains(row))
        return;
    if (const int before = int(d->peptides[row].size()); before > 0) {
        beginRemoveRows(index(row, 0), 0, before - 1);
        d->peptides[row].clear();
        endRemoveRows();
    }
    const QList<DigestedPeptide> peptides = d->digestOf(row);
    if (peptides.isEmpty())
        return;
    beginInsertRows(index(row, 0), 0, int(peptides.size()) - 1);
    d->peptides[row] = peptides;
    endInsertRows();
}

void ProteinTreeTable::renewRows(const QList<quint32> &ids)
{
    for (const quint32 id : ids) {
        const int row = d->table->sheet()->rowOf(id);
        if (row < 0)
            continue;
        digestAnew(row);
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}

QModelIndex ProteinTreeTable::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : kProteinId);
}

QModelIndex ProteinTreeTable::parent(const QModelIndex &child) const
{
    if (!child.isValid() || child.internalId() == kProteinId)
        return {};
    return createIndex(int(child.internalId()) - 1, 0, kProteinId);
}

int ProteinTreeTable::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return d->table->sheet()->rowCount();
    if (parent.internalId() != kProteinId || parent.column() != 0)
        return 0;
    const auto known = d->peptides.constFind(parent.row());
    const auto peptides =
        known == d->peptides.cend() ? d->peptides.insert(parent.row(), d->digestOf(parent.row())) : known;
    return int(peptides->size());
}

int ProteinTreeTable::columnCount(const QModelIndex & /*parent*/) const
{
    return int(kTreeTitles.size()) - (d->showsAverageMass ? 0 : 1);
}

bool ProteinTreeTable::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return rowCount() > 0;
    // Nothing is digested to draw a handle.
    return parent.internalId() == kProteinId && parent.column() == 0 &&
           !d->cell(parent.row(), kProteinSequence).isEmpty();
}

QString ProteinTreeTable::textOf(const QModelIndex &index) const
{
    if (index.internalId() != kProteinId) {
        const auto peptides = d->peptides.constFind(int(index.internalId()) - 1);
        return peptides == d->peptides.cend() ? QString()
                                              : d->textOfPeptide(peptides->at(index.row()), index.column());
    }
    switch (index.column()) {
    case SequenceColumn:
        return d->nameOf(index.row());
    case LengthColumn:
        return d->cell(index.row(), QStringLiteral("length"));
    case MonoisotopicColumn:
        return d->cell(index.row(), QStringLiteral("monoisotopic"));
    case AverageColumn:
        return d->cell(index.row(), QStringLiteral("average"));
    default:
        return {};
    }
}

QVariant ProteinTreeTable::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return textOf(index);
    case Qt::ToolTipRole:
        return PlainTip::of(textOf(index));
    case Qt::TextAlignmentRole: {
        const bool isText = index.column() == SequenceColumn;
        return QVariant::fromValue((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QVariant ProteinTreeTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && section >= 0 && section < columnCount();
    if (!isTitle || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return tr(kTreeTitles.at(size_t(section)));
}

} // namespace orv
