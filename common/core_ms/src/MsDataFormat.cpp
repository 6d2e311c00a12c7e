#include "orv/core_ms/MsDataFormat.h"

#include <QCoreApplication>

#include <array>

namespace orv::msreader {

namespace {

struct MsDataFormatTr
{
    Q_DECLARE_TR_FUNCTIONS(MsDataFormat)
};

struct FormatName
{
    const char *text;
    VendorDataFormat format;
};

// clang-format off
constexpr std::array kFormatNames = {
    FormatName{"Unknown", VendorDataFormat::Unknown},
    FormatName{"Testing", VendorDataFormat::Testing},
    FormatName{"Ulvar2", VendorDataFormat::Ulvar2},
    FormatName{"BrukerFID", VendorDataFormat::BrukerFID},
    FormatName{"BrukerYEP", VendorDataFormat::BrukerYEP},
    FormatName{"BrukerBAF", VendorDataFormat::BrukerBAF},
    FormatName{"BrukerU2", VendorDataFormat::BrukerU2},
    FormatName{"BrukerBAF_and_U2", VendorDataFormat::BrukerBAF_and_U2},
    FormatName{"BrukerTims", VendorDataFormat::BrukerTims},
    FormatName{"BrukerTsf", VendorDataFormat::BrukerTsf},
    FormatName{"AgilentAcqData", VendorDataFormat::AgilentAcqData},
    FormatName{"Mobilion", VendorDataFormat::Mobilion},
    FormatName{"Waters", VendorDataFormat::Waters},
    FormatName{"Shimadzu", VendorDataFormat::Shimadzu},
    FormatName{"SciexWiff", VendorDataFormat::SciexWiff},
    FormatName{"SciexWiff2", VendorDataFormat::SciexWiff2},
    FormatName{"MsFaux", VendorDataFormat::MsFaux},
    FormatName{"MsFaux2", VendorDataFormat::MsFaux2},
    FormatName{"Thermo", VendorDataFormat::Thermo},
    FormatName{"Mgf", VendorDataFormat::Mgf},
    FormatName{"Mzml", VendorDataFormat::Mzml},
    FormatName{"Mzxml", VendorDataFormat::Mzxml},
    FormatName{"Tolq", VendorDataFormat::Tolq},
    FormatName{"DataCut", VendorDataFormat::DataCut},
    FormatName{"DataCutEmbedded", VendorDataFormat::DataCutEmbedded},
    FormatName{"Csv2d", VendorDataFormat::Csv2d},
};
// clang-format on

} // namespace

QString vendorDataFormatToString(VendorDataFormat format)
{
    for (const FormatName &row : kFormatNames) {
        if (row.format == format)
            return QString::fromLatin1(row.text);
    }
    return {};
}

Result<VendorDataFormat> vendorDataFormatFromString(const QString &text)
{
    for (const FormatName &row : kFormatNames) {
        if (text.compare(QLatin1String(row.text), Qt::CaseInsensitive) == 0)
            return row.format;
    }
    return Error(
        ErrorCode::InvalidContent,
        MsDataFormatTr::tr("Could not find match for converting vendor data format to string: %1").arg(text));
}

} // namespace orv::msreader
