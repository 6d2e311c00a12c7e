#include "Readers.h"

#include <orv/core_ms/MsFileInfo.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace orv::msreader::internal {

namespace {

struct ClosedReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(ClosedReader)
};

/// Formats of this house, for which no vendor has a library.
constexpr std::array kOwnFormats = {
    VendorDataFormat::Testing, VendorDataFormat::Ulvar2,  VendorDataFormat::MsFaux,
    VendorDataFormat::MsFaux2, VendorDataFormat::DataCut, VendorDataFormat::DataCutEmbedded,
    VendorDataFormat::Csv2d,
};

class ClosedReader : public MsReaderAccessor
{
public:
    ClosedReader(const MsReaderOptions &options, VendorDataFormat format)
        : MsReaderAccessor(options, format)
    {}

    /// What isn't there or has no format fails for a reason of its own.
    [[nodiscard]] bool isFormatRead() const override
    {
        return vendorFormat() == VendorDataFormat::Unknown || !QFileInfo::exists(path());
    }

protected:
    Error openData() override
    {
        if (!QFileInfo::exists(path()))
            return Error(ErrorCode::CannotOpenFile,
                         ClosedReaderTr::tr("Could not open the file: %1").arg(path()))
                .addDetail(ClosedReaderTr::tr("It isn't there, or its folder can't be read."));
        if (vendorFormat() == VendorDataFormat::Unknown)
            return Error(ErrorCode::InvalidContent,
                         ClosedReaderTr::tr("No format of MS data is recognised: %1").arg(path()))
                .addDetail(ClosedReaderTr::tr("Check that the data are complete, or convert them to mzML."));
        const QString format = MsFileInfo::formatDescription(vendorFormat());
        if (std::find(kOwnFormats.begin(), kOwnFormats.end(), vendorFormat()) != kOwnFormats.end())
            return Error(ErrorCode::InvalidContent,
                         ClosedReaderTr::tr("Spectra of the format \"%1\" aren't read.").arg(format))
                .addDetail(ClosedReaderTr::tr("Convert the data to mzML."));
        return Error(ErrorCode::InvalidContent,
                     ClosedReaderTr::tr(
                         "Reading the format \"%1\" needs a library of its vendor, which is not there.")
                         .arg(format))
            .addDetail(ClosedReaderTr::tr("Convert the data to mzML."));
    }

    // Questions are asked of open readers alone.
    [[nodiscard]] Result<bool> readHasLevel(int /*level*/) const override { return false; }
    [[nodiscard]] Result<QList<ChromatogramInfo>> readChromatograms() const override
    {
        return QList<ChromatogramInfo>();
    }
};

} // namespace

std::unique_ptr<MsReaderAccessor> createClosedReader(const MsReaderOptions &options, VendorDataFormat format)
{
    return std::make_unique<ClosedReader>(options, format);
}

} // namespace orv::msreader::internal
