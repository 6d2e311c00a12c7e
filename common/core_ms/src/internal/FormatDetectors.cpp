#include "FormatDetectors.h"

#include "FormatDetectorAgilent.h"
#include "FormatDetectorBruker.h"
#include "FormatDetectorDataCut.h"
#include "FormatDetectorSciex.h"
#include "FormatDetectorTesting.h"
#include "FormatDetectorTolq.h"
#include "FormatDetectorWaters.h"

#include <QCoreApplication>

namespace orv::msreader::internal {

namespace {

using Format = VendorDataFormat;
using Kind = FormatDetectorSimple::Kind;

template<typename Detector>
std::unique_ptr<FormatDetectorBase> simple(Format format, Kind kind, const char *extension,
                                           const char *description)
{
    return std::make_unique<Detector>(format, kind, QString::fromLatin1(extension),
                                      QString::fromLatin1(description));
}

std::unique_ptr<FormatDetectorBase> bruker(Format, Kind, const char *, const char *)
{
    return std::make_unique<FormatDetectorBruker>();
}

struct DetectorRow
{
    std::unique_ptr<FormatDetectorBase> (*create)(Format format, Kind kind, const char *extension,
                                                  const char *description);
    Format format;
    Kind kind;
    const char *extension; ///< with its dot
    const char *description;
};

// clang-format off
constexpr DetectorRow kDetectorRows[] = {
    {simple<FormatDetectorAgilent>, Format::AgilentAcqData, Kind::Folder, ".d", "Agilent"},
    {bruker, Format::Unknown, Kind::Folder, "", ""}, // seven formats, which it knows itself
    {simple<FormatDetectorSimple>, Format::Ulvar2, Kind::File, ".ulvar2", "Ulvar v2"},
    {simple<FormatDetectorSimple>, Format::Csv2d, Kind::File, ".csv2d", "Csv2D"},
    {simple<FormatDetectorDataCut>, Format::DataCut, Kind::File, ".data.cut", "Data Cut"},
    {simple<FormatDetectorDataCutEmbedded>, Format::DataCutEmbedded, Kind::File, "", "Data Cut Embedded"},
    {simple<FormatDetectorSimple>, Format::MsFaux, Kind::File, ".msfaux", QT_TRANSLATE_NOOP("FormatDetectors", "Simulated msfaux")},
    {simple<FormatDetectorSimple>, Format::MsFaux2, Kind::File, ".msfaux2", QT_TRANSLATE_NOOP("FormatDetectors", "Simulated msfaux2")},
    {simple<FormatDetectorSimple>, Format::Mgf, Kind::File, ".mgf", QT_TRANSLATE_NOOP("FormatDetectors", "Mascot generic format (mgf)")},
    {simple<FormatDetectorSimple>, Format::Mzml, Kind::File, ".mzml", QT_TRANSLATE_NOOP("FormatDetectors", "Open data format mzml")},
    {simple<FormatDetectorSimple>, Format::Mzxml, Kind::File, ".mzxml", QT_TRANSLATE_NOOP("FormatDetectors", "Open data format mzxml")},
    {simple<FormatDetectorTolq>, Format::Tolq, Kind::File, ".tolq", QT_TRANSLATE_NOOP("FormatDetectors", "Orv Acquisition file")},
    {simple<FormatDetectorSimple>, Format::Mobilion, Kind::File, ".mbi", "MOBILion"},
    {simple<FormatDetectorSciexWiff>, Format::SciexWiff, Kind::File, ".wiff", "Sciex wiff"},
    {simple<FormatDetectorSciexWiff2>, Format::SciexWiff2, Kind::File, ".wiff2", "Sciex wiff2"},
    {simple<FormatDetectorSimple>, Format::Shimadzu, Kind::File, ".lcd", "Shimadzu"},
    {simple<FormatDetectorSimple>, Format::Thermo, Kind::File, ".raw", "Thermo"},
    {simple<FormatDetectorTesting>, Format::Testing, Kind::File, "", "Testing"},
    {simple<FormatDetectorWaters>, Format::Waters, Kind::Folder, ".raw", "Waters"},
};
// clang-format on

} // namespace

FormatDetectors createFormatDetectors()
{
    FormatDetectors detectors;
    detectors.reserve(std::size(kDetectorRows));
    for (const DetectorRow &row : kDetectorRows)
        detectors.push_back(row.create(row.format, row.kind, row.extension, row.description));
    return detectors;
}

} // namespace orv::msreader::internal
