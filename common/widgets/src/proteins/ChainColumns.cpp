#include "ChainColumns.h"

#include <orv/chemistry/MassCalculator.h>
#include <orv/chemistry/ProteinAutoPopulateOptions.h>
#include <orv/table_model/RowNodeBinding.h>

#include <QCoreApplication>

namespace orv {

namespace {

struct ChainColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinInputWidgetBase)
};

// Places in the table of chains.
constexpr int kNumberAt = 0;
constexpr int kChainNameAt = 2;
constexpr int kTypeAt = 3;
constexpr int kChainSequenceAt = 4;
// Places in the table of proteins.
constexpr int kChainNumbersAt = 1;
constexpr int kDisulfidesAt = 2;
constexpr int kProteinSamplesAt = 3;

TableColumn described(TableColumn column, const QString &explanation)
{
    column.explanation = explanation;
    return column;
}

QString problemOfFormula(QStringView text)
{
    const Result<ChemicalFormula> formula = ChemicalFormula::parse(text.toString());
    return formula.hasError() ? formula.error().details().join(u' ') : QString();
}

TableColumn derivedMass(const QString &name, const QString &title,
                        std::function<QString(const QStringList &)> derive)
{
    TableColumn column{
        .name = name, .title = title, .unit = ChainColumnsTr::tr("Da"), .kind = TableColumnKind::Number};
    column.derive = std::move(derive);
    column.explanation =
        ChainColumnsTr::tr("Follows from the chains, less two hydrogens for each disulfide bond, in Da.");
    return column;
}

} // namespace

ChainType chainTypeOf(const QStringList &chain)
{
    const QString &type = chain[kTypeAt];
    return type == QLatin1String("DNA")   ? ChainType::Dna
           : type == QLatin1String("RNA") ? ChainType::Rna
                                          : ChainType::Protein;
}

QList<QStringList> ChainTables::chainsOf(QStringView numbers, QString *unknown) const
{
    QList<QStringList> found;
    for (const QStringView part : numbers.split(u',')) {
        const QStringView number = part.trimmed();
        if (number.isEmpty() || !chains)
            continue;
        bool isFound = false;
        for (int row = 0; row < chains->rowCount() && !isFound; ++row) {
            const QStringView own = chains->text(row, kNumberAt);
            // A chain without number has that of its row.
            isFound = own.isEmpty() ? number == QString::number(row + 1) : own == number;
            if (isFound)
                found.append(chains->texts(row));
        }
        if (!isFound && unknown && unknown->isEmpty())
            *unknown = number.toString();
    }
    return found;
}

SequenceFigures ChainTables::figuresOfProtein(const QStringList &protein) const
{
    SequenceFigures sum;
    ChemicalFormula formula;
    bool isWhole = true;
    const QList<QStringList> parts = chainsOf(protein[kChainNumbersAt]);
    for (const QStringList &part : parts) {
        const SequenceFigures figures =
            SequenceFigures::of(part[kChainSequenceAt], chainTypeOf(part), source->factory);
        sum.length += figures.length;
        isWhole = isWhole && figures.formula;
        if (figures.formula)
            formula += *figures.formula;
    }
    if (!isWhole || parts.isEmpty())
        return sum;
    constexpr int kHydrogensOfBond = 2;
    formula -= ChemicalFormula::parse(QStringLiteral("H")).value() *
               (kHydrogensOfBond * protein[kDisulfidesAt].toLongLong());
    sum.formula = formula;
    sum.monoisotopicMassDa = MassCalculator(MassType::Monoisotopic).mass(formula);
    sum.averageMassDa = MassCalculator(MassType::Average).mass(formula);
    return sum;
}

QList<TableColumn> chainColumns(const std::shared_ptr<ChainTables> &tables)
{
    using Kind = TableColumnKind;
    TableColumn number{
        .name = QStringLiteral("Number"), .title = ChainColumnsTr::tr("Number"), .kind = Kind::Integer};
    number.minimum = 1;
    TableColumn type{
        .name = QStringLiteral("Type"), .title = ChainColumnsTr::tr("Type"), .kind = Kind::Choice};
    type.choices = {QStringLiteral("Protein"), QStringLiteral("DNA"), QStringLiteral("RNA")};
    TableColumn sequence{
        .name = QStringLiteral("Sequence"), .title = ChainColumnsTr::tr("Sequence"), .kind = Kind::Sequence};
    sequence.isCaseKept = true;
    QList<TableColumn> columns = {
        described(number, ChainColumnsTr::tr("By which proteins name the chain; empty for that of the row.")),
        described({.name = QStringLiteral("ChainId"), .title = ChainColumnsTr::tr("Id")},
                  ChainColumnsTr::tr("Letter of the chain, for people.")),
        described({.name = QStringLiteral("Name"), .title = ChainColumnsTr::tr("Name")},
                  ChainColumnsTr::tr("What the chain is called.")),
        described(type, ChainColumnsTr::tr("What the chain is made of; a protein where it is empty.")),
        described(sequence,
                  ChainColumnsTr::tr("Amino acids in one-letter code; nucleotides from the 5' end.")),
    };
    for (const SequenceFigure figure : {SequenceFigure::Length, SequenceFigure::MonoisotopicMass,
                                        SequenceFigure::AverageMass, SequenceFigure::Formula})
        columns.append(sequenceFigureColumn(figure, tables->source, kChainSequenceAt, chainTypeOf));
    return columns;
}

TableRowRule chainRule(const std::shared_ptr<ChainTables> &tables)
{
    return [tables](const QList<QStringView> &texts) {
        QStringList chain(kChainSequenceAt + 1);
        chain[kTypeAt] = texts[kTypeAt].toString();
        const QString problem =
            tables->source->problemOf(texts[kChainSequenceAt].toString(), chainTypeOf(chain));
        return problem.isEmpty() ? QList<TableRowProblem>()
                                 : QList<TableRowProblem>{{kChainSequenceAt, problem}};
    };
}

QList<TableColumn> builtProteinColumns(const std::shared_ptr<ChainTables> &tables)
{
    using Kind = TableColumnKind;
    TableColumn numbers{.name = QStringLiteral("ChainNumbers"), .title = ChainColumnsTr::tr("Chain numbers")};
    numbers.check = [tables](QStringView text) {
        QString unknown;
        (void)tables->chainsOf(text, &unknown);
        return unknown.isEmpty() ? QString() : ChainColumnsTr::tr("There is no chain %1.").arg(unknown);
    };
    TableColumn disulfides{.name = QStringLiteral("Disulfides"),
                           .title = ChainColumnsTr::tr("Disulfide bonds"),
                           .kind = Kind::Integer};
    disulfides.minimum = 0;
    TableColumn chainNames{.name = QStringLiteral("chains"), .title = ChainColumnsTr::tr("Chains")};
    chainNames.derive = [tables](const QStringList &texts) {
        QStringList names;
        for (const QStringList &chain : tables->chainsOf(texts[kChainNumbersAt]))
            names.append(chain[kChainNameAt]);
        return names.join(QLatin1String(" + "));
    };
    TableColumn length{
        .name = QStringLiteral("length"), .title = ChainColumnsTr::tr("Length"), .kind = Kind::Integer};
    length.derive = [tables](const QStringList &texts) {
        return QString::number(tables->figuresOfProtein(texts).length);
    };
    return {
        described({.name = QStringLiteral("Name"), .title = ChainColumnsTr::tr("Name")},
                  ChainColumnsTr::tr("What the protein is called; Auto(HC:0-2,LC:0-2) stands for all "
                                     "combinations of these chains.")),
        described(numbers,
                  ChainColumnsTr::tr(
                      "Numbers of the chains with commas between; a chain that occurs twice stands twice.")),
        described(disulfides, ChainColumnsTr::tr(
                                  "Number of bonds between cysteines, each of which costs two hydrogens.")),
        SampleNames::idsColumn(QStringLiteral("SamplesIds"), tables->samples),
        described(chainNames, ChainColumnsTr::tr("Names of the chains. Follow from the numbers.")),
        described(length, ChainColumnsTr::tr("Number of residues or nucleotides of all chains.")),
        derivedMass(QStringLiteral("monoisotopic"), ChainColumnsTr::tr("Mono. mass"),
                    [tables](const QStringList &texts) {
                        return textOfMonoisotopicMass(tables->figuresOfProtein(texts).monoisotopicMassDa);
                    }),
        derivedMass(QStringLiteral("average"), ChainColumnsTr::tr("Average mass"),
                    [tables](const QStringList &texts) {
                        return textOfAverageMass(tables->figuresOfProtein(texts).averageMassDa);
                    }),
        SampleNames::namesColumn(tables->samples, kProteinSamplesAt)};
}

QList<TableColumn> buildingBlockColumns()
{
    TableColumn symbol{.name = QStringLiteral("Symbol"), .title = ChainColumnsTr::tr("Symbol")};
    symbol.isRequired = true;
    TableColumn type{
        .name = QStringLiteral("Type"), .title = ChainColumnsTr::tr("Type"), .kind = TableColumnKind::Choice};
    for (const BuildingBlockType one :
         {BuildingBlockType::Base, BuildingBlockType::Sugar, BuildingBlockType::Linker,
          BuildingBlockType::FivePrimeEnd, BuildingBlockType::ThreePrimeEnd})
        type.choices.append(ChemicalFactory::buildingBlockTypeToString(one));
    TableColumn formula{.name = QStringLiteral("Formula"), .title = ChainColumnsTr::tr("Formula")};
    formula.check = problemOfFormula;
    constexpr int kFormulaAt = 3;
    TableColumn mass{.name = QStringLiteral("monoisotopic"),
                     .title = ChainColumnsTr::tr("Mono. mass"),
                     .unit = ChainColumnsTr::tr("Da"),
                     .kind = TableColumnKind::Number};
    mass.derive = [](const QStringList &texts) {
        const Result<ChemicalFormula> read = ChemicalFormula::parse(texts[kFormulaAt]);
        return read.hasError() || texts[kFormulaAt].isEmpty()
                   ? QString()
                   : textOfMonoisotopicMass(read->monoisotopicMass());
    };
    return {described(symbol,
                      ChainColumnsTr::tr("By which sequences name the block; the case of letters counts.")),
            described({.name = QStringLiteral("Name"), .title = ChainColumnsTr::tr("Name")},
                      ChainColumnsTr::tr("What the block is called.")),
            described(type, ChainColumnsTr::tr("The place of the block in an oligonucleotide.")),
            described(formula, ChainColumnsTr::tr("What the block adds to the chain.")),
            described(mass, ChainColumnsTr::tr("Monoisotopic mass of the formula in Da."))};
}

void renewStoredMasses(RowNode *edited, const RowNode &original, SequenceSource &source)
{
    const int sequenceAt = int(edited->data.indexOf(QStringLiteral("Sequence")));
    const int typeAt = int(edited->data.indexOf(QStringLiteral("Type")));
    const int monoisotopicAt = int(edited->data.indexOf(QStringLiteral("MonoisotopicMass")));
    const int averageAt = int(edited->data.indexOf(QStringLiteral("AverageMass")));
    for (int row = 0; sequenceAt >= 0 && row < edited->getChildListSize(); ++row) {
        RowNode *const chain = edited->getChild(row);
        bool isOriginal = false;
        for (int other = 0; other < original.getChildListSize() && !isOriginal; ++other)
            isOriginal = original.getChild(other)->data == chain->data;
        if (isOriginal)
            continue;
        QStringList texts(kChainSequenceAt + 1);
        texts[kTypeAt] = chain->data.value(typeAt).toString();
        const SequenceFigures &figures =
            source.figuresOf(RowNodeBinding::textOf(chain->data.value(sequenceAt)), chainTypeOf(texts));
        const auto renew = [chain](int at, std::optional<double> massDa) {
            if (at >= 0 && !chain->data.value(at).isNull())
                chain->data[at] = massDa ? QVariant(*massDa) : QVariant();
        };
        renew(monoisotopicAt, figures.monoisotopicMassDa);
        renew(averageAt, figures.averageMassDa);
    }
}

} // namespace orv
