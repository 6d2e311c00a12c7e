#include "ChromatogramTerms.h"

#include <pwiz/data/common/cv.hpp>

#include <array>
#include <exception>

namespace orv::msreader::internal {

namespace {

struct Row
{
    pwiz::cv::CVID term;
    ChromatogramType type;
};

// The narrower terms first: each also is what a wider one says.
constexpr std::array kRows = {
    Row{pwiz::cv::MS_TIC_chromatogram, ChromatogramType::Tic},
    Row{pwiz::cv::MS_basepeak_chromatogram, ChromatogramType::BasePeak},
    Row{pwiz::cv::MS_SIM_chromatogram, ChromatogramType::SelectedIonMonitoring},
    Row{pwiz::cv::MS_SRM_chromatogram, ChromatogramType::SelectedReactionMonitoring},
    Row{pwiz::cv::MS_SIC_chromatogram, ChromatogramType::SelectedIonCurrent},
    Row{pwiz::cv::MS_mass_chromatogram, ChromatogramType::IonCurrent},
    Row{pwiz::cv::MS_EMR_radiation_chromatogram, ChromatogramType::Light},
};

/// The library throws at a term that is newer than its vocabulary; such files are good all the same.
pwiz::cv::CVID termOf(const QString &accession)
{
    try {
        return pwiz::cv::cvTermInfo(accession.toStdString()).cvid;
    } catch (const std::exception &) {
        return pwiz::cv::CVID_Unknown;
    }
}

} // namespace

ChromatogramType chromatogramTypeOf(const QStringList &terms)
{
    for (const QString &term : terms) {
        const pwiz::cv::CVID id = termOf(term);
        for (const Row &row : kRows) {
            if (id != pwiz::cv::CVID_Unknown && pwiz::cv::cvIsA(id, row.term))
                return row.type;
        }
    }
    return ChromatogramType::Other;
}

} // namespace orv::msreader::internal
