#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/core_ms/ChromatogramFilters.h>
#include <orv/core_ms/ChromatogramInfo.h>
#include <orv/core_ms/MsDataFormat.h>
#include <orv/core_ms/MsReaderOptions.h>

#include <QList>

namespace orv::msreader {

/// Answers questions about the mass spectra in one file or folder:
/// \code
///     const auto reader = MsDataAccessorsFactory::createReader(MsReaderOptions(path));
///     ORV_RETURN_IF_ERROR(reader->open());
///     const Result<bool> hasMs1 = reader->hasMsProfileData(1);
/// \endcode
/// Files are read from front to back as far as a question needs, and never held as a whole. A level that a
/// gigabyte of mzML doesn't have takes up to half a minute; most questions end at the first spectra or by the
/// file's index. On any thread, but on one at a time.
///
/// Errors: CannotOpenFile for what can't be read, InvalidContent for what is damaged or cut short, with file
/// and place as details, and for formats that this program doesn't read. Nothing throws.
class ORV_WORKFLOW_EXPORT MsReaderAccessor
{
public:
    virtual ~MsReaderAccessor();
    Q_DISABLE_COPY_MOVE(MsReaderAccessor)

    [[nodiscard]] QString path() const { return m_options.path; }
    /// Told by path, Unknown if nothing was recognised.
    [[nodiscard]] VendorDataFormat vendorFormat() const { return m_format; }

    /// False if no reader for the format of the data is there, so that open() fails however good they are. Of
    /// a format that holds another one that is known after open().
    [[nodiscard]] virtual bool isFormatRead() const { return true; }

    /// Checks that the data are there and whole as far as their beginning and end tell. Questions to a reader
    /// that isn't open fail; one that is open stays so.
    [[nodiscard]] Error open();

    /// Whether some spectrum of this MS level has a peak at least. Profile and centroided spectra count
    /// alike, since open formats often don't tell which they have.
    [[nodiscard]] Result<bool> hasMsProfileData(int level) const;

    /// The chromatograms that \a filter takes, in the file's order.
    [[nodiscard]] Result<QList<ChromatogramInfo>>
    chromatogramInfoList(const ChromatogramFilter &filter = ChromatogramFilters::all) const;

protected:
    MsReaderAccessor(MsReaderOptions options, VendorDataFormat format);

    virtual Error openData() = 0;
    [[nodiscard]] virtual Result<bool> readHasLevel(int level) const = 0;
    [[nodiscard]] virtual Result<QList<ChromatogramInfo>> readChromatograms() const = 0;

    [[nodiscard]] const MsReaderOptions &options() const { return m_options; }

private:
    [[nodiscard]] Error checkedOpen() const;

    MsReaderOptions m_options;
    VendorDataFormat m_format;
    bool m_isOpen = false;
};

} // namespace orv::msreader
