#include "SequenceColumns.h"

#include <QCoreApplication>

#include <array>

namespace orv {

namespace {

struct SequenceColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(SequenceColumns)
};

struct FigureRow
{
    const char *name;
    const char *title;
    const char *unit;
    const char *explanation;
    TableColumnKind kind;
};

// clang-format off
/// In the order of SequenceFigure.
constexpr std::array kFigures = {
    FigureRow{"length", QT_TRANSLATE_NOOP("SequenceColumns", "Length"), "",
              QT_TRANSLATE_NOOP("SequenceColumns", "Number of residues or nucleotides."), TableColumnKind::Integer},
    FigureRow{"monoisotopic", QT_TRANSLATE_NOOP("SequenceColumns", "Mono. mass"), "Da",
              QT_TRANSLATE_NOOP("SequenceColumns", "Monoisotopic mass of the neutral, unmodified chain in Da."), TableColumnKind::Number},
    FigureRow{"average", QT_TRANSLATE_NOOP("SequenceColumns", "Average mass"), "Da",
              QT_TRANSLATE_NOOP("SequenceColumns", "Average mass of the neutral, unmodified chain in Da."), TableColumnKind::Number},
    FigureRow{"formula", QT_TRANSLATE_NOOP("SequenceColumns", "Formula"), "",
              QT_TRANSLATE_NOOP("SequenceColumns", "Atoms of the neutral, unmodified chain."), TableColumnKind::Text},
    FigureRow{"sites", QT_TRANSLATE_NOOP("SequenceColumns", "Cleavage sites"), "",
              QT_TRANSLATE_NOOP("SequenceColumns", "Number of bonds that the enzyme of the digest cuts."), TableColumnKind::Integer},
    FigureRow{"coverage", QT_TRANSLATE_NOOP("SequenceColumns", "Coverage"), "%",
              QT_TRANSLATE_NOOP("SequenceColumns", "Share of the residues that lie in a peptide of the digest, in percent."), TableColumnKind::Number},
};
// clang-format on

QString fixedText(std::optional<double> number, int digits)
{
    return number ? QString::number(*number, 'f', digits) : QString();
}

QString textOfFigure(SequenceFigure figure, SequenceSource &source, const QString &sequence, ChainType type)
{
    if (sequence.isEmpty())
        return {};
    const bool isDigested = type == ChainType::Protein && source.rule;
    switch (figure) {
    case SequenceFigure::Length:
        return QString::number(source.figuresOf(sequence, type).length);
    case SequenceFigure::MonoisotopicMass:
        return textOfMonoisotopicMass(source.figuresOf(sequence, type).monoisotopicMassDa);
    case SequenceFigure::AverageMass:
        return textOfAverageMass(source.figuresOf(sequence, type).averageMassDa);
    case SequenceFigure::Formula: {
        const std::optional<ChemicalFormula> &formula = source.figuresOf(sequence, type).formula;
        return formula ? formula->toString() : QString();
    }
    case SequenceFigure::CleavageSites:
        return isDigested && source.digestOf(sequence).problem.isEmpty()
                   ? QString::number(source.digestOf(sequence).cleavageSites)
                   : QString();
    case SequenceFigure::Coverage:
        return isDigested && source.digestOf(sequence).problem.isEmpty()
                   ? fixedText(source.digestOf(sequence).coveragePercent, 1)
                   : QString();
    }
    return {};
}

} // namespace

QString textOfMonoisotopicMass(std::optional<double> massDa)
{
    constexpr int kDigits = 4;
    return fixedText(massDa, kDigits);
}

QString textOfAverageMass(std::optional<double> massDa)
{
    constexpr int kDigits = 2;
    return fixedText(massDa, kDigits);
}

const SequenceFigures &SequenceSource::figuresOf(const QString &sequence, ChainType type)
{
    if (!m_figures || sequence != m_sequence || type != m_type) {
        m_figures = SequenceFigures::of(sequence, type, factory);
        m_sequence = sequence;
        m_type = type;
    }
    return *m_figures;
}

const DigestFigures &SequenceSource::digestOf(const QString &sequence)
{
    if (!m_digest || sequence != m_digested) {
        m_digest = rule ? DigestFigures::of(sequence, *rule, limits) : DigestFigures();
        m_digested = sequence;
    }
    return *m_digest;
}

void SequenceSource::forget()
{
    m_figures.reset();
    m_digest.reset();
}

QString SequenceSource::problemOf(const QString &sequence, ChainType type)
{
    if (sequence.isEmpty() || !isMassNeeded)
        return {};
    const SequenceFigures &figures = figuresOf(sequence, type);
    if (figures.unknownPlaces.isEmpty())
        return figures.problem;
    const int place = figures.unknownPlaces.constFirst();
    QString letters = sequence;
    letters.removeIf([](QChar c) { return c.isSpace(); });
    return SequenceColumnsTr::tr("Position %1 holds \"%2\", which stands for no single amino acid.")
        .arg(place + 1)
        .arg(letters.mid(place, 1));
}

TableColumn sequenceFigureColumn(SequenceFigure figure, const std::shared_ptr<SequenceSource> &source,
                                 int sequenceAt, const ChainTypeOfRow &typeOf)
{
    const FigureRow &row = kFigures.at(size_t(figure));
    TableColumn column{.name = QString::fromLatin1(row.name),
                       .title = SequenceColumnsTr::tr(row.title),
                       .unit = QString::fromLatin1(row.unit),
                       .kind = row.kind};
    column.explanation = SequenceColumnsTr::tr(row.explanation);
    column.derive = [figure, source, sequenceAt, typeOf](const QStringList &texts) {
        return textOfFigure(figure, *source, texts[sequenceAt], typeOf(texts));
    };
    return column;
}

} // namespace orv
