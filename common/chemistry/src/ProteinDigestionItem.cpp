#include "orv/chemistry/ProteinDigestionItem.h"

#include <QCoreApplication>

#include <pwiz/data/proteome/Digestion.hpp>

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
    namespace proteome = pwiz::proteome;
    const QString rule = m_side == Side::CTerm ? QStringLiteral("(?<=[%1])") : QStringLiteral("(?=[%1])");
    try {
        const proteome::Digestion digestion(
            proteome::Peptide(sequence.toStdString()), rule.arg(m_residues).toStdString(),
            proteome::Digestion::Config(limits.missedCleavages, limits.minimumLength, limits.maximumLength,
                                        proteome::Digestion::FullySpecific, false));
        QList<DigestedPeptide> peptides;
        qint64 letters = 0;
        for (const proteome::DigestedPeptide &peptide : digestion) {
            letters += static_cast<qint64>(peptide.sequence().size());
            if (letters > kMostLetters) {
                return undigested(ProteinDigestionItemTr::tr(
                    "There are too many peptides. Allow fewer missed cleavages or shorter peptides."));
            }
            peptides.append({QString::fromStdString(peptide.sequence()), static_cast<int>(peptide.offset()),
                             static_cast<int>(peptide.missedCleavages())});
        }
        return peptides;
    } catch (const std::exception &exception) {
        return undigested(QString::fromUtf8(exception.what()));
    }
}

} // namespace orv
