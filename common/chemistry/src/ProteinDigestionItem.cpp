#include "orv/chemistry/ProteinDigestionItem.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace orv {

namespace {

constexpr qsizetype kLongestDigestion = 1000;
constexpr qsizetype kLongestSequence = 100000;
/// Of all peptides together; many missed cleavages of a long sequence would fill the memory.
constexpr qint64 kMostLetters = 50'000'000;
constexpr QLatin1String kCTerm("C-term");
constexpr QLatin1String kNTerm("N-term");

struct ProteinDigestionItemTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinDigestionItem)
};

Error malformedDigestion(const QString &place)
{
    return Error(ErrorCode::InvalidContent, ProteinDigestionItemTr::tr("The digestion text is malformed."))
        .addDetail(place)
        .addDetail(ProteinDigestionItemTr::tr("Write it as \"Trypsin @ R,K | C-term\"."));
}

Error undigested(const QString &reason)
{
    return Error(ErrorCode::InvalidContent, ProteinDigestionItemTr::tr("A sequence can't be digested."))
        .addDetail(reason);
}

bool isCapital(QChar letter)
{
    return letter >= QLatin1Char('A') && letter <= QLatin1Char('Z');
}

Error readResidues(QStringView text, QString *residues)
{
    for (QStringView part : text.split(QLatin1Char(','))) {
        part = part.trimmed();
        if (part.size() != 1 || !isCapital(part.front())) {
            return malformedDigestion(
                ProteinDigestionItemTr::tr("\"%1\" is not a residue: residues are single capital letters.")
                    .arg(part));
        }
        if (!residues->contains(part.front()))
            residues->append(part.front());
    }
    return Error::NoError;
}

Error readSide(QStringView text, ProteinDigestionItem::Side *side)
{
    if (text != kCTerm && text != kNTerm)
        return malformedDigestion(ProteinDigestionItemTr::tr("\"%1\" is not a side: there are %2 and %3.")
                                      .arg(text, kCTerm, kNTerm));
    *side = text == kCTerm ? ProteinDigestionItem::Side::CTerm : ProteinDigestionItem::Side::NTerm;
    return Error::NoError;
}

Error checkInput(const QString &sequence, const DigestionLimits &limits)
{
    if (sequence.isEmpty() || sequence.size() > kLongestSequence) {
        return undigested(ProteinDigestionItemTr::tr("It has %1 residues; 1 to %2 can be digested.")
                              .arg(sequence.size())
                              .arg(kLongestSequence));
    }
    const auto odd = std::find_if_not(sequence.begin(), sequence.end(), isCapital);
    if (odd != sequence.end()) {
        return undigested(ProteinDigestionItemTr::tr("\"%1\" at residue %2 is not a capital letter.")
                              .arg(*odd)
                              .arg(std::distance(sequence.begin(), odd) + 1));
    }
    if (limits.missedCleavages < 0 || limits.minimumLength < 1 ||
        limits.maximumLength < limits.minimumLength) {
        return Error(ErrorCode::InvalidContent,
                     ProteinDigestionItemTr::tr("The limits of a digestion are out of order."))
            .addDetail(ProteinDigestionItemTr::tr("Missed cleavages: %1; lengths: %2 to %3.")
                           .arg(limits.missedCleavages)
                           .arg(limits.minimumLength)
                           .arg(limits.maximumLength));
    }
    return Error::NoError;
}

/// The peptides between the places where a sequence is cut, and with ragged ends those within.
class Cutting
{
public:
    Cutting(const QString &sequence, std::vector<qsizetype> places, const DigestionLimits &limits)
        : m_sequence(sequence)
        , m_places(std::move(places))
        , m_limits(limits)
    {}

    Result<QList<DigestedPeptide>> peptides()
    {
        size_t next = 1; // the first place behind the start
        for (qsizetype start = 0; start < m_sequence.size(); ++start) {
            while (m_places[next] <= start)
                ++next;
            addFrom(start, next);
            if (m_letters > kMostLetters) {
                return undigested(ProteinDigestionItemTr::tr(
                    "There are too many peptides. Allow fewer missed cleavages or shorter peptides."));
            }
        }
        return m_peptides;
    }

private:
    using Specificity = DigestionSpecificity;

    /// Whether peptides that begin there may end anywhere, at cuts alone, or not be.
    [[nodiscard]] bool mayEndAnywhere(bool startIsCut) const
    {
        const Specificity wanted = m_limits.specificity;
        return wanted == Specificity::NonSpecific || (startIsCut && (wanted == Specificity::SemiSpecific ||
                                                                     wanted == Specificity::RaggedCTerminus));
    }
    [[nodiscard]] bool mayEndAtCuts(bool startIsCut) const
    {
        const Specificity wanted = m_limits.specificity;
        return startIsCut || wanted == Specificity::SemiSpecific || wanted == Specificity::RaggedNTerminus;
    }

    void addFrom(qsizetype start, size_t next)
    {
        const bool startIsCut = m_places[next - 1] == start;
        const bool anywhere = mayEndAnywhere(startIsCut);
        if (!anywhere && !mayEndAtCuts(startIsCut))
            return;
        const qsizetype last = std::min(m_sequence.size(), start + qsizetype(m_limits.maximumLength));
        int missed = 0;
        for (size_t cut = next; cut < m_places.size() && missed <= m_limits.missedCleavages;
             ++cut, ++missed) {
            const qsizetype end = std::min(m_places[cut], last);
            if (anywhere)
                addUpTo(start, std::max(m_places[cut - 1], start), end, missed);
            else if (m_places[cut] <= last)
                add(start, m_places[cut], missed);
            if (m_places[cut] >= last || m_letters > kMostLetters)
                return;
        }
    }

    /// All ends behind \a from up to \a to, with the cuts before the last piece missed.
    void addUpTo(qsizetype start, qsizetype from, qsizetype to, int missed)
    {
        const qsizetype first = std::max(from + 1, start + qsizetype(m_limits.minimumLength));
        for (qsizetype end = first; end <= to && m_letters <= kMostLetters; ++end)
            add(start, end, missed);
    }

    void add(qsizetype start, qsizetype end, int missed)
    {
        const qsizetype length = end - start;
        if (length < m_limits.minimumLength)
            return;
        m_letters += length;
        m_peptides.append({m_sequence.mid(start, length), int(start), missed});
    }

    const QString &m_sequence;
    const std::vector<qsizetype> m_places;
    const DigestionLimits m_limits;
    QList<DigestedPeptide> m_peptides;
    qint64 m_letters = 0;
};

} // namespace

Result<ProteinDigestionItem> ProteinDigestionItem::parse(const QString &text)
{
    if (text.size() > kLongestDigestion)
        return malformedDigestion(ProteinDigestionItemTr::tr("It has %1 characters; %2 are allowed.")
                                      .arg(text.size())
                                      .arg(kLongestDigestion));
    const QStringList rule = text.split(QLatin1Char('@'));
    if (rule.size() != 2)
        return malformedDigestion(ProteinDigestionItemTr::tr("It must have one \"@\", behind the name."));
    const QStringList cut = rule.last().split(QLatin1Char('|'));
    if (cut.size() != 2)
        return malformedDigestion(ProteinDigestionItemTr::tr("It must have one \"|\", behind the residues."));

    ProteinDigestionItem item;
    item.m_name = rule.first().trimmed();
    if (item.m_name.isEmpty() || item.m_name.contains(QLatin1Char('|')))
        return malformedDigestion(
            ProteinDigestionItemTr::tr("The name before \"@\" must not be empty and must not hold \"|\"."));
    ORV_RETURN_IF_ERROR(readResidues(cut.first(), &item.m_residues));
    ORV_RETURN_IF_ERROR(readSide(QStringView(cut.last()).trimmed(), &item.m_side));
    return item;
}

bool ProteinDigestionItem::validate(const QString &text)
{
    return !parse(text).hasError();
}

QString ProteinDigestionItem::toString() const
{
    const QStringList residues = m_residues.split(QString(), Qt::SkipEmptyParts);
    return QStringLiteral("%1 @ %2 | %3")
        .arg(m_name, residues.join(QLatin1Char(',')), m_side == Side::CTerm ? kCTerm : kNTerm);
}

Result<QList<DigestedPeptide>> ProteinDigestionItem::digest(const QString &sequence,
                                                            const DigestionLimits &limits) const
{
    ORV_RETURN_IF_ERROR(checkInput(sequence, limits));
    return Cutting(sequence, cutPlaces(sequence, limits.cutsBeforeProline), limits).peptides();
}

/// The places between residues where the enzyme cuts, as numbers of the residues behind them, with both ends.
std::vector<qsizetype> ProteinDigestionItem::cutPlaces(const QString &sequence, bool cutsBeforeProline) const
{
    std::vector<qsizetype> places{0};
    for (qsizetype place = 1; place < sequence.size(); ++place) {
        const QChar residue = sequence.at(m_side == Side::CTerm ? place - 1 : place);
        const bool isBarred = !cutsBeforeProline && sequence.at(place) == QLatin1Char('P');
        if (m_residues.contains(residue) && !isBarred)
            places.push_back(place);
    }
    places.push_back(sequence.size());
    return places;
}

} // namespace orv
