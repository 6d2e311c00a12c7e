#include "orv/chemistry/ProteinGenerator.h"

#include <orv/chemistry/ChemistryConstants.h>

#include <QCoreApplication>
#include <QHash>
#include <QSet>

namespace orv {

namespace {

/// Letters; the largest known assemblies have a tenth of it.
constexpr qsizetype kLongestProtein = 1'000'000;

struct ProteinGeneratorTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinGenerator)
};

Error tooLong(const QString &protein)
{
    return Error(ErrorCode::InvalidContent, ProteinGeneratorTr::tr("A protein is too large."))
        .addDetail(ProteinGeneratorTr::tr("The sequences of \"%1\" have more than %2 letters together.")
                       .arg(protein)
                       .arg(kLongestProtein));
}

/// A plain table has a protein for each chain, also for the rows that nobody has filled in yet.
void dropEmptySequences(ProteinGenerator::InputOptions *options)
{
    QSet<int> empty;
    for (const Chain &chain : std::as_const(options->chains)) {
        if (chain.sequence.trimmed().isEmpty())
            empty.insert(chain.number);
    }
    options->chains.removeIf([&](const Chain &chain) { return empty.contains(chain.number); });
    options->proteins.removeIf(
        [&](const ProteinComplex &protein) { return empty.contains(protein.chainNumbers.value(0)); });
}

void addMass(std::optional<double> *sum, std::optional<double> mass)
{
    if (*sum && mass)
        **sum += *mass;
    else
        sum->reset();
}

} // namespace

ProteinGenerator::ProteinGenerator(bool keepUnknownMasses, const ChemicalFactory *factory)
    : m_keepUnknownMasses(keepUnknownMasses)
    , m_factory(factory ? *factory : ChemicalFactory::defaultFactory())
{}

QString ProteinGenerator::cleanSequence(const QString &text, ChainType type)
{
    QString sequence;
    sequence.reserve(text.size());
    for (QChar letter : text) {
        if (!letter.isSpace())
            sequence.append(letter);
    }
    return type == ChainType::Protein ? sequence.toUpper() : sequence;
}

Error ProteinGenerator::init(const RowNode &root, const CustomSettings &settings)
{
    Q_UNUSED(settings)
    return init(root);
}

Error ProteinGenerator::init(const RowNode &root)
{
    m_proteins = ProteinComplexList();
    Result<InputOptions> options = parseInputOptions(root);
    if (options.hasError())
        return options.ecatch();
    if (!root.data.contains(kChains))
        dropEmptySequences(&*options);
    ORV_RETURN_IF_ERROR(build(std::move(options).value()));
    return Error::NoError;
}

Error ProteinGenerator::build(InputOptions options)
{
    Result<ChemicalFactory> factory = m_factory.withBuildingBlocks(options.buildingBlocks);
    if (factory.hasError())
        return factory.ecatch();
    const MassCalculator monoisotopic = createMassCalculator(MassType::Monoisotopic);
    const MassCalculator average = createMassCalculator(MassType::Average);

    QHash<int, const Chain *> byNumber;
    for (Chain &chain : options.chains) {
        chain.sequence = cleanSequence(chain.sequence, chain.type);
        Error error = chain.updateMasses(monoisotopic, average, *factory);
        if (error && !m_keepUnknownMasses)
            return error.ecatch();
        byNumber.insert(chain.number, &chain);
    }
    const ChemicalFormula hydrogens = ChemicalFormula::parse(QStringLiteral("H2")).value();
    for (ProteinComplex &protein : options.proteins) {
        if (protein.chainNumbers.isEmpty())
            continue;
        const ChemicalFormula lost = hydrogens * protein.disulfides;
        protein.monoisotopicMassDa = -monoisotopic.mass(lost);
        protein.averageMassDa = -average.mass(lost);
        for (int number : std::as_const(protein.chainNumbers)) {
            const Chain &chain = *byNumber.value(number);
            protein.sequence += chain.sequence;
            if (protein.sequence.size() > kLongestProtein)
                return tooLong(protein.name);
            addMass(&protein.monoisotopicMassDa, chain.monoisotopicMassDa);
            addMass(&protein.averageMassDa, chain.averageMassDa);
        }
    }
    m_proteins = ProteinComplexList(std::move(options.chains), std::move(options.proteins));
    return Error::NoError;
}

} // namespace orv
