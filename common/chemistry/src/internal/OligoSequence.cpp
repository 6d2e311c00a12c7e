#include "OligoSequence.h"

#include "Residues.h"

#include <QCoreApplication>

namespace orv::Internal {

namespace {

using Type = BuildingBlockType;

constexpr QLatin1String kPhosphate("p");
constexpr QLatin1String kHydroxyl("OH");
constexpr QLatin1String kPhosphodiester("p");

struct OligoSequenceTr
{
    Q_DECLARE_TR_FUNCTIONS(ChemicalFactory)
};

class SequenceReader
{
public:
    SequenceReader(const QString &sequence, ChainType type, const OligoBlocks &blocks)
        : m_text(sequence)
        , m_sugar(type == ChainType::Dna ? QStringLiteral("d") : QStringLiteral("r"))
        , m_blocks(blocks)
    {}

    Result<ChemicalFormula> read()
    {
        ORV_RETURN_IF_ERROR(readEnd(Type::FivePrimeEnd));
        if (atEnd())
            return badSequence(OligoSequenceTr::tr("There is no nucleotide"), m_at);
        for (int count = 0; !atEnd(); ++count) {
            if (count >= ChemicalFactory::kMaximumLength)
                return badSequence(OligoSequenceTr::tr("The sequence is too long"), m_at);
            ORV_RETURN_IF_ERROR(readNucleotide());
            if (atEnd() || isLastPhosphate())
                break;
            ORV_RETURN_IF_ERROR(readLinker());
        }
        ORV_RETURN_IF_ERROR(readEnd(Type::ThreePrimeEnd));
        return m_formula;
    }

private:
    [[nodiscard]] bool atEnd() const { return m_at >= m_text.size(); }
    [[nodiscard]] bool isLastPhosphate() const
    {
        return m_at == m_text.size() - 1 && m_text.at(m_at) == kPhosphate.front();
    }

    Error add(Type type, const QString &symbol)
    {
        const ChemicalFormula *formula = m_blocks.find(type, symbol);
        if (!formula) {
            return badSequence(OligoSequenceTr::tr("There is no building block \"%1\" of the type %2")
                                   .arg(symbol, ChemicalFactory::buildingBlockTypeToString(type)),
                               m_at);
        }
        m_formula += *formula;
        return Error::NoError;
    }

    Error readEnd(Type type)
    {
        const bool phosphate = !atEnd() && m_text.at(m_at) == kPhosphate.front();
        ORV_RETURN_IF_ERROR(add(type, phosphate ? kPhosphate : kHydroxyl));
        m_at += phosphate ? 1 : 0;
        return Error::NoError;
    }

    Error readNucleotide()
    {
        if (m_text.at(m_at) != QLatin1Char('[')) {
            ORV_RETURN_IF_ERROR(add(Type::Base, m_text.at(m_at)));
            ORV_RETURN_IF_ERROR(add(Type::Sugar, m_sugar));
            ++m_at;
            return Error::NoError;
        }
        const qsizetype end = m_text.indexOf(QLatin1Char(']'), m_at);
        if (end < 0)
            return badSequence(OligoSequenceTr::tr("A \"[\" has no \"]\""), m_at);
        ORV_RETURN_IF_ERROR(addNamed(m_text.mid(m_at + 1, end - m_at - 1)));
        m_at = end + 1;
        return Error::NoError;
    }

    /// A base, the longest that fits, and perhaps a sugar.
    Error addNamed(const QString &name)
    {
        for (qsizetype length = name.size(); length > 0; --length) {
            const QString sugar = length == name.size() ? m_sugar : name.mid(length);
            if (!m_blocks.find(Type::Base, name.left(length)) || !m_blocks.find(Type::Sugar, sugar))
                continue;
            ORV_RETURN_IF_ERROR(add(Type::Base, name.left(length)));
            return add(Type::Sugar, sugar);
        }
        return badSequence(
            OligoSequenceTr::tr("\"%1\" is neither a base nor a base and a sugar").arg(name.left(100)), m_at);
    }

    /// The usual linker needs not be written. A letter that is a base too is the next nucleotide.
    Error readLinker()
    {
        const QString symbol = m_text.at(m_at);
        if (!m_blocks.find(Type::Linker, symbol) || m_blocks.find(Type::Base, symbol))
            return add(Type::Linker, kPhosphodiester);
        ORV_RETURN_IF_ERROR(add(Type::Linker, symbol));
        ++m_at;
        if (atEnd())
            return badSequence(OligoSequenceTr::tr("There is no nucleotide behind a \"%1\"").arg(symbol),
                               m_at - 1);
        return Error::NoError;
    }

    const QString &m_text;
    const QString m_sugar;
    const OligoBlocks &m_blocks;
    qsizetype m_at = 0;
    ChemicalFormula m_formula;
};

} // namespace

Result<ChemicalFormula> oligoFormula(const QString &sequence, ChainType type, const OligoBlocks &blocks)
{
    return SequenceReader(sequence, type, blocks).read();
}

} // namespace orv::Internal
