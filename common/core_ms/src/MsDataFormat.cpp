#include <orv/core_ms/MsDataFormat.h>

#include <QCoreApplication>

#include <array>

namespace orv::msreader {

namespace {

struct MsDataFormatTr
{
    Q_DECLARE_TR_FUNCTIONS(MsDataFormat)
};

struct Row
{
    const char *text;
    VendorDataFormat format;
};

// clang-format off
constexpr std::array kRows = {
    Row{"Unknown", VendorDataFormat::Unknown},
    Row{"Testing", VendorDataFormat::Testing},
    Row{"Ulvar2", VendorDataFormat::Ulvar2},
    Row{"BrukerFID", VendorDataFormat::BrukerFID},
    Row{"BrukerYEP", VendorDataFormat::BrukerYEP},
    Row{"BrukerBAF", VendorDataFormat::BrukerBAF},
    Row{"BrukerU2", VendorDataFormat::BrukerU2},
    Row{"BrukerBAF_and_U2", VendorDataFormat::BrukerBAF_and_U2},
    Row{"BrukerTims", VendorDataFormat::BrukerTims},
    Row{"BrukerTsf", VendorDataFormat::BrukerTsf},
    Row{"AgilentAcqData", VendorDataFormat::AgilentAcqData},
    Row{"Mobilion", VendorDataFormat::Mobilion},
    Row{"Waters", VendorDataFormat::Waters},
    Row{"Shimadzu", VendorDataFormat::Shimadzu},
    Row{"SciexWiff", VendorDataFormat::SciexWiff},
    Row{"SciexWiff2", VendorDataFormat::SciexWiff2},
    Row{"MsFaux", VendorDataFormat::MsFaux},
    Row{"MsFaux2", VendorDataFormat::MsFaux2},
    Row{"Thermo", VendorDataFormat::Thermo},
    Row{"Mgf", VendorDataFormat::Mgf},
    Row{"Mzml", VendorDataFormat::Mzml},
    Row{"Mzxml", VendorDataFormat::Mzxml},
    Row{"Tolq", VendorDataFormat::Tolq},
    Row{"DataCut", VendorDataFormat::DataCut},
    Row{"DataCutEmbedded", VendorDataFormat::DataCutEmbedded},
    Row{"Csv2d", VendorDataFormat::Csv2d},
};
// clang-format on

} // namespace

QString vendorDataFormatToString(VendorDataFormat format)
{
    for (const Row &row : kRows) {
        if (row.format == format)
            return QString::fromLatin1(row.text);
    }
    return {};
}

Result<VendorDataFormat> vendorDataFormatFromString(const QString &text)
{
    for (const Row &row : kRows) {
        if (text.compare(QLatin1String(row.text), Qt::CaseInsensitive) == 0)
            return row.format;
    }
    return Error(
        ErrorCode::InvalidContent,
        MsDataFormatTr::tr("Could not find match for converting vendor data format to string: %1").arg(text));
}

} // namespace orv::msreader
