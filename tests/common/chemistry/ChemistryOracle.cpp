#include "ChemistryOracle.h"

#include <array>
#include <cmath>
#include <vector>

namespace ChemistryOracle {

namespace {

struct Isotope
{
    int extra; ///< nucleons beyond the lightest
    double massDa;
    double share;
};

struct Atom
{
    QChar symbol;
    double averageDa;
    std::vector<Isotope> isotopes;
};

// Masses: Audi, Wapstra and Thibault, atomic mass evaluation 2003. Shares: IUPAC, isotopic compositions 1997.
// Average masses: IUPAC, standard atomic weights 1999.
const std::vector<Atom> &atoms()
{
    static const std::vector<Atom> kAtoms = {
        {u'C', 12.0107, {{0, 12.0, 0.9893}, {1, 13.0033548378, 0.0107}}},
        {u'H', 1.00794, {{0, 1.00782503207, 0.999885}, {1, 2.0141017778, 0.000115}}},
        {u'N', 14.0067, {{0, 14.0030740048, 0.99632}, {1, 15.0001088982, 0.00368}}},
        {u'O', 15.9994, {{0, 15.99491461956, 0.99757}, {1, 16.9991317, 0.00038}, {2, 17.999161, 0.00205}}},
        {u'P', 30.973761, {{0, 30.97376163, 1.0}}},
        {u'S',
         32.065,
         {{0, 31.972071, 0.9493},
          {1, 32.97145876, 0.0076},
          {2, 33.9678669, 0.0429},
          {4, 35.96708076, 0.0002}}},
    };
    return kAtoms;
}

const Atom &atom(QChar symbol)
{
    for (const Atom &each : atoms()) {
        if (each.symbol == symbol)
            return each;
    }
    qFatal("no such atom");
}

struct Residue
{
    char letter;
    std::array<int, 5> counts; ///< C, H, N, O, S
};

constexpr std::array kResidues = {
    Residue{'A', {3, 5, 1, 1, 0}},  Residue{'R', {6, 12, 4, 1, 0}}, Residue{'N', {4, 6, 2, 2, 0}},
    Residue{'D', {4, 5, 1, 3, 0}},  Residue{'C', {3, 5, 1, 1, 1}},  Residue{'E', {5, 7, 1, 3, 0}},
    Residue{'Q', {5, 8, 2, 2, 0}},  Residue{'G', {2, 3, 1, 1, 0}},  Residue{'H', {6, 7, 3, 1, 0}},
    Residue{'I', {6, 11, 1, 1, 0}}, Residue{'L', {6, 11, 1, 1, 0}}, Residue{'K', {6, 12, 2, 1, 0}},
    Residue{'M', {5, 9, 1, 1, 1}},  Residue{'F', {9, 9, 1, 1, 0}},  Residue{'P', {5, 7, 1, 1, 0}},
    Residue{'S', {3, 5, 1, 2, 0}},  Residue{'T', {4, 7, 1, 2, 0}},  Residue{'W', {11, 10, 2, 1, 0}},
    Residue{'Y', {9, 9, 1, 2, 0}},  Residue{'V', {5, 9, 1, 1, 0}},
};

/// The chance that of \a atoms atoms so many are heavy, for each kind of heavy isotope: a multinomial, by its
/// definition.
double chance(int count, const Atom &element, const std::vector<int> &heavy)
{
    int light = count;
    double logarithm = std::lgamma(count + 1.0);
    for (size_t i = 0; i < heavy.size(); ++i) {
        light -= heavy[i];
        logarithm += heavy[i] * std::log(element.isotopes[i + 1].share) - std::lgamma(heavy[i] + 1.0);
    }
    if (light < 0)
        return 0.0;
    logarithm += light * std::log(element.isotopes[0].share) - std::lgamma(light + 1.0);
    return std::exp(logarithm);
}

void addChances(int count, const Atom &element, std::vector<int> heavy, int extra,
                std::vector<double> *shares)
{
    if (heavy.size() + 1 == element.isotopes.size()) {
        (*shares)[size_t(extra)] += chance(count, element, heavy);
        return;
    }
    const int step = element.isotopes[heavy.size() + 1].extra;
    heavy.push_back(0);
    for (; extra + heavy.back() * step < int(shares->size()) && heavy.back() <= count; ++heavy.back())
        addChances(count, element, heavy, extra + heavy.back() * step, shares);
}

bool isCut(const QString &protein, qsizetype place, const QString &residues,
           orv::ProteinDigestionItem::Side side, bool beforeProline)
{
    if (place == 0 || place == protein.size())
        return true;
    if (!beforeProline && protein.at(place) == u'P')
        return false;
    return residues.contains(side == orv::ProteinDigestionItem::Side::CTerm ? protein.at(place - 1)
                                                                            : protein.at(place));
}

bool isWanted(bool startIsCut, bool endIsCut, orv::DigestionSpecificity specificity)
{
    switch (specificity) {
    case orv::DigestionSpecificity::NonSpecific:
        return true;
    case orv::DigestionSpecificity::SemiSpecific:
        return startIsCut || endIsCut;
    case orv::DigestionSpecificity::FullySpecific:
        return startIsCut && endIsCut;
    case orv::DigestionSpecificity::RaggedNTerminus:
        return endIsCut;
    case orv::DigestionSpecificity::RaggedCTerminus:
        return startIsCut;
    }
    return false;
}

} // namespace

Composition compositionOf(const QString &protein)
{
    Composition composition{{u'H', 2}, {u'O', 1}};
    constexpr std::array kSymbols = {u'C', u'H', u'N', u'O', u'S'};
    for (const QChar letter : protein) {
        for (const Residue &residue : kResidues) {
            for (size_t i = 0; letter == QLatin1Char(residue.letter) && i < kSymbols.size(); ++i)
                composition[kSymbols[i]] += residue.counts[i];
        }
    }
    return composition;
}

double monoisotopicMassDa(const Composition &composition)
{
    double sum = 0.0;
    for (auto it = composition.begin(); it != composition.end(); ++it)
        sum += it.value() * atom(it.key()).isotopes.front().massDa;
    return sum;
}

double averageMassDa(const Composition &composition)
{
    double sum = 0.0;
    for (auto it = composition.begin(); it != composition.end(); ++it)
        sum += it.value() * atom(it.key()).averageDa;
    return sum;
}

QList<double> envelope(const Composition &composition, int peaks)
{
    std::vector<double> all(size_t(peaks), 0.0);
    all[0] = 1.0;
    for (auto it = composition.begin(); it != composition.end(); ++it) {
        std::vector<double> ofElement(size_t(peaks), 0.0);
        addChances(it.value(), atom(it.key()), {}, 0, &ofElement);
        std::vector<double> both(size_t(peaks), 0.0);
        for (size_t i = 0; i < all.size(); ++i) {
            for (size_t j = 0; i + j < all.size(); ++j)
                both[i + j] += all[i] * ofElement[j];
        }
        all = both;
    }
    return {all.begin(), all.end()};
}

QList<orv::DigestedPeptide> digest(const QString &protein, const QString &residues,
                                   orv::ProteinDigestionItem::Side side, const orv::DigestionLimits &limits)
{
    const auto cut = [&](qsizetype place) {
        return isCut(protein, place, residues, side, limits.cutsBeforeProline);
    };
    QList<orv::DigestedPeptide> peptides;
    for (qsizetype start = 0; start < protein.size(); ++start) {
        for (qsizetype end = start + 1; end <= protein.size(); ++end) {
            int missed = 0;
            for (qsizetype place = start + 1; place < end; ++place)
                missed += cut(place) ? 1 : 0;
            const qsizetype length = end - start;
            if (missed <= limits.missedCleavages && length >= limits.minimumLength &&
                length <= limits.maximumLength && isWanted(cut(start), cut(end), limits.specificity))
                peptides.append({protein.mid(start, length), int(start), missed});
        }
    }
    return peptides;
}

} // namespace ChemistryOracle
