// Writes one table of what ProteoWizard knows as rows of C++: proteowizard_tables TABLE FILE.

#include <pwiz/data/common/Unimod.hpp>
#include <pwiz/data/common/cv.hpp>
#include <pwiz/data/proteome/AminoAcid.hpp>
#include <pwiz/utility/chemistry/Chemistry.hpp>

#include <array>
#include <cstdio>
#include <exception>
#include <fstream>
#include <limits>
#include <string>
#include <string_view>

namespace {

namespace Elements = pwiz::chemistry::Element;
namespace AminoAcid = pwiz::proteome::AminoAcid;

/// A row per isotope with the element that it belongs to. Elements whose mass isn't known are left out.
void writeIsotopes(std::ostream &out)
{
    for (int type = Elements::C; type <= Elements::_3H; ++type) {
        const Elements::Info::Record &record = Elements::Info::record(static_cast<Elements::Type>(type));
        if (record.atomicWeight <= 0.0)
            continue;
        for (const pwiz::chemistry::MassAbundance &isotope : record.isotopes) {
            out << "{\"" << record.symbol << "\", " << record.monoisotope.mass << ", " << record.atomicWeight
                << ", " << isotope.mass << ", " << isotope.abundance << "},\n";
        }
    }
}

/// The formulas of unambiguous letters; those of the others are guesses.
void writeResidues(std::ostream &out)
{
    for (int type = AminoAcid::Alanine; type <= AminoAcid::Selenocysteine; ++type) {
        const AminoAcid::Info::Record &record = AminoAcid::Info::record(static_cast<AminoAcid::Type>(type));
        out << "{'" << record.symbol << "', \"" << record.residueFormula.formula() << "\"},\n";
    }
}

struct ChromatogramKind
{
    pwiz::cv::CVID term;
    const char *type;
};

// The narrower terms first: each also is what a wider one says.
constexpr std::array kKinds = {
    ChromatogramKind{pwiz::cv::MS_TIC_chromatogram, "Tic"},
    ChromatogramKind{pwiz::cv::MS_basepeak_chromatogram, "BasePeak"},
    ChromatogramKind{pwiz::cv::MS_SIM_chromatogram, "SelectedIonMonitoring"},
    ChromatogramKind{pwiz::cv::MS_SRM_chromatogram, "SelectedReactionMonitoring"},
    ChromatogramKind{pwiz::cv::MS_SIC_chromatogram, "SelectedIonCurrent"},
    ChromatogramKind{pwiz::cv::MS_mass_chromatogram, "IonCurrent"},
    ChromatogramKind{pwiz::cv::MS_EMR_radiation_chromatogram, "Light"},
};

void writeChromatogramTerms(std::ostream &out)
{
    for (const pwiz::cv::CVID term : pwiz::cv::cvids()) {
        for (const ChromatogramKind &kind : kKinds) {
            if (!pwiz::cv::cvIsA(term, kind.term))
                continue;
            out << "{\"" << pwiz::cv::cvTermInfo(term).id << "\", ChromatogramType::" << kind.type << "},\n";
            break;
        }
    }
}

namespace Unimod = pwiz::data::unimod;

/// The residues and ends that a modification is seen on, with commas between: those that Unimod shows to
/// everybody, or those that it hides from most people.
std::string sitesOf(const Unimod::Modification &modification, bool areHidden)
{
    constexpr std::string_view kResidues = "ACDEFGHIKLMNPQRSTUVWY";
    std::string sites;
    const auto add = [&sites](const std::string &site) {
        const bool isNew = ("," + sites + ",").find("," + site + ",") == std::string::npos;
        if (isNew)
            sites += (sites.empty() ? "" : ",") + site;
    };
    for (const Unimod::Modification::Specificity &specificity : modification.specificities) {
        // The library's own comparison with a name calls itself for ever in C++20.
        const bool isExchange = specificity.classification.value() ==
                                Unimod::Classification(Unimod::Classification::Substitution).value();
        if (specificity.hidden != areHidden || isExchange)
            continue;
        for (const char residue : kResidues) {
            if (specificity.site == Unimod::site(residue))
                add(std::string(1, residue));
        }
        if (specificity.site == Unimod::site('n'))
            add("NTerm");
        if (specificity.site == Unimod::site('c'))
            add("CTerm");
    }
    return sites;
}

/// What Unimod shows to everybody, and of the others what it approved; no exchanges of residues.
void writeModifications(std::ostream &out)
{
    for (const Unimod::Modification &modification : Unimod::modifications()) {
        std::string sites = sitesOf(modification, false);
        if (sites.empty() && modification.approved)
            sites = sitesOf(modification, true);
        if (sites.empty())
            continue;
        out << "{\"" << modification.name << "\", \"" << modification.deltaComposition.formula() << "\", \""
            << sites << "\"},\n";
    }
}

struct Table
{
    const char *name;
    void (*write)(std::ostream &out);
};

constexpr std::array kTables = {
    Table{"Isotopes", writeIsotopes},
    Table{"Residues", writeResidues},
    Table{"ChromatogramTerms", writeChromatogramTerms},
    Table{"Modifications", writeModifications},
};

bool write(const std::string &name, const char *path)
{
    for (const Table &table : kTables) {
        if (name != table.name)
            continue;
        std::ofstream out(path);
        out.precision(std::numeric_limits<double>::max_digits10);
        table.write(out);
        out.close();
        return !out.fail();
    }
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        if (argc == 3 && write(argv[1], argv[2]))
            return 0;
    } catch (const std::exception &exception) {
        std::fprintf(stderr, "%s\n", exception.what());
        return 1;
    }
    std::fputs("Call it with the name of a table and a file that can be written.\n", stderr);
    return 1;
}
